#pragma once

#include "../store/StoreBackend.h"

#include <memory>

namespace ozm::audit {

/**
 * Opens a trail in an SQLite file.
 *
 * For one program: a write-ahead log, synced at each commit, and the file locked for as long as it is open,
 * so that no second connection can reset the log at the same moment; SQLite before 3.51.3 can lose pages
 * then. For several: a rollback journal whose removal is synced, too.
 */
[[nodiscard]] Result<std::unique_ptr<StoreBackend>> openSqlite(const Address &address, Store::Mode mode);

/// Writes the entries of @p store up to @p last to a new file at @p path, which opens as a store.
[[nodiscard]] Error copyToSqlite(const Store &store, const QString &path, qint64 last,
                                 const Progress &progress = {});
/// The error of a copy that its progress ended.
[[nodiscard]] Error copyCancelled();

} // namespace ozm::audit
