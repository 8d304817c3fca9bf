#pragma once

#include <ozm_audit/Entry.h>
#include <ozm_common_stable/Error.h>
#include <ozm_widgets/db/common/OperationLogItemData.h>

#include <memory>

namespace ozm::audit {

/// A record on its way to the store. Making it costs little; its JSON is written where there is time.
struct PendingRecord
{
    Kind kind = Kind::Command;
    OperationLogItemData data;
    OperationLogItemUndoContext context = OperationLogItemUndoContext::None;
    /// Id of the item that it belongs to: an entry's number, or a ticket's negative; 0 for none.
    qint64 parent = 0;
    /// Index of the record of the same hand-over that it belongs to, instead of the parent; -1 for none.
    qsizetype below = -1;
    qint64 timeMs = 0;
    qint64 counter = 0;
    Error outcome;
    QString reason;
    /// For what is not an operation of the log.
    std::shared_ptr<const Draft> draft;
};

} // namespace ozm::audit
