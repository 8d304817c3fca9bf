#include "../Texts.h"

#include <ozm_audit_widgets/Review.h>

#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace ozm::audit {

namespace {

struct OutcomeRow
{
    ReviewOutcome outcome;
    QLatin1StringView name;
    const char *title;
};

constexpr std::array kOutcomes{
    OutcomeRow{ReviewOutcome::NoFindings, "no findings"_L1,
               QT_TRANSLATE_NOOP("ozm::audit::WidgetTexts", "No findings")},
    OutcomeRow{ReviewOutcome::Findings, "findings"_L1,
               QT_TRANSLATE_NOOP("ozm::audit::WidgetTexts", "Findings, dealt with")},
    OutcomeRow{ReviewOutcome::Escalated, "escalated"_L1,
               QT_TRANSLATE_NOOP("ozm::audit::WidgetTexts", "Findings, handed on")},
};

const OutcomeRow &rowOf(ReviewOutcome outcome)
{
    const auto index = static_cast<std::size_t>(outcome);
    return kOutcomes.at(index < kOutcomes.size() ? index : 0);
}

} // namespace

QString reviewOutcomeToString(ReviewOutcome outcome)
{
    return rowOf(outcome).name;
}

QString reviewOutcomeTitle(ReviewOutcome outcome)
{
    return QCoreApplication::translate("ozm::audit::WidgetTexts", rowOf(outcome).title);
}

Draft Review::toDraft() const
{
    QJsonObject record{{u"event"_s, u"review"_s},
                       {u"upTo"_s, upTo},
                       {u"filter"_s, QJsonDocument::fromJson(filter.toJson()).object()},
                       {u"filterText"_s, filter.inWords()},
                       {u"entries"_s, entries.toText()},
                       {u"outcome"_s, reviewOutcomeToString(outcome)},
                       {u"reviewerActed"_s, reviewerActed}};
    if (!comment.isEmpty())
        record.insert(u"comment"_s, comment);
    if (!discrepancies.isEmpty())
        record.insert(u"discrepancies"_s, discrepancies.toText());
    Draft draft;
    draft.kind = Kind::Review;
    draft.record = QJsonDocument(record).toJson(QJsonDocument::Compact);
    return draft;
}

Result<bool> hasActed(const Store &store, const QString &userId, const NumberSet &entries)
{
    constexpr int kPage = 1000;
    Query query;
    query.user = userId;
    // Looking, signing in and reviewing change nothing.
    query.kinds = {Kind::Command, Kind::Macro,    Kind::Event,     Kind::Setting, Kind::Reason,
                   Kind::Archive, Kind::Disposal, Kind::Redaction, Kind::ReAnchor};
    query.pageSize = kPage;
    while (true) {
        const auto page = store.findNumbers(query);
        if (!page)
            return page.error();
        if (page.value().isEmpty())
            return false;
        if (std::ranges::any_of(page.value(), [&entries](qint64 number) { return entries.contains(number); }))
            return true;
        query.after = page.value().constLast();
    }
}

} // namespace ozm::audit
