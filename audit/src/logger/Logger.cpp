#include "Logger_p.h"

#include "../Texts.h"

#include <ozm_widgets/db/common/UndoStack.h>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace ozm::audit {

namespace {

using Item = QSharedPointer<OperationLogItem>;

qint64 idOf(const Item &item)
{
    return item && !item->isNull() ? item->id() : 0;
}

/// The steps that undoing or redoing @p command runs, in their order.
void collectSteps(const QUndoCommand &command, OperationLogItemUndoContext context, QList<Step> &steps)
{
    if (const auto *own = dynamic_cast<const UndoCommand *>(&command)) {
        steps.append({own, context});
        return;
    }
    const bool backwards = context == OperationLogItemUndoContext::Undo;
    for (int i = 0; i < command.childCount(); ++i)
        collectSteps(*command.child(backwards ? command.childCount() - 1 - i : i), context, steps);
}

Error firstError(const QList<Step> &steps)
{
    for (const Step &step : steps) {
        if (Error error = step.command->lastError(); error.hasError())
            return error;
    }
    return {};
}

} // namespace

Logger::Logger(Store &store, const LoggerOptions &options)
    : d(std::make_unique<Private>(store, options))
{
    d->beginSession();
}

Logger::~Logger()
{
    settle();
    d->endSession();
}

Error Logger::error() const
{
    return d->queue ? d->queue->error() : d->error;
}

QString Logger::session() const
{
    return d->facts.id();
}

Store &Logger::store() const
{
    return d->store_;
}

Error Logger::push(UndoStack &stack, UndoCommand *command)
{
    std::unique_ptr<UndoCommand> owned(command);
    if (!command)
        return {};
    if (Error error = prepare({{command, OperationLogItemUndoContext::New}}); error.hasError())
        return error;
    Error error = stack.push(owned.release());
    if (const Error late = settle(); late.hasError())
        error.addWarning(late.errorMessage());
    return error;
}

Error Logger::undo(UndoStack &stack)
{
    if (!stack.canUndo())
        return {};
    QList<Step> steps;
    collectSteps(*stack.command(stack.index() - 1), OperationLogItemUndoContext::Undo, steps);
    if (Error error = prepare(steps); error.hasError())
        return error;
    stack.undo();
    Error error = firstError(steps);
    if (const Error late = settle(); late.hasError())
        error.addWarning(late.errorMessage());
    return error;
}

Error Logger::redo(UndoStack &stack)
{
    if (!stack.canRedo())
        return {};
    QList<Step> steps;
    collectSteps(*stack.command(stack.index()), OperationLogItemUndoContext::Redo, steps);
    if (Error error = prepare(steps); error.hasError())
        return error;
    stack.redo();
    Error error = firstError(steps);
    if (const Error late = settle(); late.hasError())
        error.addWarning(late.errorMessage());
    return error;
}

Error Logger::prepare(const QList<Step> &steps)
{
    QList<PendingRecord> records;
    for (const Step &step : steps) {
        const auto reason = d->reasonFor({*step.command->logData()});
        if (!reason) {
            Error refused = reason.error();
            if (const Error unrecorded = recordRefused(step, refused); unrecorded.hasError())
                refused.addWarning(unrecorded.errorMessage());
            return refused;
        }
        d->addRecords(records, Private::contentOf(step), 0, {}, reason.value());
    }
    return d->storePrepared(records, steps);
}

Error Logger::prepareMacro(const OperationLogItemData &data, const QList<Step> &steps)
{
    QList<OperationLogItemData> all{data};
    for (const Step &step : steps)
        all.append(*step.command->logData());
    PendingRecord macro = d->recordOf(Kind::Macro, data, OperationLogItemUndoContext::New);
    const auto reason = d->reasonFor(all);
    if (!reason) {
        macro.outcome = reason.error();
        Error refused = reason.error();
        if (const Error unrecorded = d->storeOne(macro); unrecorded.hasError())
            refused.addWarning(unrecorded.errorMessage());
        return refused;
    }
    macro.reason = reason.value();
    QList<PendingRecord> records{macro};
    for (const Step &step : steps) {
        const qsizetype own = records.size();
        d->addRecords(records, Private::contentOf(step), 0, {}, reason.value());
        if (records.size() > own)
            records[own].below = 0;
    }
    return d->storePrepared(records, steps);
}

Error Logger::settle()
{
    QList<PendingRecord> corrections;
    for (const Private::Prepared &left : std::as_const(d->prepared)) {
        d->addRecords(corrections, left.content, left.parent,
                      Error(ErrorCode::Failed, Texts::tr("The step was recorded, but not carried out.")));
    }
    d->prepared.clear();
    d->preparedMacro.reset();
    if (corrections.isEmpty())
        return {};
    const auto stored = d->store(corrections);
    return stored ? Error() : stored.error();
}

Error Logger::recordRefused(const Step &step, const Error &reason)
{
    QList<PendingRecord> records;
    d->addRecords(records, Private::contentOf(step), 0, reason);
    const auto stored = d->store(records);
    return stored ? Error() : stored.error();
}

Error Logger::recordEvent(const OperationLogItemData &data, const Error &outcome)
{
    PendingRecord record = d->recordOf(Kind::Event, data, OperationLogItemUndoContext::None);
    record.outcome = outcome;
    return d->storeOne(record);
}

Error Logger::record(Draft draft)
{
    PendingRecord record = sessionRecord(draft.kind, {});
    record.parent = draft.parent;
    record.draft = std::make_shared<Draft>(std::move(draft));
    d->stamp(record);
    return d->storeOne(record);
}

qint64 Logger::watermark() const
{
    return d->queue ? d->queue->watermark() : d->serial;
}

qint64 Logger::handedOver() const
{
    return d->queue ? d->queue->handedOver() : d->serial;
}

bool Logger::waitForDurable(QDeadlineTimer deadline)
{
    return !d->queue || d->queue->wait(d->queue->handedOver(), deadline);
}

bool Logger::isDurable(const OperationLogItem &item) const
{
    return numberOf(item.id()) != 0;
}

qint64 Logger::numberOf(qint64 itemId) const
{
    return itemId >= 0 || !d->queue ? itemId : d->queue->numberOf(-itemId);
}

Error Logger::checkpoint()
{
    return d->makeCheckpoint();
}

Error Logger::checkpointError() const
{
    const std::lock_guard lock(d->checkpointMutex);
    return d->checkpointError;
}

bool Logger::commitMacro(Item macro)
{
    PendingRecord mark =
        sessionRecord(Kind::Commit, "{\"parent\":" + QByteArray::number(idOf(macro->parent())) + '}');
    mark.parent = macro->id();
    d->stamp(mark);
    if (!d->storeOne(mark).hasError())
        return true;
    d->overdueMarks.append(mark);
    return false;
}

Item Logger::logCommand(Item parent, const UndoCommand &command, OperationLogItemUndoContext context)
{
    return d->itemOf(d->recordStep({&command, context}, idOf(parent)), parent, *command.logData(), context);
}

Item Logger::logCommandInMacro(Item macro, const UndoCommand &command, OperationLogItemUndoContext context)
{
    return d->itemOf(d->recordStep({&command, context}, idOf(macro)), macro, *command.logData(), context);
}

Item Logger::logEvent(Item parent, const OperationLogItemData &data)
{
    PendingRecord record = d->recordOf(Kind::Event, data, OperationLogItemUndoContext::None);
    record.parent = idOf(parent);
    return d->itemOf(d->storeFirst({record}), parent, data, OperationLogItemUndoContext::None);
}

Item Logger::logBeginMacro(Item parent, const OperationLogItemData &data)
{
    constexpr auto kContext = OperationLogItemUndoContext::New;
    if (d->preparedMacro)
        return d->itemOf(*std::exchange(d->preparedMacro, std::nullopt), parent, data, kContext);
    PendingRecord record = d->recordOf(Kind::Macro, data, kContext);
    record.parent = idOf(parent);
    return d->itemOf(d->storeFirst({record}), parent, data, kContext);
}

} // namespace ozm::audit
