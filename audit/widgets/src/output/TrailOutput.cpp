#include "../Texts.h"
#include "../model/RowText.h"

#include <ozm_audit_widgets/Signature.h>
#include <ozm_audit_widgets/TrailOutput.h>
#include <ozm_widgets/ReportPaper.h>
#include <ozm_widgets/WholeFile.h>

#include <QDateTime>
#include <QDir>
#include <QSaveFile>
#include <QTimeZone>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace ozm::audit {

namespace {

// Some four hundred pages: more belongs into an inspection copy.
constexpr qint64 kMostEntries = 10'000;
// Widths of the columns; together the sheet's.
constexpr std::array kPercent{4, 10, 17, 10, 21, 9, 8, 8, 7, 6};
static_assert(kPercent.size() == TrailModel::ColumnCount);

QString zoned(const QDateTime &moment)
{
    return moment.toOffsetFromUtc(moment.offsetFromUtc()).toString(Qt::ISODate) + u' ' +
           QString::fromLatin1(QTimeZone::systemTimeZoneId());
}

QString csvField(QString text)
{
    // A spreadsheet takes a text that begins like this for a formula.
    if (!text.isEmpty() && u"=+-@\t\r"_s.contains(text.front()))
        text.prepend(u'\'');
    return u'"' + text.replace(u'"', u"\"\""_s) + u'"';
}

/// State, and what became of the value since.
QString stateText(const TrailModel &model, const Entry &entry)
{
    QStringList parts{TrailModel::marksText(model.marks(entry))};
    if (const qint64 later = model.changedLaterBy(entry); later != 0)
        parts.append(WidgetTexts::tr("Changed since this entry, last by entry %1").arg(later));
    const QList<qint64> signatures = model.signaturesOf(entry.number);
    for (const qint64 number : signatures) {
        if (const auto signature = model.store().entry(number))
            parts.append(signatureText(signature.value()));
    }
    parts.removeAll(QString());
    return parts.join(u"; "_s);
}

QStringList rowOf(const TrailModel &model, const Entry &entry)
{
    const EntryTexts texts = EntryTexts::of(entry);
    QStringList row;
    for (int column = 0; column < TrailModel::ColumnCount; ++column) {
        row.append(column == TrailModel::State
                       ? stateText(model, entry)
                       : cellText(entry, texts, model.marks(entry), column, model.zone()));
    }
    return row;
}

QString html(const QString &text)
{
    return text.toHtmlEscaped().replace(u'\n', u"<br/>"_s);
}

} // namespace

TrailOutput::TrailOutput(const TrailModel &model, const Person &user)
    : m_model(model)
    , m_user(user)
    , m_moment(QDateTime::currentDateTime())
{}

qint64 TrailOutput::mostEntries()
{
    return kMostEntries;
}

Error TrailOutput::check() const
{
    if (m_model.isSearching())
        return Error(ErrorCode::NotAllowed, WidgetTexts::tr("The trail is still being searched."))
            .ecatch(OZM_HERE);
    if (m_model.shown() <= kMostEntries)
        return {};
    return Error(ErrorCode::NotAllowed,
                 WidgetTexts::tr("%L1 entries are too many for paper. Narrow the filter to %L2, or make an "
                                 "inspection copy.")
                     .arg(m_model.shown())
                     .arg(kMostEntries))
        .ecatch(OZM_HERE);
}

QList<QPair<QString, QString>> TrailOutput::facts() const
{
    const qint64 count = m_model.shown();
    qint64 first = count == 0 ? 0 : m_model.entryAt(0).number;
    qint64 last = count == 0 ? 0 : m_model.entryAt(int(count) - 1).number;
    return {
        {WidgetTexts::tr("Trail"), m_model.store().trail()},
        {WidgetTexts::tr("Place"), m_model.store().place()},
        {WidgetTexts::tr("Filter"), m_model.filter().inWords()},
        {WidgetTexts::tr("Range"),
         WidgetTexts::tr("entries %1 to %2").arg(qMin(first, last)).arg(qMax(first, last))},
        {WidgetTexts::tr("Entries"), WidgetTexts::tr("%1 of %2 entries").arg(count).arg(m_model.total())},
        {WidgetTexts::tr("Made by"), personText(m_user)},
        {WidgetTexts::tr("Made on"), zoned(m_moment)},
    };
}

QString TrailOutput::footer() const
{
    const auto root = m_model.store().root(m_model.total());
    return WidgetTexts::tr("Checkpoint: %1 entries, root %2")
        .arg(m_model.total())
        .arg(root ? QString::fromLatin1(root.value().toBase64()) : root.error().errorMessage());
}

QString TrailOutput::toHtml() const
{
    QString text = u"<h2>%1</h2><table>"_s.arg(WidgetTexts::tr("Audit trail"));
    for (const auto &[name, value] : facts())
        text += u"<tr><td><b>%1</b>&nbsp;&nbsp;</td><td>%2</td></tr>"_s.arg(html(name), html(value));
    text +=
        u"</table><p></p><table border=\"1\" cellspacing=\"0\" cellpadding=\"3\" width=\"100%\"><thead><tr>"_s;
    for (int column = 0; column < TrailModel::ColumnCount; ++column)
        text += u"<th align=\"left\" width=\"%1%\">%2</th>"_s.arg(kPercent.at(std::size_t(column)))
                    .arg(html(columnTitle(column, m_model.zone())));
    text += u"</tr></thead>"_s;
    for (int row = 0; row < int(m_model.shown()); ++row) {
        text += u"<tr>"_s;
        for (const QString &cell : rowOf(m_model, m_model.entryAt(row)))
            text += u"<td>%1</td>"_s.arg(html(cell));
        text += u"</tr>"_s;
    }
    return text + u"</table>"_s;
}

namespace {

ReportPaper paperOf(const TrailOutput &output)
{
    return ReportPaper(output.toHtml(),
                       {.title = WidgetTexts::tr("Audit trail"),
                        .footer = output.footer(),
                        .font = QFont(u"DejaVu Sans"_s, 7),
                        .layout = QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Landscape,
                                              QMarginsF(12, 12, 12, 12), QPageLayout::Millimeter)});
}

} // namespace

void TrailOutput::print(QPagedPaintDevice &device) const
{
    paperOf(*this).print(device);
}

Error TrailOutput::writePdf(const QString &path) const
{
    if (Error error = check(); error.hasError())
        return error;
    return paperOf(*this).writePdf(path);
}

Error TrailOutput::writeCsv(const QString &path) const
{
    if (m_model.isSearching())
        return check();
    QSaveFile file(path);
    const auto failed = [&file] {
        return Error(ErrorCode::FileAccess,
                     WidgetTexts::tr("\"%1\" cannot be written: %2")
                         .arg(QDir::toNativeSeparators(file.fileName()), file.errorString()))
            .ecatch(OZM_HERE);
    };
    if (!file.open(QIODevice::WriteOnly))
        return failed();
    const auto write = [&file](QStringList fields) {
        std::ranges::transform(fields, fields.begin(), csvField);
        return file.write(fields.join(u',').toUtf8() + "\r\n") > 0;
    };
    bool written = file.write("\xEF\xBB\xBF") > 0;
    for (const auto &[name, value] : facts())
        written = written && write({name, value});
    written = written && write({WidgetTexts::tr("Checkpoint"), footer()});
    QStringList titles;
    for (int column = 0; column < TrailModel::ColumnCount; ++column)
        titles.append(columnTitle(column, m_model.zone()));
    written = written && write(titles);
    for (int row = 0; written && row < int(m_model.shown()); ++row)
        written = write(rowOf(m_model, m_model.entryAt(row)));
    return written && !commitWhole(file).hasError() ? Error() : failed();
}

} // namespace ozm::audit
