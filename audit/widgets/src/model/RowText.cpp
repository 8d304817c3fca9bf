#include "RowText.h"

#include "../Texts.h"

#include <ozm_widgets/OZMStyle.h>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace ozm::audit {

namespace {

struct MarkRow
{
    TrailModel::Mark mark;
    const char *text;
    QLatin1StringView icon;
};

// In the order in which they matter.
constexpr std::array kMarks{
    MarkRow{TrailModel::Mark::Pending, QT_TRANSLATE_NOOP("ozm::audit::WidgetTexts", "Not yet on disk"),
            "document-save"_L1},
    MarkRow{TrailModel::Mark::Refused, QT_TRANSLATE_NOOP("ozm::audit::WidgetTexts", "Refused or failed"),
            "dialog-warning"_L1},
    MarkRow{TrailModel::Mark::ChangedSinceSigned,
            QT_TRANSLATE_NOOP("ozm::audit::WidgetTexts", "Changed since signed"), "dialog-warning"_L1},
    MarkRow{TrailModel::Mark::Unfinished, QT_TRANSLATE_NOOP("ozm::audit::WidgetTexts", "Not finished"),
            "dialog-question"_L1},
    MarkRow{TrailModel::Mark::Undone, QT_TRANSLATE_NOOP("ozm::audit::WidgetTexts", "Undone"), "edit-undo"_L1},
    MarkRow{TrailModel::Mark::Disposed, QT_TRANSLATE_NOOP("ozm::audit::WidgetTexts", "Disposed of"),
            "edit-delete"_L1},
    MarkRow{TrailModel::Mark::Signed, QT_TRANSLATE_NOOP("ozm::audit::WidgetTexts", "Signed"), "signature"_L1},
    MarkRow{TrailModel::Mark::Reviewed, QT_TRANSLATE_NOOP("ozm::audit::WidgetTexts", "Reviewed"),
            "dialog-ok"_L1},
};

constexpr std::array kColumnTitles{
    QT_TRANSLATE_NOOP("ozm::audit::WidgetTexts", "No."),
    "", // Time: by its zone.
    QT_TRANSLATE_NOOP("ozm::audit::WidgetTexts", "State"),
    QT_TRANSLATE_NOOP("ozm::audit::WidgetTexts", "Who"),
    QT_TRANSLATE_NOOP("ozm::audit::WidgetTexts", "What"),
    QT_TRANSLATE_NOOP("ozm::audit::WidgetTexts", "Subject"),
    QT_TRANSLATE_NOOP("ozm::audit::WidgetTexts", "Old value"),
    QT_TRANSLATE_NOOP("ozm::audit::WidgetTexts", "New value"),
    QT_TRANSLATE_NOOP("ozm::audit::WidgetTexts", "Reason"),
    QT_TRANSLATE_NOOP("ozm::audit::WidgetTexts", "Outcome"),
};
static_assert(kColumnTitles.size() == TrailModel::ColumnCount);

QString markText(const char *text)
{
    return QCoreApplication::translate("ozm::audit::WidgetTexts", text);
}

} // namespace

QString TrailModel::marksText(Marks marks)
{
    QStringList texts;
    for (const MarkRow &row : kMarks) {
        if (marks.testFlag(row.mark))
            texts.append(markText(row.text));
    }
    return texts.join(u", "_s);
}

QIcon marksIcon(TrailModel::Marks marks)
{
    const auto *row =
        std::ranges::find_if(kMarks, [marks](const MarkRow &r) { return marks.testFlag(r.mark); });
    return row == kMarks.end() ? QIcon() : OZMStyle::icon(row->icon);
}

QString cellText(const Entry &entry, const EntryTexts &texts, TrailModel::Marks marks, int column,
                 TrailModel::Zone zone)
{
    switch (column) {
    case TrailModel::Number:
        return QString::number(entry.number);
    case TrailModel::Time:
        return entry.isDisposed() ? QString() : timeText(entry, zone);
    case TrailModel::State:
        return TrailModel::marksText(marks);
    case TrailModel::Who:
        return personText(entry.user);
    case TrailModel::What:
        return texts.what;
    case TrailModel::Subject:
        return texts.subject;
    case TrailModel::OldValue:
        return texts.oldValue;
    case TrailModel::NewValue:
        return texts.newValue;
    case TrailModel::Reason:
        return entry.reason;
    case TrailModel::Outcome:
        return texts.outcome;
    default:
        return {};
    }
}

QString sortText(const Entry &entry, TrailModel::Marks marks, int column)
{
    return cellText(entry, EntryTexts::of(entry), marks, column, TrailModel::Zone::Utc);
}

QString columnTitle(int column, TrailModel::Zone zone)
{
    if (column == TrailModel::Time)
        return timeTitle(zone);
    return markText(kColumnTitles.at(std::size_t(column)));
}

} // namespace ozm::audit
