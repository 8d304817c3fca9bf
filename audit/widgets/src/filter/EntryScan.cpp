#include "EntryScan.h"

#include <ozm_widgets/db/common/OperationLogItemData.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace ozm::audit {

namespace {

// A value is looked up among so many earlier ones.
constexpr qsizetype kRemembered = 32;
// Two changes of one value are everyday; the third is asked about.
constexpr int kOftenChanged = 3;

bool isStep(const Entry &entry)
{
    return entry.kind == Kind::Command || entry.kind == Kind::Macro;
}

QJsonObject recordOf(const Entry &entry)
{
    return QJsonDocument::fromJson(entry.record).object();
}

bool isDeletion(const Entry &entry)
{
    return entry.kind == Kind::Disposal || entry.kind == Kind::Redaction ||
           (isStep(entry) && recordOf(entry).value("type"_L1) == "Delete"_L1);
}

bool isSave(const Entry &entry)
{
    return entry.kind == Kind::Event && entry.outcomeCode == 0 &&
           std::ranges::any_of(entry.attributes, [](const QString &attribute) {
               return attribute.startsWith(u"save"_s, Qt::CaseInsensitive);
           });
}

} // namespace

quint64 valueKey(const Entry &entry)
{
    return qHashMulti(0, entry.subjectType, entry.subjectKey, entry.attributes.join(u'\n'));
}

EntryScan::EntryScan(const TrailFilter &filter)
    : m_filter(filter)
{}

bool EntryScan::accepts(const Entry &entry)
{
    // Before the others: it remembers what it is shown.
    const bool preset = meetsPreset(entry);
    return preset && (m_filter.session.isEmpty() || entry.session == m_filter.session) &&
           (!m_filter.withoutReason || (isStep(entry) && entry.reason.isEmpty()));
}

bool EntryScan::meetsPreset(const Entry &entry)
{
    switch (m_filter.preset) {
    case ReviewPreset::None:
        return true;
    case ReviewPreset::Deletions:
        return isDeletion(entry);
    case ReviewPreset::ChangedAfterSignature:
        return isChangedAfterSignature(entry);
    case ReviewPreset::ChangedAgain:
        return isChangedAgain(entry);
    case ReviewPreset::Refused:
        return entry.outcomeCode != 0;
    case ReviewPreset::OutOfHours:
        return isOutOfHours(entry);
    case ReviewPreset::ClockAndGaps:
        return entry.kind == Kind::Clock || entry.kind == Kind::Gap || entry.kind == Kind::ReAnchor;
    case ReviewPreset::UndoneAfterSave:
        return isUndoneAfterSave(entry);
    case ReviewPreset::SettingsAndRights:
        return entry.kind == Kind::Setting;
    }
    return true;
}

bool EntryScan::isOutOfHours(const Entry &entry) const
{
    if (entry.isDisposed())
        return false;
    const QDateTime moment = entry.dateTime();
    return moment.date().dayOfWeek() >= Qt::Saturday || moment.time() < m_filter.hours.from ||
           moment.time() >= m_filter.hours.until;
}

bool EntryScan::isChangedAfterSignature(const Entry &entry)
{
    if (entry.kind == Kind::Signature) {
        const QJsonArray subjects = recordOf(entry).value("subjects"_L1).toArray();
        for (const auto &subject : subjects)
            m_signed.insert(subject.toString());
        return false;
    }
    return isStep(entry) && entry.outcomeCode == 0 && !entry.subjectKey.isEmpty() &&
           m_signed.contains(entry.subjectType + u'\n' + entry.subjectKey);
}

bool EntryScan::isChangedAgain(const Entry &entry)
{
    if (entry.kind != Kind::Command || entry.outcomeCode != 0 || entry.subjectKey.isEmpty())
        return false;
    const QJsonObject record = recordOf(entry);
    if (record.value("type"_L1) != "Set"_L1)
        return false;
    const bool undo = entry.context == "Undo"_L1;
    const auto hashOf = [&record](QLatin1StringView member) {
        return qHash(QJsonValue(record.value(member)));
    };
    Values &values = m_values[valueKey(entry)];
    if (values.seen.isEmpty())
        values.seen.append(hashOf(undo ? "value"_L1 : "oldValue"_L1));
    const std::size_t now = hashOf(undo ? "oldValue"_L1 : "value"_L1);
    const bool back = values.seen.contains(now);
    values.seen.removeOne(now);
    values.seen.append(now);
    if (values.seen.size() > kRemembered)
        values.seen.removeFirst();
    return ++values.changes >= kOftenChanged || back;
}

bool EntryScan::isUndoneAfterSave(const Entry &entry)
{
    if (isSave(entry)) {
        m_sinceSave.insert(entry.session, 0);
        return false;
    }
    const auto session = m_sinceSave.find(entry.session);
    if (session == m_sinceSave.end() || entry.kind != Kind::Command || entry.outcomeCode != 0)
        return false;
    if (entry.context != "Undo"_L1) {
        ++*session;
        return false;
    }
    // Steps that were made since the save are undone first.
    return *session == 0 || --*session < 0;
}

} // namespace ozm::audit
