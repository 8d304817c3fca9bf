#pragma once

#include <ozm_common_stable/Result.h>

#include <QByteArray>

namespace ozm::audit {

class Database;

/// The newest form of the file that this version knows.
inline constexpr int kSqliteForm = 1;

/// NotAllowed for a newer form, FileAccess for a file that is no such store. True when it is empty.
[[nodiscard]] Result<bool> isEmptyStore(Database &database);

/// Makes tables, guards and the head of a new trail; run in a transaction.
[[nodiscard]] Error createStore(Database &database, const QByteArray &trail);

/// Refuses a store whose guards against changes are not those that it was made with.
[[nodiscard]] Error checkGuards(Database &database);

} // namespace ozm::audit
