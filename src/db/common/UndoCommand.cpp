#include "UndoCommand_p.h"

#include "UndoStack_p.h"
#include "support/Logging.h"

#include <utility>

namespace ozm {

UndoCommand::UndoCommand(UndoCommand *parent)
    : QUndoCommand(parent)
    , d(std::make_unique<Private>(parent))
{}

UndoCommand::~UndoCommand()
{
    // Only of its own stack: a parent's inside is gone when its children die.
    if (d->stack)
        d->stack->d->forget(this);
}

Error UndoCommand::lastError() const
{
    return d->error;
}

QWeakPointer<OperationLogItem> UndoCommand::recentLogItem() const
{
    return d->recentLogItem;
}

bool UndoCommand::isAuditTrailEnabled() const
{
    return d->auditTrailEnabled;
}

const OperationLogItemData *UndoCommand::logData() const
{
    return &d->logData;
}

OperationLogItemData *UndoCommand::logData()
{
    return &d->logData;
}

QList<OperationLogItemData> UndoCommand::childLogData() const
{
    return d->childLogData ? *d->childLogData : QList<OperationLogItemData>();
}

void UndoCommand::setLogData(const OperationLogItemData &data)
{
    d->logData = data;
}

void UndoCommand::setLogData(OperationLogItemData &&data)
{
    d->logData = std::move(data);
}

void UndoCommand::setChildLogData(const QList<OperationLogItemData> &data)
{
    d->childLogData = std::make_unique<const QList<OperationLogItemData>>(data);
}

void UndoCommand::setAuditTrailEnabled(bool enabled)
{
    d->auditTrailEnabled = enabled;
}

Error UndoCommand::beforeBeginFirst()
{
    return {};
}

Error UndoCommand::afterEndLast(bool)
{
    return {};
}

bool UndoCommand::canMergeWith(const QUndoCommand *other) const
{
    const auto *command = dynamic_cast<const UndoCommand *>(other);
    // Without a stack it came through the base class's push(), and is recorded only once it is in the
    // history.
    return command && command->d->stack && id() != -1 && id() == command->id() && !d->error.hasError() &&
           !command->d->error.hasError();
}

void UndoCommand::setStack(UndoStack *stack)
{
    d->stack = stack;
}

UndoStack *UndoCommand::stack() const
{
    for (const UndoCommand *command = this; command; command = command->d->parentCommand) {
        if (UndoStack *stack = command->d->stack)
            return stack;
    }
    return nullptr;
}

void UndoCommand::redo()
{
    UndoStack *stack = this->stack();
    if (!stack) {
        runRedo(nullptr, nullptr);
        return;
    }
    UndoStackPrivate &history = *stack->d;
    if (history.restoring || history.takePlacing(this))
        return;
    if (UndoStackPrivate::Push *push = history.pushThatRuns(this)) {
        runRedo(stack, nullptr);
        push->error = d->error;
        push->item = d->recentLogItem;
    } else if (d->parentCommand) {
        // Children run within the step of their parent.
        runRedo(stack, nullptr);
    } else if (history.historySteps > 0) {
        OZM_WIDGETS_WARNING() << "Redo refused while an undo or redo runs:" << text();
    } else {
        UndoHistoryStep step(history);
        runRedo(stack, &step);
    }
}

void UndoCommand::undo()
{
    UndoStack *stack = this->stack();
    if (!stack || d->parentCommand) {
        if (!stack || !stack->d->restoring)
            runUndo(stack, nullptr);
        return;
    }
    if (stack->d->restoring)
        return;
    if (stack->d->historySteps > 0) {
        OZM_WIDGETS_WARNING() << "Undo refused while an undo or redo runs:" << text();
        return;
    }
    UndoHistoryStep step(*stack->d);
    runUndo(stack, &step);
}

void UndoCommand::runRedo(UndoStack *stack, UndoHistoryStep *step)
{
    if (!beginRedo(stack))
        return;
    d->error = doRedo();
    if (step)
        step->restoreIndex();
    const auto context = d->firstRedo ? OperationLogItemUndoContext::New : OperationLogItemUndoContext::Redo;
    d->firstRedo = false;
    d->recentLogItem = stack ? stack->createOrLog(*this, context) : nullptr;
}

void UndoCommand::runUndo(UndoStack *stack, UndoHistoryStep *step)
{
    if (!beginUndo(stack))
        return;
    if (step)
        step->restoreIndex();
    if (stack && !stack->canUndo()) {
        OZM_WIDGETS_WARNING() << "Can't undo" << text();
        return;
    }
    d->error = doUndo();
    if (step)
        step->restoreIndex();
    d->recentLogItem = stack ? stack->createOrLog(*this, OperationLogItemUndoContext::Undo) : nullptr;
    if (endsUndoRun(stack))
        d->error = afterEndLast(true);
}

/// False when the step is not to run; lastError() says why.
bool UndoCommand::beginRedo(UndoStack *stack)
{
    d->error = {};
    if (d->parentCommand)
        return d->parentCommand->child(0) != this || beginsRun();
    if (!stack || stack->d->doneCounts.isEmpty())
        return true;
    if (stack->d->doneCounts.constLast() == 0 && !beginsRun())
        return false;
    if (!stack->d->doneCounts.isEmpty()) {
        ++stack->d->doneCounts.last();
        stack->d->undoneCounts.last() = 0;
    }
    return true;
}

/// As beginRedo().
bool UndoCommand::beginUndo(UndoStack *stack)
{
    d->error = {};
    if (d->parentCommand)
        return d->parentCommand->child(d->parentCommand->childCount() - 1) != this || beginsRun();
    if (!stack || stack->d->undoneCounts.isEmpty())
        return true;
    const bool begun = stack->d->undoneCounts.constLast() != 0 || beginsRun();
    // Counted even when the step is refused, unlike in redo: the base class moves its index all the same.
    if (!stack->d->undoneCounts.isEmpty()) {
        ++stack->d->undoneCounts.last();
        --stack->d->doneCounts.last();
    }
    return begun;
}

bool UndoCommand::beginsRun()
{
    d->error = beforeBeginFirst();
    return !d->error.hasError();
}

bool UndoCommand::endsUndoRun(UndoStack *stack) const
{
    if (d->parentCommand)
        return d->parentCommand->child(0) == this;
    return stack && !stack->d->doneCounts.isEmpty() && stack->d->doneCounts.constLast() == 0;
}

} // namespace ozm
