#include "EntryTexts.h"

#include "../Texts.h"

#include <ozm_widgets/db/common/OperationLogItemData.h>

#include <QDateTime>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTimeZone>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace ozm::audit {

namespace {

// In the order of Kind.
constexpr std::array kKindTitles{
    QT_TRANSLATE_NOOP("ozm::audit::WidgetTexts", "Change"),
    QT_TRANSLATE_NOOP("ozm::audit::WidgetTexts", "Group of changes"),
    QT_TRANSLATE_NOOP("ozm::audit::WidgetTexts", "End of a group"),
    QT_TRANSLATE_NOOP("ozm::audit::WidgetTexts", "Event"),
    QT_TRANSLATE_NOOP("ozm::audit::WidgetTexts", "Session"),
    QT_TRANSLATE_NOOP("ozm::audit::WidgetTexts", "Clock"),
    QT_TRANSLATE_NOOP("ozm::audit::WidgetTexts", "Setting or right"),
    QT_TRANSLATE_NOOP("ozm::audit::WidgetTexts", "Reason given later"),
    QT_TRANSLATE_NOOP("ozm::audit::WidgetTexts", "Signature"),
    QT_TRANSLATE_NOOP("ozm::audit::WidgetTexts", "Review"),
    QT_TRANSLATE_NOOP("ozm::audit::WidgetTexts", "Export"),
    QT_TRANSLATE_NOOP("ozm::audit::WidgetTexts", "Archive"),
    QT_TRANSLATE_NOOP("ozm::audit::WidgetTexts", "Disposal"),
    QT_TRANSLATE_NOOP("ozm::audit::WidgetTexts", "Redaction"),
    QT_TRANSLATE_NOOP("ozm::audit::WidgetTexts", "Gap"),
    QT_TRANSLATE_NOOP("ozm::audit::WidgetTexts", "Recorded damage"),
};

/// Sentences of events that this library records itself, by "event" of their record.
struct EventRow
{
    QLatin1StringView event;
    const char *sentence;
};
constexpr std::array kEvents{
    EventRow{"begin"_L1, QT_TRANSLATE_NOOP("ozm::audit::WidgetTexts", "A session began")},
    EventRow{"end"_L1, QT_TRANSLATE_NOOP("ozm::audit::WidgetTexts", "The session ended")},
    EventRow{"jump"_L1, QT_TRANSLATE_NOOP("ozm::audit::WidgetTexts", "The clock jumped")},
    EventRow{"export"_L1, QT_TRANSLATE_NOOP("ozm::audit::WidgetTexts", "A copy of the trail was made")},
    EventRow{"archive"_L1, QT_TRANSLATE_NOOP("ozm::audit::WidgetTexts", "An archive of the trail was made")},
    EventRow{"import"_L1, QT_TRANSLATE_NOOP("ozm::audit::WidgetTexts", "A former trail was imported")},
    EventRow{"sign-in"_L1, QT_TRANSLATE_NOOP("ozm::audit::WidgetTexts", "A signer signed in")},
    EventRow{"sign-in failed"_L1, QT_TRANSLATE_NOOP("ozm::audit::WidgetTexts", "A sign-in failed")},
    EventRow{"locked"_L1, QT_TRANSLATE_NOOP("ozm::audit::WidgetTexts", "Signing was locked")},
    EventRow{"verified"_L1, QT_TRANSLATE_NOOP("ozm::audit::WidgetTexts", "The trail was verified")},
    EventRow{"printed"_L1, QT_TRANSLATE_NOOP("ozm::audit::WidgetTexts", "The trail was printed or exported")},
};

QString translated(const char *text)
{
    return QCoreApplication::translate("ozm::audit::WidgetTexts", text);
}

QString signatureSentence(const QJsonObject &record)
{
    return WidgetTexts::tr("Signed entries %1: %2")
        .arg(record.value("entries"_L1).toString(), record.value("meaning"_L1).toString());
}

QString reviewSentence(const QJsonObject &record)
{
    return WidgetTexts::tr("Reviewed up to entry %1 (%2): %3")
        .arg(record.value("upTo"_L1).toInteger())
        .arg(record.value("filterText"_L1).toString(), record.value("outcome"_L1).toString());
}

QString rangeSentence(const QJsonObject &record)
{
    return WidgetTexts::tr("Disposed of the content of entries %1 to %2")
        .arg(record.value("first"_L1).toInteger())
        .arg(record.value("last"_L1).toInteger());
}

QString eventSentence(const Entry &entry, const QJsonObject &record)
{
    const QString event = record.value("event"_L1).toString();
    const auto *row = std::ranges::find(kEvents, event, &EventRow::event);
    QString sentence = row == kEvents.end() ? QString() : translated(row->sentence);
    const QString detail = record.value("text"_L1).toString();
    if (sentence.isEmpty())
        return record.isEmpty() ? kindTitle(entry.kind) : QString::fromUtf8(entry.record);
    if (record.contains("milliseconds"_L1))
        sentence +=
            u' ' + WidgetTexts::tr("by %1 s").arg(double(record.value("milliseconds"_L1).toInteger()) / 1000);
    return detail.isEmpty() ? sentence : sentence + u": "_s + detail;
}

QString sentenceOf(const Entry &entry)
{
    const QJsonObject record = QJsonDocument::fromJson(entry.record).object();
    switch (entry.kind) {
    case Kind::Signature:
        return signatureSentence(record);
    case Kind::Review:
        return reviewSentence(record);
    case Kind::Commit:
        return WidgetTexts::tr("The group of entry %1 is complete").arg(entry.parent);
    case Kind::Gap:
        return WidgetTexts::tr("Something may be missing: %1").arg(eventSentence(entry, record));
    case Kind::Disposal:
    case Kind::Redaction:
        return rangeSentence(record);
    case Kind::ReAnchor:
        return WidgetTexts::tr("A damage was found and recorded");
    default:
        return eventSentence(entry, record);
    }
}

} // namespace

QString kindTitle(Kind kind)
{
    const auto index = static_cast<std::size_t>(kind);
    return index < kKindTitles.size() ? translated(kKindTitles.at(index)) : QString();
}

QString subjectText(const QString &type, const QString &key)
{
    if (key.isEmpty())
        return type;
    const QJsonObject object = QJsonDocument::fromJson(key.toUtf8()).object();
    if (object.isEmpty())
        return type + u' ' + key;
    QStringList parts;
    for (auto member = object.begin(); member != object.end(); ++member)
        parts.append(member.key() + u": "_s + member.value().toVariant().toString());
    return type + u' ' + parts.join(u", "_s);
}

EntryTexts EntryTexts::of(const Entry &entry)
{
    EntryTexts texts;
    if (entry.outcomeCode != 0)
        texts.outcome = entry.outcomeText.isEmpty() ? WidgetTexts::tr("Error %1").arg(entry.outcomeCode)
                                                    : entry.outcomeText;
    if (entry.isDisposed()) {
        texts.what = WidgetTexts::tr("(The content was disposed of.)");
        return texts;
    }
    bool parsed = false;
    const OperationLogItemData data(entry.record, &parsed);
    if (!parsed || !data.isValid()) {
        texts.what = sentenceOf(entry);
        texts.subject = subjectText(entry.subjectType, entry.subjectKey);
        return texts;
    }
    texts.what = data.toString();
    texts.subject = (data.subject().typeToString() + u' ' + data.subject().keyToString()).trimmed();
    texts.oldValue = data.oldValueToString();
    texts.newValue = data.valueToString();
    return texts;
}

QString personText(const Person &person)
{
    if (person.name.isEmpty() || person.name == person.id)
        return person.id;
    return u"%1 (%2)"_s.arg(person.name.simplified(), person.id);
}

QString timeText(const Entry &entry, TrailModel::Zone zone)
{
    static const QString kFormat = u"yyyy-MM-dd HH:mm:ss.zzz"_s;
    switch (zone) {
    case TrailModel::Zone::Utc:
        return QDateTime::fromMSecsSinceEpoch(entry.timeMs, Qt::UTC).toString(kFormat);
    case TrailModel::Zone::Local:
        return QDateTime::fromMSecsSinceEpoch(entry.timeMs).toString(kFormat);
    case TrailModel::Zone::Recorded:
        break;
    }
    const int minutes = qAbs(entry.utcOffset) / 60;
    return entry.dateTime().toString(kFormat) + (entry.utcOffset < 0 ? u" -"_s : u" +"_s) +
           u"%1:%2"_s.arg(minutes / 60, 2, 10, '0'_L1).arg(minutes % 60, 2, 10, '0'_L1);
}

QString timeTitle(TrailModel::Zone zone)
{
    switch (zone) {
    case TrailModel::Zone::Utc:
        return WidgetTexts::tr("Time (UTC)");
    case TrailModel::Zone::Local:
        return WidgetTexts::tr("Time (here: %1)").arg(QString::fromLatin1(QTimeZone::systemTimeZoneId()));
    case TrailModel::Zone::Recorded:
        break;
    }
    return WidgetTexts::tr("Time (as recorded)");
}

} // namespace ozm::audit
