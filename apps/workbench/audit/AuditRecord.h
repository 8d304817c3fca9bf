#pragma once

#include <ozm_common_stable/Error.h>
#include <ozm_widgets/db/common/OperationLogItemData.h>

#include <QByteArray>
#include <QDateTime>
#include <QString>

namespace workbench {

/// The kind of a row of the audit trail. Commit is not an entry of its own: it marks that one is complete.
enum class AuditKind
{
    Command,
    Macro,
    Event,
    Commit,
};

/**
 * One row of the audit trail as it is stored.
 *
 * Rows are written once and never changed. An item's id is the sequence number of the row that brought it;
 * a commit row names the item it completes, and where that item finally belongs.
 */
struct AuditRecord
{
    qint64 sequence = 0; ///< Given by the database.
    AuditKind kind = AuditKind::Command;
    qint64 item = 0;   ///< 0 for a row yet to be stored that brings a new item.
    qint64 parent = 0; ///< 0 at the top; before storing also belowRow().
    qint64 timeMs = 0; ///< Milliseconds since 1970-01-01 UTC.
    int utcOffset = 0; ///< Seconds east of UTC, where and when the row was written.
    QString user;
    ozm::OperationLogItemUndoContext context = ozm::OperationLogItemUndoContext::None;
    ozm::Error outcome; ///< What became of the step: code and message.
    QByteArray json;    ///< The record's own bytes; those of another version may be anything.

    /// The parent of a row that goes below the item of the row at @p index of the same append.
    [[nodiscard]] static constexpr qint64 belowRow(qsizetype index) { return -1 - index; }

    /// The moment as the clock on the wall showed it to the user.
    [[nodiscard]] QDateTime dateTime() const
    {
        return QDateTime::fromMSecsSinceEpoch(timeMs, Qt::OffsetFromUTC, utcOffset);
    }
};

} // namespace workbench
