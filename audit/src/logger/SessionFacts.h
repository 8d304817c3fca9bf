#pragma once

#include "PendingRecord.h"

#include <ozm_audit/Logger.h>

namespace ozm::audit {

/// All that the entries of one session have in common. Read by several threads, changed by none.
class SessionFacts
{
public:
    explicit SessionFacts(const LoggerOptions &options);

    [[nodiscard]] const QString &id() const { return m_common.session; }
    [[nodiscard]] const Person &user() const { return m_common.user; }
    /// The entry of @p record, but for its parent.
    [[nodiscard]] Draft draftOf(const PendingRecord &record) const;

private:
    [[nodiscard]] Draft filled(const Draft &draft) const;

    Draft m_common;
};

/// The record of something about the session itself.
[[nodiscard]] PendingRecord sessionRecord(Kind kind, const QByteArray &json);

} // namespace ozm::audit
