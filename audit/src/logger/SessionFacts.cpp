#include "SessionFacts.h"

#include "../entry/LocalTime.h"

#include <QCoreApplication>
#include <QJsonDocument>
#include <QSysInfo>
#include <QTimeZone>
#include <QUuid>

namespace ozm::audit {

namespace {

void takeSubject(Draft &draft, const OperationLogItemSubject &subject)
{
    if (!subject.isValid())
        return;
    draft.subjectType = subject.typeToString();
    const QJsonObject key = subject.toJsonObject().value(QLatin1String("key")).toObject();
    if (!key.isEmpty())
        draft.subjectKey = QString::fromUtf8(QJsonDocument(key).toJson(QJsonDocument::Compact));
}

QString firstOf(const QString &given, const QString &otherwise)
{
    return given.isEmpty() ? otherwise : given;
}

} // namespace

SessionFacts::SessionFacts(const LoggerOptions &options)
{
    m_common.user = options.user;
    m_common.session = QUuid::createUuid().toString(QUuid::Id128);
    m_common.host = QSysInfo::machineHostName();
    m_common.program = firstOf(options.program, QCoreApplication::applicationName());
    m_common.version = firstOf(options.version, QCoreApplication::applicationVersion());
    m_common.zone = QString::fromLatin1(QTimeZone::systemTimeZoneId());
}

Draft SessionFacts::draftOf(const PendingRecord &record) const
{
    Draft draft = record.draft ? filled(*record.draft) : m_common;
    if (!record.draft) {
        OperationLogItemData data = record.data;
        data.setUndoContext(record.context);
        draft.kind = record.kind;
        draft.record = data.toJson();
        draft.reason = record.reason;
        draft.attributes = data.attributes();
        takeSubject(draft, data.subject());
        if (record.kind == Kind::Command || record.kind == Kind::Macro)
            draft.context = OperationLogItemData::undoContextToString(record.context);
    }
    if (draft.timeMs == 0) {
        draft.timeMs = record.timeMs;
        draft.utcOffset = LocalTime::at(record.timeMs).utcOffset;
    }
    draft.id = QUuid::createUuid().toByteArray(QUuid::Id128);
    draft.counter = record.counter;
    if (record.outcome.hasError()) {
        draft.outcomeCode = int(record.outcome.errorCode());
        draft.outcomeText = record.outcome.errorMessage();
    }
    return draft;
}

Draft SessionFacts::filled(const Draft &draft) const
{
    Draft whole = draft;
    if (whole.user.id.isEmpty())
        whole.user = m_common.user;
    whole.session = firstOf(draft.session, m_common.session);
    whole.host = firstOf(draft.host, m_common.host);
    whole.program = firstOf(draft.program, m_common.program);
    whole.version = firstOf(draft.version, m_common.version);
    whole.zone = firstOf(draft.zone, m_common.zone);
    return whole;
}

PendingRecord sessionRecord(Kind kind, const QByteArray &json)
{
    auto draft = std::make_shared<Draft>();
    draft->kind = kind;
    draft->record = json;
    PendingRecord record;
    record.kind = kind;
    record.draft = std::move(draft);
    return record;
}

} // namespace ozm::audit
