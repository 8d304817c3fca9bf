#include "../Texts.h"
#include "../model/EntryTexts.h"

#include <ozm_audit_widgets/TrailFilter.h>
#include <ozm_widgets/WholeFile.h>

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStringList>

#include <algorithm>
#include <array>
#include <functional>
#include <vector>

using namespace Qt::StringLiterals;

namespace ozm::audit {

namespace {

constexpr int kFilterForm = 1;
// A filter that somebody handed on; nobody writes a longer one.
constexpr qint64 kMostBytes = 1 << 20;

struct PresetRow
{
    ReviewPreset preset;
    QLatin1StringView name;
    const char *title;
};

constexpr std::array kPresets{
    PresetRow{ReviewPreset::None, "none"_L1, QT_TRANSLATE_NOOP("ozm::audit::WidgetTexts", "Everything")},
    PresetRow{ReviewPreset::Deletions, "deletions"_L1,
              QT_TRANSLATE_NOOP("ozm::audit::WidgetTexts", "Deletions")},
    PresetRow{ReviewPreset::ChangedAfterSignature, "changed-after-signature"_L1,
              QT_TRANSLATE_NOOP("ozm::audit::WidgetTexts", "Changes after a signature")},
    PresetRow{ReviewPreset::ChangedAgain, "changed-again"_L1,
              QT_TRANSLATE_NOOP("ozm::audit::WidgetTexts", "Changed again and again, or back")},
    PresetRow{ReviewPreset::Refused, "refused"_L1,
              QT_TRANSLATE_NOOP("ozm::audit::WidgetTexts", "Refused or failed steps")},
    PresetRow{ReviewPreset::OutOfHours, "out-of-hours"_L1,
              QT_TRANSLATE_NOOP("ozm::audit::WidgetTexts", "Out of hours")},
    PresetRow{ReviewPreset::ClockAndGaps, "clock-and-gaps"_L1,
              QT_TRANSLATE_NOOP("ozm::audit::WidgetTexts", "Clock jumps, gaps and damages")},
    PresetRow{ReviewPreset::UndoneAfterSave, "undone-after-save"_L1,
              QT_TRANSLATE_NOOP("ozm::audit::WidgetTexts", "Undone after saving")},
    PresetRow{ReviewPreset::SettingsAndRights, "settings-and-rights"_L1,
              QT_TRANSLATE_NOOP("ozm::audit::WidgetTexts", "Settings and rights")},
};

const PresetRow &rowOf(ReviewPreset preset)
{
    const auto index = static_cast<std::size_t>(preset);
    return kPresets.at(index < kPresets.size() ? index : 0);
}

/// One condition of a filter: its words, empty when it is not set, and how it is taken away.
struct Condition
{
    std::function<QString(const TrailFilter &)> words;
    std::function<void(TrailFilter &)> clear;
};

QString momentText(qint64 ms)
{
    return QDateTime::fromMSecsSinceEpoch(ms, Qt::UTC).toString(u"yyyy-MM-dd HH:mm 'UTC'"_s);
}

QString presetWords(const TrailFilter &filter)
{
    if (filter.preset == ReviewPreset::None)
        return {};
    if (filter.preset != ReviewPreset::OutOfHours)
        return presetTitle(filter.preset);
    return WidgetTexts::tr("Out of hours (%1 to %2)")
        .arg(filter.hours.from.toString(u"HH:mm"_s), filter.hours.until.toString(u"HH:mm"_s));
}

QString kindWords(const TrailFilter &filter)
{
    QStringList names;
    for (const Kind kind : filter.query.kinds)
        names.append(kindTitle(kind));
    return names.isEmpty() ? QString() : WidgetTexts::tr("Kind: %1").arg(names.join(u", "_s));
}

QString subjectWords(const TrailFilter &filter)
{
    const Query &query = filter.query;
    return query.subjectType.isEmpty()
               ? QString()
               : WidgetTexts::tr("Subject: %1").arg(subjectText(query.subjectType, query.subjectKey));
}

QString outcomeWords(const TrailFilter &filter)
{
    switch (filter.query.outcome) {
    case Query::Outcome::Any:
        return {};
    case Query::Outcome::Succeeded:
        return WidgetTexts::tr("Outcome: succeeded");
    case Query::Outcome::Failed:
        return WidgetTexts::tr("Outcome: refused or failed");
    }
    return {};
}

/// @p pattern with the text, or nothing for an empty one.
QString filled(const QString &pattern, const QString &text)
{
    return text.isEmpty() ? QString() : pattern.arg(text);
}

const std::vector<Condition> &conditionTable()
{
    static const std::vector<Condition> kTable{
        {presetWords, [](TrailFilter &f) { f.preset = ReviewPreset::None; }},
        {[](const TrailFilter &f) { return filled(WidgetTexts::tr("User: %1"), f.query.user); },
         [](TrailFilter &f) { f.query.user.clear(); }},
        {kindWords, [](TrailFilter &f) { f.query.kinds.clear(); }},
        {subjectWords,
         [](TrailFilter &f) {
             f.query.subjectType.clear();
             f.query.subjectKey.clear();
         }},
        {[](const TrailFilter &f) { return filled(WidgetTexts::tr("Attribute: %1"), f.query.attribute); },
         [](TrailFilter &f) { f.query.attribute.clear(); }},
        {[](const TrailFilter &f) {
             return f.query.fromMs == 0 ? QString()
                                        : WidgetTexts::tr("From %1").arg(momentText(f.query.fromMs));
         },
         [](TrailFilter &f) { f.query.fromMs = 0; }},
        {[](const TrailFilter &f) {
             return f.query.untilMs == 0 ? QString()
                                         : WidgetTexts::tr("Until %1").arg(momentText(f.query.untilMs));
         },
         [](TrailFilter &f) { f.query.untilMs = 0; }},
        {outcomeWords, [](TrailFilter &f) { f.query.outcome = Query::Outcome::Any; }},
        {[](const TrailFilter &f) {
             return f.withoutReason ? WidgetTexts::tr("Without a reason") : QString();
         },
         [](TrailFilter &f) { f.withoutReason = false; }},
        {[](const TrailFilter &f) { return filled(WidgetTexts::tr("Session: %1"), f.session.left(8)); },
         [](TrailFilter &f) { f.session.clear(); }},
        {[](const TrailFilter &f) { return filled(WidgetTexts::tr("Text: \"%1\""), f.query.text); },
         [](TrailFilter &f) { f.query.text.clear(); }},
    };
    return kTable;
}

Error notAFilter()
{
    return Error(ErrorCode::BadParameter, WidgetTexts::tr("This is not a filter of an audit trail."))
        .ecatch(OZM_HERE);
}

Error fileError(const QString &pattern, const QString &path, const QString &reason)
{
    return Error(ErrorCode::FileAccess, pattern.arg(QDir::toNativeSeparators(path), reason)).ecatch(OZM_HERE);
}

} // namespace

QString presetToString(ReviewPreset preset)
{
    return rowOf(preset).name;
}

QString presetTitle(ReviewPreset preset)
{
    return QCoreApplication::translate("ozm::audit::WidgetTexts", rowOf(preset).title);
}

QList<ReviewPreset> reviewPresets()
{
    QList<ReviewPreset> presets;
    for (const PresetRow &row : kPresets) {
        if (row.preset != ReviewPreset::None)
            presets.append(row.preset);
    }
    return presets;
}

bool TrailFilter::isEmpty() const
{
    return conditions().isEmpty();
}

bool TrailFilter::needsEntries() const
{
    return preset != ReviewPreset::None || withoutReason || !session.isEmpty();
}

QStringList TrailFilter::conditions() const
{
    QStringList words;
    for (const Condition &condition : conditionTable())
        words.append(condition.words(*this));
    words.removeAll(QString());
    return words;
}

QString TrailFilter::inWords() const
{
    const QStringList words = conditions();
    return words.isEmpty() ? WidgetTexts::tr("All entries") : words.join(u"; "_s);
}

TrailFilter TrailFilter::without(qsizetype index) const
{
    TrailFilter rest = *this;
    for (const Condition &condition : conditionTable()) {
        if (!condition.words(*this).isEmpty() && index-- == 0)
            condition.clear(rest);
    }
    return rest;
}

QByteArray TrailFilter::toJson() const
{
    QJsonObject json{{u"form"_s, kFilterForm}};
    const QList<std::pair<QString, QString>> texts{{u"user"_s, query.user},
                                                   {u"subjectType"_s, query.subjectType},
                                                   {u"subjectKey"_s, query.subjectKey},
                                                   {u"attribute"_s, query.attribute},
                                                   {u"text"_s, query.text},
                                                   {u"session"_s, session}};
    for (const auto &[name, text] : texts) {
        if (!text.isEmpty())
            json.insert(name, text);
    }
    QJsonArray kinds;
    for (const Kind kind : query.kinds)
        kinds.append(kindToString(kind));
    if (!kinds.isEmpty())
        json.insert(u"kinds"_s, kinds);
    if (query.fromMs != 0)
        json.insert(u"fromMs"_s, query.fromMs);
    if (query.untilMs != 0)
        json.insert(u"untilMs"_s, query.untilMs);
    if (query.outcome != Query::Outcome::Any)
        json.insert(u"failed"_s, query.outcome == Query::Outcome::Failed);
    if (withoutReason)
        json.insert(u"withoutReason"_s, true);
    if (preset != ReviewPreset::None)
        json.insert(u"preset"_s, presetToString(preset));
    if (hours != WorkingHours()) {
        json.insert(u"hoursFrom"_s, hours.from.toString(u"HH:mm"_s));
        json.insert(u"hoursUntil"_s, hours.until.toString(u"HH:mm"_s));
    }
    return QJsonDocument(json).toJson(QJsonDocument::Compact);
}

Result<TrailFilter> TrailFilter::fromJson(const QByteArray &json)
{
    const QJsonObject object = QJsonDocument::fromJson(json).object();
    if (object.value("form"_L1).toInt() != kFilterForm)
        return notAFilter();
    TrailFilter filter;
    filter.query.user = object.value("user"_L1).toString();
    filter.query.subjectType = object.value("subjectType"_L1).toString();
    filter.query.subjectKey = object.value("subjectKey"_L1).toString();
    filter.query.attribute = object.value("attribute"_L1).toString();
    filter.query.text = object.value("text"_L1).toString();
    filter.session = object.value("session"_L1).toString();
    const QJsonArray kinds = object.value("kinds"_L1).toArray();
    for (const auto &kind : kinds) {
        // A kind that is not known here would silently become another one.
        if (kindToString(kindFromString(kind.toString())) != kind.toString())
            return notAFilter();
        filter.query.kinds.append(kindFromString(kind.toString()));
    }
    filter.query.fromMs = object.value("fromMs"_L1).toInteger();
    filter.query.untilMs = object.value("untilMs"_L1).toInteger();
    if (object.contains("failed"_L1))
        filter.query.outcome =
            object.value("failed"_L1).toBool() ? Query::Outcome::Failed : Query::Outcome::Succeeded;
    filter.withoutReason = object.value("withoutReason"_L1).toBool();
    const QString preset = object.value("preset"_L1).toString(u"none"_s);
    const auto *found = std::ranges::find(kPresets, preset, &PresetRow::name);
    if (found == kPresets.end())
        return notAFilter();
    filter.preset = found->preset;
    if (object.contains("hoursFrom"_L1)) {
        filter.hours = {QTime::fromString(object.value("hoursFrom"_L1).toString(), u"HH:mm"_s),
                        QTime::fromString(object.value("hoursUntil"_L1).toString(), u"HH:mm"_s)};
        if (!filter.hours.from.isValid() || !filter.hours.until.isValid())
            return notAFilter();
    }
    return filter;
}

Error TrailFilter::save(const QString &path) const
{
    if (const Error error = writeWhole(path, toJson() + '\n'); error.hasError()) {
        return fileError(WidgetTexts::tr("The filter cannot be saved as \"%1\": %2"), path,
                         error.errorMessage());
    }
    return {};
}

Result<TrailFilter> TrailFilter::load(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return fileError(WidgetTexts::tr("The filter \"%1\" cannot be read: %2"), path, file.errorString());
    return fromJson(file.read(kMostBytes));
}

} // namespace ozm::audit
