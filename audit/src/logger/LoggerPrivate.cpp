#include "Logger_p.h"

#include "../Texts.h"
#include "../store/StoreBackend.h"
#include "Texts.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QLoggingCategory>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace ozm::audit {

Q_LOGGING_CATEGORY(lcAudit, "ozm.audit")

namespace {

// Time servers correct by less than this at a time; people and faults by more.
constexpr qint64 kJumpMs = 2000;

QByteArray eventJson(const char *event)
{
    return QByteArray("{\"event\":\"") + event + "\"}";
}

} // namespace

Logger::Private::Private(Store &used, const LoggerOptions &given)
    : store_(used)
    , options(given)
    , clock(given.clock ? *given.clock : machineClock)
    , facts(given)
    , beginUs(clock.monotonicUs())
    , wallBase(clock.wallMs())
    , monotonicBase(beginUs)
{
    if (const auto size = used.size())
        lastCheckpoint = size.value();
    if (given.queued) {
        queue = std::make_unique<WriteQueue>(used, facts, given.queueLength,
                                             [this](qint64 number) { written(number); });
    }
}

void Logger::Private::beginSession()
{
    recordUnfinishedSession();
    PendingRecord begin = sessionRecord(Kind::Session, eventJson("begin"));
    stamp(begin);
    error = storeOne(begin);
}

void Logger::Private::endSession()
{
    PendingRecord end = sessionRecord(Kind::Session, eventJson("end"));
    stamp(end);
    if (const Error failed = storeOne(end); failed.hasError())
        qCWarning(lcAudit).noquote() << "The end of the session is not recorded:" << failed.errorMessage();
    queue.reset();
    if (!options.checkpointSinks.empty()) {
        if (const Error failed = makeCheckpoint(); failed.hasError())
            qCWarning(lcAudit).noquote() << failed.errorMessage();
    }
}

/// Where others may be writing, a session without an end may be one that still goes on.
void Logger::Private::recordUnfinishedSession()
{
    if (!store_.backend().isExclusive())
        return;
    Query query;
    query.kinds = {Kind::Session};
    query.order = Query::Order::NewestFirst;
    query.pageSize = 1;
    const auto last = store_.find(query);
    if (!last || last.value().isEmpty())
        return;
    const Entry &entry = last.value().constFirst();
    if (QJsonDocument::fromJson(entry.record).object().value("event"_L1) != "begin"_L1)
        return;
    PendingRecord gap = sessionRecord(
        Kind::Gap, "{\"event\":\"session did not end\",\"session\":\"" + entry.session.toUtf8() +
                       "\",\"began\":" + QByteArray::number(entry.number) + '}');
    stamp(gap);
    (void)storeOne(gap);
}

PendingRecord Logger::Private::recordOf(Kind kind, const OperationLogItemData &data,
                                        OperationLogItemUndoContext context)
{
    PendingRecord record;
    record.kind = kind;
    record.data = data;
    record.context = context;
    stamp(record);
    return record;
}

void Logger::Private::stamp(PendingRecord &record)
{
    record.timeMs = clock.wallMs();
    record.counter = clock.monotonicUs() - beginUs;
}

/// Nothing for a step that its command keeps out of the trail.
std::optional<Logger::Private::Content> Logger::Private::contentOf(const Step &step)
{
    if (!step.command->isAuditTrailEnabled() || !step.command->logData()->isValid())
        return {};
    return Content{*step.command->logData(), step.command->childLogData(), step.context};
}

/// The step's own record, and below it those that the command asks for.
void Logger::Private::addRecords(QList<PendingRecord> &records, const std::optional<Content> &content,
                                 qint64 parent, const Error &outcome, const QString &reason)
{
    if (!content)
        return;
    PendingRecord own = recordOf(Kind::Command, content->data, content->context);
    own.parent = parent;
    own.outcome = outcome;
    own.reason = reason;
    records.append(std::move(own));
    const qsizetype index = records.size() - 1;
    for (const OperationLogItemData &data : content->details) {
        records.append(recordOf(Kind::Command, data, content->context));
        records.last().below = index;
    }
}

Result<QList<Logger::Private::Stored>> Logger::Private::store(QList<PendingRecord> records)
{
    if (records.isEmpty())
        return QList<Stored>();
    // Late entries, and facts about the session, go in front.
    QList<PendingRecord> before = overdueMarks;
    addClockJump(before);
    const qsizetype ahead = before.size();
    if (ahead > 0) {
        for (PendingRecord &record : records) {
            if (record.below >= 0)
                record.below += ahead;
        }
        records = before + std::move(records);
    }
    const qsizetype count = records.size();
    QList<Stored> stored;
    stored.reserve(count - ahead);
    for (qsizetype i = ahead; i < count; ++i)
        stored.append({0, records.at(i).timeMs});
    const auto numberFrom = [&stored](qint64 first, qint64 step) {
        for (Stored &each : stored)
            each.id = std::exchange(first, first + step);
    };
    if (queue) {
        const auto ticket = queue->push(std::move(records));
        if (!ticket)
            return ticket.error();
        numberFrom(-(ticket.value() + ahead), -1);
    } else {
        QList<Draft> drafts;
        for (const PendingRecord &record : std::as_const(records)) {
            drafts.append(facts.draftOf(record));
            if (record.below >= 0)
                drafts.last().parent = Draft::below(record.below);
            else
                drafts.last().parent = record.parent;
        }
        const auto number = store_.append(drafts);
        error = number ? Error() : number.error();
        if (!number)
            return number.error();
        numberFrom(number.value() + ahead, 1);
        serial += count;
        written(number.value() + count - 1);
    }
    overdueMarks.clear();
    return stored;
}

Error Logger::Private::storeOne(const PendingRecord &record)
{
    const auto stored = store({record});
    return stored ? Error() : stored.error();
}

Logger::Private::Stored Logger::Private::storeFirst(QList<PendingRecord> records)
{
    const auto stored = store(std::move(records));
    return !stored || stored.value().isEmpty() ? Stored() : stored.value().constFirst();
}

Error Logger::Private::storePrepared(const QList<PendingRecord> &records, const QList<Step> &steps)
{
    const auto stored = store(records);
    if (!stored)
        return stored.error();
    qsizetype at = 0;
    qint64 parent = 0;
    if (!records.isEmpty() && records.constFirst().kind == Kind::Macro) {
        preparedMacro = stored.value().at(at++);
        parent = preparedMacro->id;
    }
    for (const Step &step : steps) {
        const std::optional<Content> content = contentOf(step);
        if (!content)
            continue;
        prepared.append({step.command, *content, parent, stored.value().at(at)});
        at += 1 + content->details.size();
    }
    return {};
}

std::optional<Logger::Private::Stored> Logger::Private::takePrepared(const Step &step)
{
    const auto found = std::ranges::find_if(prepared, [&step](const Prepared &candidate) {
        return candidate.command == step.command && candidate.content.context == step.context;
    });
    if (found == prepared.end())
        return {};
    const Stored stored = found->stored;
    prepared.erase(found);
    return stored;
}

Logger::Private::Stored Logger::Private::recordStep(const Step &step, qint64 parent)
{
    const std::optional<Stored> foreseen = takePrepared(step);
    const Error outcome = step.command->lastError();
    if (foreseen && !outcome.hasError())
        return *foreseen;
    // Not foreseen, or it went otherwise than foreseen: that is recorded now.
    QList<PendingRecord> records;
    addRecords(records, contentOf(step), parent, outcome);
    return storeFirst(std::move(records));
}

Logger::Private::Item Logger::Private::itemOf(const Stored &stored, const Item &parent,
                                              const OperationLogItemData &data,
                                              OperationLogItemUndoContext context) const
{
    if (stored.id == 0)
        return {};
    OperationLogItemData own = data;
    own.setUndoContext(context);
    return OperationLogItemPrivate::createItem(parent, stored.id, stored.timeMs, facts.user().id,
                                               std::move(own));
}

/// One reason for all: the strongest demand among them asks.
Result<QString> Logger::Private::reasonFor(const QList<OperationLogItemData> &data)
{
    using Demand = ReasonPolicy::Demand;
    if (!options.reasons)
        return QString();
    const auto asking = std::ranges::max_element(
        data, {}, [this](const OperationLogItemData &one) { return options.reasons->demand(one); });
    const Demand demand = options.reasons->demand(*asking);
    if (demand == Demand::None)
        return QString();
    QString reason = options.reasons->reason(*asking).trimmed();
    if (reason.isEmpty() && demand != Demand::Optional) {
        return Error(ErrorCode::NotAllowed, Texts::tr("This step needs a reason. It was not made."))
            .ecatch(OZM_HERE);
    }
    if (demand == Demand::FromList && !options.reasons->choices(*asking).contains(reason)) {
        return Error(ErrorCode::NotAllowed,
                     Texts::tr("The reason \"%1\" is not in the list. The step was not made.").arg(reason))
            .ecatch(OZM_HERE);
    }
    return reason;
}

void Logger::Private::addClockJump(QList<PendingRecord> &records)
{
    const qint64 wall = clock.wallMs();
    const qint64 monotonic = clock.monotonicUs();
    const qint64 jump = (wall - wallBase) - (monotonic - monotonicBase) / 1000;
    wallBase = wall;
    monotonicBase = monotonic;
    if (qAbs(jump) < kJumpMs)
        return;
    PendingRecord record =
        sessionRecord(Kind::Clock, "{\"event\":\"jump\",\"milliseconds\":" + QByteArray::number(jump) + '}');
    stamp(record);
    records.append(record);
}

void Logger::Private::written(qint64 number)
{
    if (options.checkpointSinks.empty() || options.checkpointEvery <= 0)
        return;
    if (number / options.checkpointEvery == lastCheckpoint / options.checkpointEvery)
        return;
    if (const Error failed = makeCheckpoint(); failed.hasError())
        qCWarning(lcAudit).noquote() << failed.errorMessage();
}

Error Logger::Private::makeCheckpoint()
{
    const auto checkpoint = store_.makeCheckpoint(options.checkpointKey.get());
    Error failed = checkpoint ? Error() : checkpoint.error();
    if (checkpoint) {
        lastCheckpoint = checkpoint.value().size;
        for (const auto &sink : options.checkpointSinks) {
            if (Error refused = sink->write(checkpoint.value()); refused.hasError())
                failed = refused;
        }
    }
    const std::lock_guard lock(checkpointMutex);
    checkpointError = failed;
    return failed;
}

} // namespace ozm::audit
