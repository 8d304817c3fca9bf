#include "UndoStack_p.h"

#include "UndoCommand_p.h"
#include "support/Logging.h"

#include <ozm_widgets/db/common/AuditTrailLoggingInterface.h>

#include <QScopedValueRollback>

#include <utility>

namespace ozm {

namespace {

using Item = QSharedPointer<OperationLogItem>;

bool isStored(const Item &item)
{
    return item && !item->isNull();
}

} // namespace

UndoStackPrivate::Push *UndoStackPrivate::pushThatRuns(const UndoCommand *command)
{
    if (!push || push->command != command || push->started)
        return nullptr;
    push->started = true;
    return push;
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

void UndoStackPrivate::removeFailed(UndoCommand *command)
{
    if (!command)
        return;
    command->setObsolete(true);
    // Undoing anything but the failed command would take back somebody's work. It is not on top inside a
    // macro, and when a slot has moved on; the mark then drops it when the history gets there.
    if (qptr->index() > 0 && qptr->command(qptr->index() - 1) == command)
        qptr->undo();
}

void UndoStackPrivate::forgetClearedMacros()
{
    // An open macro is itself an entry of the history: with none left, it was cleared.
    if (openMacros == 0 || qptr->count() > 0)
        return;
    openMacroItems.clear();
    for (; openMacros > 0; --openMacros)
        dropCounters();
}

Item UndoStackPrivate::takeOpenMacroItem()
{
    return openMacroItems.isEmpty() ? Item() : openMacroItems.takeLast();
}

bool UndoStackPrivate::commitMacro(const Item &macro)
{
    if (!macro->data()->collapseTrivialMacro() || macro->childCount() > 1)
        return logging->commitMacro(macro);

    // What stands for the macro, if anything, is its one child; nothing of the macro itself is to stay.
    const Item child = macro->child(0);
    OperationLogItemPrivate::setParent(macro, nullptr);
    if (!child)
        return true;
    OperationLogItemPrivate::setParent(child, nullptr);
    return logging->commitMacro(child);
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

bool UndoStackPrivate::mayLog(OperationLogItemUndoContext context) const
{
    if (context == OperationLogItemUndoContext::New || context == OperationLogItemUndoContext::Redo)
        return inPush || qptr->canRedo();
    return qptr->canUndo();
}

Item UndoStackPrivate::log(const UndoCommand &command, OperationLogItemUndoContext context)
{
    Item macro;
    if (context != OperationLogItemUndoContext::Undo && !openMacroItems.isEmpty())
        macro = openMacroItems.constLast();
    Item item = isStored(macro) ? logging->logCommandInMacro(macro, command, context)
                                : logging->logCommand(macro, command, context);
    if (!item) {
        OZM_WIDGETS_WARNING() << "Error in logging" << OperationLogItemData::undoContextToString(context)
                              << "command:" << *command.logData();
    }
    return item;
}

UndoStack::UndoStack(QObject *parent)
    : QUndoStack(parent)
    , d(std::make_unique<UndoStackPrivate>(this))
{
    // clear() is not virtual: this is how it is noticed when called on the base class.
    connect(this, &QUndoStack::indexChanged, this, [this] { d->forgetClearedMacros(); });
}

UndoStack::~UndoStack()
{
    // Commands tell their stack when they die, so they die while there still is one.
    QUndoStack::clear();
}

Error UndoStack::push(UndoCommand *command)
{
    if (!command)
        return {};
    if (d->historySteps > 0) {
        OZM_WIDGETS_WARNING() << "Push refused while an undo or redo runs:" << command->text();
        delete command;
        return Error(ErrorCode::NotAllowed,
                     tr("A new edit cannot be made while another is being undone or redone."))
            .ecatch(OZM_HERE);
    }
    command->setStack(this);

    UndoStackPrivate::Push push{command, d->push};
    {
        const QScopedValueRollback running(d->push, &push);
        const QScopedValueRollback inPush(d->inPush, true);
        QUndoStack::push(command);
    }
    d->recentLogItem = std::move(push.item);
    if (push.error.hasError())
        d->removeFailed(push.command);
    else if (push.command && !d->doneCounts.isEmpty())
        d->lastMacroCommand = push.command;
    return push.error;
}

QSharedPointer<OperationLogItem> UndoStack::beginMacro(QSharedPointer<OperationLogItem> parent,
                                                       const OperationLogItemData &data, const QString &text)
{
    if (d->historySteps > 0) {
        OZM_WIDGETS_WARNING() << "Macro refused while an undo or redo runs:" << text;
        return {};
    }
    d->doneCounts.append(0);
    d->undoneCounts.append(0);
    ++d->openMacros;

    Item item;
    if (d->logging) {
        if (!parent && !d->openMacroItems.isEmpty())
            parent = d->openMacroItems.constLast();
        item = d->logging->logBeginMacro(parent, data);
        d->openMacroItems.append(item);
        if (!isStored(item))
            OZM_WIDGETS_WARNING() << "Error in logging begin of macro command:" << data;
    }
    QUndoStack::beginMacro(text.isEmpty() ? data.toString() : text);
    return item;
}

QSharedPointer<OperationLogItem> UndoStack::beginMacro(const OperationLogItemData &data, const QString &text)
{
    return beginMacro(nullptr, data, text);
}

bool UndoStack::endMacro()
{
    bool ok = true;
    if (d->logging) {
        const Item macro = d->takeOpenMacroItem();
        ok = macro && d->commitMacro(macro);
        if (!macro)
            OZM_WIDGETS_WARNING() << "No macro command to end";
    }
    // The counters stay: undo and redo of the finished macro go on with them. Only an abort drops them.
    d->openMacros = qMax(0, d->openMacros - 1);
    QUndoStack::endMacro();
    d->finishLastMacroCommand(true);
    return ok;
}

bool UndoStack::abortMacro()
{
    bool ok = true;
    if (d->logging && !d->takeOpenMacroItem()) {
        OZM_WIDGETS_WARNING() << "No macro command to abort";
        ok = false;
    }
    d->openMacros = qMax(0, d->openMacros - 1);
    QUndoStack::endMacro();
    d->finishLastMacroCommand(false);
    d->dropCounters();
    return ok;
}

void UndoStack::clear()
{
    if (d->historySteps > 0) {
        OZM_WIDGETS_WARNING() << "Clear refused while an undo or redo runs";
        return;
    }
    QUndoStack::clear();
    // Also where signals are blocked.
    d->forgetClearedMacros();
}

void UndoStack::setLogging(AuditTrailLoggingInterface *logging)
{
    d->logging = logging;
}

QWeakPointer<OperationLogItem> UndoStack::recentLogItem() const
{
    return d->recentLogItem;
}

QSharedPointer<OperationLogItem> UndoStack::createOrLog(const UndoCommand &command,
                                                        OperationLogItemUndoContext context)
{
    if (!command.logData()->isValid() || !d->mayLog(context))
        return {};
    Item item;
    if (d->logging && command.isAuditTrailEnabled())
        item = d->log(command, context);
    if (command.lastError().hasError()) {
        OZM_WIDGETS_WARNING() << "Error in" << OperationLogItemData::undoContextToString(context)
                              << "command:" << *command.logData();
    }
    return item;
}

} // namespace ozm
