#include "UndoStack_p.h"

#include "UndoCommand_p.h"
#include "support/Logging.h"

#include <ozm_widgets/db/common/AuditTrailLoggingInterface.h>
#include <ozm_widgets/db/common/AuditTrailMonitor.h>
#include <platform/Errors.h>

#include <QScopedValueRollback>

#include <utility>

namespace ozm {

UndoStack::UndoStack(QObject *parent)
    : QUndoStack(parent)
    , d(std::make_unique<UndoStackPrivate>(this))
{
    connect(this, &QUndoStack::indexChanged, this, [this](int index) { d->onIndexChanged(index); });
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
        return Error(ozm::codes::NotAllowed,
                     tr("A new edit cannot be made while another is being undone or redone."))
            .ecatch(OZM_PLACE);
    }
    d->adoptLatest();
    command->setStack(this);

    UndoStackPrivate::Push push{command, d->push};
    {
        const QScopedValueRollback running(d->push, &push);
        const QScopedValueRollback inPush(d->inPush, true);
        // The command runs before the base class hears of it, which would drop what can be redone, and at
        // the limit the oldest step, for one that fails as well.
        if (!command->isObsolete())
            command->redo();
        if (push.command)
            d->place(push);
    }
    d->recentLogItem = std::move(push.item);
    if (!d->doneCounts.isEmpty() && push.command && !push.error.hasError())
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
    d->adoptLatest();
    d->openMacro();

    QSharedPointer<OperationLogItem> item;
    if (d->logging) {
        if (!parent && !d->openMacroItems.isEmpty())
            parent = d->openMacroItems.constLast();
        item = d->logging->logBeginMacro(parent, data);
        d->openMacroItems.append(item);
        if (!item || item->isNull()) {
            OZM_WIDGETS_WARNING() << "Error in logging begin of macro command:" << data;
            if (d->monitor)
                Q_EMIT d->monitor->recordNotStored(data);
        }
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
    d->adoptLatest();
    bool ok = true;
    if (d->logging) {
        const QSharedPointer<OperationLogItem> macro = d->takeOpenMacroItem();
        ok = macro && d->commitMacro(macro);
        if (!macro)
            OZM_WIDGETS_WARNING() << "No macro command to end";
    }
    // The counters stay: undo and redo of the finished macro go on with them. Only an abort drops them.
    d->closeMacro();
    d->finishLastMacroCommand(true);
    return ok;
}

bool UndoStack::abortMacro()
{
    d->adoptLatest();
    bool ok = true;
    if (d->logging && !d->takeOpenMacroItem()) {
        OZM_WIDGETS_WARNING() << "No macro command to abort";
        ok = false;
    }
    d->closeMacro();
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

AuditTrailMonitor *UndoStack::auditTrailMonitor()
{
    if (!d->monitor)
        d->monitor = new AuditTrailMonitor(this);
    return d->monitor;
}

QSharedPointer<OperationLogItem> UndoStack::createOrLog(const UndoCommand &command,
                                                        OperationLogItemUndoContext context)
{
    const UndoCommand::Private &inside = *command.d;
    if (!inside.logData.isValid() || !d->mayLog(context))
        return {};
    QSharedPointer<OperationLogItem> item;
    if (d->logging && inside.auditTrailEnabled)
        item = d->log(command, context);
    if (inside.error.hasError()) {
        OZM_WIDGETS_WARNING() << "Error in" << OperationLogItemData::undoContextToString(context)
                              << "command:" << inside.logData;
    }
    return item;
}

} // namespace ozm
