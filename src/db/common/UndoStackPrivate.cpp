#include "UndoStack_p.h"

#include "UndoCommand_p.h"
#include "support/Logging.h"

#include <ozm_widgets/db/common/AuditTrailLoggingInterface.h>
#include <ozm_widgets/db/common/AuditTrailMonitor.h>

#include <QScopedValueRollback>

#include <typeinfo>

namespace ozm {

namespace {

using Item = QSharedPointer<OperationLogItem>;

bool isStored(const Item &item)
{
    return item && !item->isNull();
}

bool isRun(OperationLogItemUndoContext context)
{
    return context == OperationLogItemUndoContext::New || context == OperationLogItemUndoContext::Redo;
}

/// The base class's form of a macro.
bool isMacro(const QUndoCommand &command)
{
    return typeid(command) == typeid(QUndoCommand);
}

} // namespace

UndoHistoryStep::UndoHistoryStep(UndoStackPrivate &stack)
    : m_stack(stack)
    , m_index(stack.qptr->index())
    , m_count(stack.qptr->count())
{
    ++m_stack.historySteps;
}

UndoHistoryStep::~UndoHistoryStep()
{
    restoreIndex();
    --m_stack.historySteps;
}

void UndoHistoryStep::restoreIndex()
{
    QUndoStack &history = *m_stack.qptr;
    if (history.index() == m_index)
        return;
    const QScopedValueRollback restoring(m_stack.restoring, true);
    // A refused undo drops the command before this one if that is obsolete.
    history.setIndex(m_index - qMax(0, m_count - history.count()));
}

void UndoStackPrivate::forget(const UndoCommand *command)
{
    for (Push *running = push; running; running = running->outer) {
        if (running->command == command)
            running->command = nullptr;
    }
    if (lastMacroCommand == command)
        lastMacroCommand = nullptr;
}

bool UndoStackPrivate::isMacroOpen() const
{
    // The base class appends a macro when it begins, and has nothing to redo until it ends.
    return qptr->index() < qptr->count() && !qptr->canRedo();
}

/// Puts a command that has run into the history.
void UndoStackPrivate::place(Push &run)
{
    const bool failed = run.error.hasError();
    if (failed && !isMacroOpen()) {
        delete run.command;
        return;
    }
    run.placing = true;
    qptr->QUndoStack::push(run.command);
    // The base class takes nothing out of a macro; the mark drops the command when the next merges with it.
    if (failed && run.command)
        run.command->setObsolete(true);
}

void UndoStackPrivate::forgetClearedMacros()
{
    // An open macro is itself an entry of the history: with none left, it was cleared.
    if (openMacros.isEmpty() || qptr->count() > 0)
        return;
    openMacroItems.clear();
    for (; !openMacros.isEmpty(); openMacros.removeLast())
        dropCounters();
}

void UndoStackPrivate::openMacro()
{
    doneCounts.append(0);
    undoneCounts.append(0);
    openMacros.append(nextMacro++);
}

void UndoStackPrivate::closeMacro()
{
    if (!openMacros.isEmpty())
        openMacros.removeLast();
    qptr->QUndoStack::endMacro();
}

Item UndoStackPrivate::takeOpenMacroItem()
{
    return openMacroItems.isEmpty() ? Item() : openMacroItems.takeLast();
}

bool UndoStackPrivate::commitMacro(Item macro)
{
    if (macro->data()->collapseTrivialMacro() && macro->childCount() < 2) {
        const Item child = macro->child(0);
        if (!child)
            return true;
        OperationLogItemPrivate::setParent(child, nullptr);
        macro = child;
    }
    const bool ok = logging->commitMacro(macro);
    if (!ok && monitor)
        Q_EMIT monitor->macroNotCommitted(*macro->data());
    return ok;
}

void UndoStackPrivate::finishLastMacroCommand(bool committed)
{
    UndoCommand *command = lastMacroCommand;
    if (!command)
        return;
    const Error error = command->afterEndLast(committed);
    // Unchanged: the call has not brought the command to its end.
    if (lastMacroCommand == command)
        command->d->error = error;
    lastMacroCommand = nullptr;
}

void UndoStackPrivate::dropCounters()
{
    if (doneCounts.isEmpty())
        return;
    doneCounts.removeLast();
    undoneCounts.removeLast();
}

// clear() and push() of the base class are not virtual: this is how they are noticed.
void UndoStackPrivate::onIndexChanged(int index)
{
    if (restoring || historySteps > 0)
        return;
    forgetClearedMacros();
    if (index == 0 || index != qptr->count())
        return;
    const QUndoCommand *latest = qptr->command(index - 1);
    if (push && push->command == latest)
        return;
    if (isMacro(*latest))
        adoptFrom(*latest);
    else
        adopt(*latest);
}

void UndoStackPrivate::adoptLatest()
{
    if (isMacroOpen())
        adoptFrom(*qptr->command(qptr->count() - 1));
}

void UndoStackPrivate::adoptFrom(const QUndoCommand &group)
{
    // New commands are at the end, behind what is known or is a macro, which may have new ones in itself.
    int first = group.childCount();
    while (first > 0 && !isKnown(*group.child(first - 1))) {
        --first;
        if (isMacro(*group.child(first)))
            break;
    }
    for (int i = first; i < group.childCount(); ++i) {
        if (isMacro(*group.child(i)))
            adoptFrom(*group.child(i));
        else
            adopt(*group.child(i));
    }
}

bool UndoStackPrivate::isKnown(const QUndoCommand &command) const
{
    const auto *own = dynamic_cast<const UndoCommand *>(&command);
    return own ? !own->d->stack.isNull() : &command == lastUnrecorded;
}

void UndoStackPrivate::adopt(const QUndoCommand &command)
{
    if (isKnown(command))
        return;
    // The stack owns its commands and shows them as const only.
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-const-cast)
    auto *own = const_cast<UndoCommand *>(dynamic_cast<const UndoCommand *>(&command));
    if (!own) {
        lastUnrecorded = &command;
        OZM_WIDGETS_WARNING() << "A command that cannot be recorded was pushed:" << command.text();
        return;
    }
    own->setStack(qptr);
    if (!doneCounts.isEmpty() && !own->d->error.hasError()) {
        ++doneCounts.last();
        undoneCounts.last() = 0;
        lastMacroCommand = own;
    }
    {
        const QScopedValueRollback pushing(inPush, true);
        own->d->recentLogItem = qptr->createOrLog(*own, OperationLogItemUndoContext::New);
    }
    if (own->d->error.hasError() && !isMacroOpen())
        dropFailed(*own);
}

void UndoStackPrivate::dropFailed(UndoCommand &command)
{
    command.setObsolete(true);
    if (qptr->index() == 0 || qptr->command(qptr->index() - 1) != &command)
        return;
    const QScopedValueRollback quietly(restoring, true);
    qptr->QUndoStack::undo();
}

bool UndoStackPrivate::mayLog(OperationLogItemUndoContext context) const
{
    return isRun(context) ? inPush || qptr->canRedo() : qptr->canUndo();
}

Item UndoStackPrivate::log(const UndoCommand &command, OperationLogItemUndoContext context)
{
    Item macro;
    if (isRun(context) && !openMacroItems.isEmpty())
        macro = openMacroItems.constLast();
    Item item = isStored(macro) ? logging->logCommandInMacro(macro, command, context)
                                : logging->logCommand(macro, command, context);
    if (isStored(item))
        return item;
    OZM_WIDGETS_WARNING() << "Error in logging" << OperationLogItemData::undoContextToString(context)
                          << "command:" << *command.logData();
    if (monitor) {
        OperationLogItemData record = *command.logData();
        record.setUndoContext(context);
        Q_EMIT monitor->recordNotStored(record);
    }
    return item;
}

} // namespace ozm
