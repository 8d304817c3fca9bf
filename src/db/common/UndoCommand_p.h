#pragma once

#include <ozm_widgets/db/common/UndoCommand.h>
#include <ozm_widgets/db/common/UndoStack.h>

#include <QPointer>

namespace ozm {

class UndoCommand::Private
{
public:
    explicit Private(UndoCommand *parent)
        : parentCommand(parent)
    {}

    // Each edit of the history has one of these: what is rarely there takes a pointer only.
    Error error;
    UndoCommand *const parentCommand;
    QPointer<UndoStack> stack;
    QWeakPointer<OperationLogItem> recentLogItem;
    std::unique_ptr<const QList<OperationLogItemData>> childLogData;
    // Its last bytes are free, and have room for the two flags.
    [[no_unique_address]] OperationLogItemData logData;
    bool auditTrailEnabled = true;
    bool firstRedo = true;
};

} // namespace ozm
