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

    bool auditTrailEnabled = true;
    Error error;
    UndoCommand *const parentCommand;
    QPointer<UndoStack> stack;
    QWeakPointer<OperationLogItem> recentLogItem;
    OperationLogItemData logData;
    QList<OperationLogItemData> childLogData;
    bool firstRedo = true;
};

} // namespace ozm
