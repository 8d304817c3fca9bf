#include "audit/AuditLogger.h"

#include "audit/AuditDatabase.h"

#include <ozm_widgets/db/common/UndoCommand.h>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;
using ozm::Error;
using ozm::ErrorCode;
using ozm::OperationLogItemData;
using ozm::OperationLogItemUndoContext;
using ozm::UndoCommand;
using Item = QSharedPointer<ozm::OperationLogItem>;

namespace workbench {

namespace {

bool isLogged(const AuditStep &step)
{
    return step.command->isAuditTrailEnabled() && step.command->logData()->isValid();
}

OperationLogItemData withContext(OperationLogItemData data, OperationLogItemUndoContext context)
{
    data.setUndoContext(context);
    return data;
}

qint64 idOf(const Item &item)
{
    return item && !item->isNull() ? item->id() : 0;
}

Item itemOf(const std::optional<AuditRecord> &record, const Item &parent, const OperationLogItemData &data)
{
    if (!record)
        return {};
    return ozm::OperationLogItemPrivate::createItem(parent, record->item, record->timeMs, record->user,
                                                    withContext(data, record->context));
}

} // namespace

AuditLogger::AuditLogger(AuditDatabase &database, const QString &user)
    : m_database(database)
    , m_user(user)
{}

AuditLogger::~AuditLogger() = default;

Error AuditLogger::prepare(const QList<AuditStep> &steps)
{
    QList<AuditRecord> records;
    for (const AuditStep &step : steps)
        addRecords(records, step, 0);
    return storePrepared(records, steps);
}

Error AuditLogger::prepareMacro(const OperationLogItemData &data, const QList<AuditStep> &steps)
{
    QList<AuditRecord> records{recordOf(AuditKind::Macro, data, OperationLogItemUndoContext::New)};
    for (const AuditStep &step : steps)
        addRecords(records, step, AuditRecord::belowRow(0));
    return storePrepared(records, steps);
}

Error AuditLogger::settle()
{
    QList<AuditRecord> corrections;
    for (const Prepared &left : std::as_const(m_prepared)) {
        addRecords(corrections, left.step, left.record.parent,
                   Error(ErrorCode::Failed, tr("The step was recorded, but not carried out.")));
    }
    m_prepared.clear();
    m_preparedMacro.reset();
    if (corrections.isEmpty())
        return {};
    const auto stored = store(corrections);
    return stored ? Error() : stored.error();
}

Error AuditLogger::recordRefused(const AuditStep &step, const Error &reason)
{
    QList<AuditRecord> records;
    addRecords(records, step, 0, reason);
    const auto stored = store(records);
    return stored ? Error() : stored.error();
}

Error AuditLogger::recordEvent(const OperationLogItemData &data, const Error &outcome)
{
    AuditRecord record = recordOf(AuditKind::Event, data, OperationLogItemUndoContext::None);
    record.outcome = outcome;
    const auto stored = store({record});
    return stored ? Error() : stored.error();
}

bool AuditLogger::commitMacro(Item macro)
{
    AuditRecord mark;
    mark.kind = AuditKind::Commit;
    mark.item = macro->id();
    mark.parent = idOf(macro->parent());
    mark.timeMs = QDateTime::currentMSecsSinceEpoch();
    mark.utcOffset = QDateTime::fromMSecsSinceEpoch(mark.timeMs).offsetFromUtc();
    mark.user = m_user;
    if (store({mark}))
        return true;
    m_overdueMarks.append(mark);
    return false;
}

Item AuditLogger::logCommand(Item parent, const UndoCommand &command, OperationLogItemUndoContext context)
{
    return itemOf(recordFor({&command, context}, idOf(parent)), parent, *command.logData());
}

Item AuditLogger::logEvent(Item parent, const OperationLogItemData &data)
{
    AuditRecord record = recordOf(AuditKind::Event, data, OperationLogItemUndoContext::None);
    record.parent = idOf(parent);
    return itemOf(storeOne({record}), parent, data);
}

Item AuditLogger::logCommandInMacro(Item macro, const UndoCommand &command,
                                    OperationLogItemUndoContext context)
{
    return itemOf(recordFor({&command, context}, idOf(macro)), macro, *command.logData());
}

Item AuditLogger::logBeginMacro(Item parent, const OperationLogItemData &data)
{
    if (m_preparedMacro)
        return itemOf(std::exchange(m_preparedMacro, std::nullopt), parent, data);
    AuditRecord record = recordOf(AuditKind::Macro, data, OperationLogItemUndoContext::New);
    record.parent = idOf(parent);
    return itemOf(storeOne({record}), parent, data);
}

AuditRecord AuditLogger::recordOf(AuditKind kind, const OperationLogItemData &data,
                                  OperationLogItemUndoContext context) const
{
    AuditRecord record;
    record.kind = kind;
    record.timeMs = QDateTime::currentMSecsSinceEpoch();
    record.utcOffset = QDateTime::fromMSecsSinceEpoch(record.timeMs).offsetFromUtc();
    record.user = m_user;
    record.context = context;
    record.json = withContext(data, context).toJson();
    return record;
}

/// The step's own record, and below it those that the command asks for.
void AuditLogger::addRecords(QList<AuditRecord> &records, const AuditStep &step, qint64 parent,
                             const Error &outcome) const
{
    if (!isLogged(step))
        return;
    AuditRecord own = recordOf(AuditKind::Command, *step.command->logData(), step.context);
    own.parent = parent;
    own.outcome = outcome;
    records.append(own);
    const qint64 belowOwn = AuditRecord::belowRow(records.size() - 1);
    const QList<OperationLogItemData> details = step.command->childLogData();
    for (const OperationLogItemData &data : details) {
        AuditRecord detail = recordOf(AuditKind::Command, data, step.context);
        detail.parent = belowOwn;
        records.append(detail);
    }
}

ozm::Result<QList<AuditRecord>> AuditLogger::store(const QList<AuditRecord> &records)
{
    if (!m_overdueMarks.isEmpty() && m_database.append(m_overdueMarks))
        m_overdueMarks.clear();
    return m_database.append(records);
}

Error AuditLogger::storePrepared(const QList<AuditRecord> &records, const QList<AuditStep> &steps)
{
    const auto stored = store(records);
    if (!stored)
        return stored.error();
    auto record = stored.value().cbegin();
    if (record != stored.value().cend() && record->kind == AuditKind::Macro)
        m_preparedMacro = *record++;
    for (const AuditStep &step : steps) {
        if (!isLogged(step))
            continue;
        m_prepared.append({step, *record});
        record += 1 + step.command->childLogData().size();
    }
    return {};
}

std::optional<AuditRecord> AuditLogger::takePrepared(const AuditStep &step)
{
    const auto found = std::ranges::find_if(m_prepared, [&step](const Prepared &prepared) {
        return prepared.step.command == step.command && prepared.step.context == step.context;
    });
    if (found == m_prepared.end())
        return {};
    const AuditRecord record = found->record;
    m_prepared.erase(found);
    return record;
}

std::optional<AuditRecord> AuditLogger::recordFor(const AuditStep &step, qint64 parent)
{
    std::optional<AuditRecord> prepared = takePrepared(step);
    const Error outcome = step.command->lastError();
    if (prepared && prepared->outcome == outcome)
        return prepared;
    // Not foreseen, or it went otherwise than foreseen: what happened is recorded now.
    QList<AuditRecord> records;
    addRecords(records, step, parent, outcome);
    return storeOne(records);
}

std::optional<AuditRecord> AuditLogger::storeOne(const QList<AuditRecord> &records)
{
    const auto stored = store(records);
    if (!stored || stored.value().isEmpty())
        return {};
    return stored.value().constFirst();
}

} // namespace workbench
