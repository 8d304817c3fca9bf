#include "reports/Report.h"

#include "reports/ReportSheets.h"
#include "samples/SampleTable.h"

#include <ozm_common_core_mini/ColumnNames.h>
#include <ozm_widgets/AbstractTemplateEditor.h>
#include <ozm_widgets/TemplateFile.h>
#include <ozm_widgets/TemplateFilling.h>
#include <ozm_widgets/WholeFile.h>

#include <QCoreApplication>
#include <QDir>

using namespace Qt::StringLiterals;
using ozm::Error;
using ozm::ErrorCode;

// Outside of the namespace, as the function that it calls is.
static void initReportResource()
{
    Q_INIT_RESOURCE(workbench_reports);
}

namespace workbench {

namespace {

// "gap" stands between a text and a table, whose own margins not every viewer heeds.
const QString kStyle =
    u"body { font-family: 'DejaVu Sans', sans-serif; font-size: 9pt; color: #1c2630; }"
    "h1 { font-size: 17pt; margin-top: 14px; margin-bottom: 2px; }"
    "h2 { font-size: 11pt; margin-top: 18px; margin-bottom: 4px; color: #24506f; }"
    ".lab { font-size: 11pt; font-weight: bold; color: #24506f; margin: 0px; }"
    ".lead { font-size: 10pt; color: #51606d; margin-top: 0px; margin-bottom: 12px; }"
    ".small { font-size: 8pt; color: #51606d; margin-top: 2px; margin-bottom: 2px; }"
    ".gap { font-size: 6pt; margin: 0px; }"
    ".sequence { font-family: 'DejaVu Sans Mono', monospace; }"
    "table.facts, table.list { border-color: #b8c4ce; border-style: solid; border-collapse: collapse; }"
    "table.list { font-size: 8pt; }"_s;

// Beside a folder, this is short enough for any system.
constexpr qsizetype kLongestFileName = 80;

QString tr(const char *text)
{
    return QCoreApplication::translate("workbench", text);
}

Error fileError(const QString &text, const QString &path)
{
    return Error(ErrorCode::FileAccess, text.arg(QDir::toNativeSeparators(path))).ecatch(OZM_HERE);
}

ReportPages pageOf(const QString &name, const ozm::TemplateReport &decoded)
{
    ReportPages page{{{name, AbstractTemplateEditor::withoutScriptTags(decoded.text)}}, {}};
    for (const ozm::UnresolvedCode &code : decoded.unresolved)
        page.troubles.append(tr("%1 has no value.").arg(code.code));
    for (const ozm::FailedScript &script : decoded.failed)
        page.troubles.append(tr("A script failed in its line %1: %2").arg(script.line).arg(script.message));
    for (const ozm::BroughtInCode &code : decoded.broughtIn)
        page.troubles.append(tr("%1 came in with a value.").arg(code.code));
    for (const ozm::FaultyInstruction &instruction : decoded.faulty)
        page.troubles.append(
            tr("%1 cannot be followed. %2").arg(instruction.instruction, instruction.message));
    return page;
}

QList<DecodeTecExtraData> extraData(const ReportContext &context)
{
    return {{ReportContext::staticMetaObject, &context}};
}

/// @p name as all systems take it in the name of a file.
QString asFileName(const QString &name)
{
    static const QRegularExpression forbidden(u"[<>:\"/\\\\|?*\\x{0}-\\x{1f}\\x{7f}]"_s);
    QString result = name.simplified().left(kLongestFileName);
    result.replace(forbidden, u"_"_s);
    while (result.endsWith(u'.') || result.endsWith(u' '))
        result.chop(1);
    return result;
}

} // namespace

void ReportPages::append(const ReportPages &other)
{
    pages += other.pages;
    for (const QString &trouble : other.troubles) {
        // The same code without a value on each page is one trouble.
        if (!troubles.contains(trouble))
            troubles.append(trouble);
    }
}

const QList<ReportTemplate> &reportTemplates()
{
    static const QList<ReportTemplate> templates{
        {tr("Sample certificate"), u":/reports/sample-certificate.html"_s, false},
        {tr("Sample list"), u":/reports/peptide-table.html"_s, true},
        {tr("Batch summary"), u":/reports/batch-summary.html"_s, true},
        {tr("Sequence coverage"), u":/reports/sequence-coverage.html"_s, false},
    };
    return templates;
}

ozm::Result<QString> reportTemplateContent(const QString &path)
{
    initReportResource();
    const auto loaded = ozm::TemplateFile::read(path);
    if (!loaded)
        return loaded.error();
    return loaded.value().content;
}

ReportFiller::ReportFiller(QString content, bool asGroup, const std::vector<RowNode> &rows,
                           ReportContext context)
    : m_content(std::move(content))
    , m_asGroup(asGroup)
    , m_rows(&rows)
    , m_context(std::move(context))
    , m_lists(rows)
{}

ozm::Result<ReportFiller> ReportFiller::of(const QString &path, bool asGroup,
                                           const std::vector<RowNode> &rows, const ReportContext &context)
{
    const auto content = reportTemplateContent(path);
    if (!content)
        return content.error();
    return ReportFiller(content.value(), asGroup, rows, context);
}

int ReportFiller::count() const
{
    return m_asGroup ? 1 : static_cast<int>(m_rows->size());
}

QString ReportFiller::name(int index) const
{
    return m_asGroup ? tr("All samples") : m_rows->at(size_t(index)).getDataAt(kName).toString();
}

QString ReportFiller::fileName(int index) const
{
    const QString number =
        m_asGroup ? QString()
                  : u"%1 "_s.arg(SampleTable::idOf(m_rows->at(size_t(index))), 4, 10, QChar(u'0'));
    return asFileName(number + name(index)) + ".pdf"_L1;
}

ReportPages ReportFiller::filled(int index)
{
    if (m_asGroup) {
        const auto all = m_lists.about(nullptr);
        return pageOf(name(index),
                      ozm::fillTemplate(m_content, {all.value(u"Samples"_s), extraData(m_context), all}));
    }
    const RowNode &row = m_rows->at(size_t(index));
    const ReportContext own = m_context.about(row);
    const ozm::ReportData data{{const_cast<RowNode *>(&row)}, extraData(own), m_lists.about(&row)};
    return pageOf(name(index), ozm::fillTemplate(m_content, data));
}

ozm::Result<ReportPages> fillReport(const QString &path, bool asGroup, const std::vector<RowNode> &rows,
                                    const ReportContext &context)
{
    auto filler = ReportFiller::of(path, asGroup, rows, context);
    if (!filler)
        return filler.error();
    ReportPages report;
    for (int index = 0; index < filler.value().count(); ++index)
        report.append(filler.value().filled(index));
    return report;
}

QString reportHtml(const ReportPages &report)
{
    QString html = u"<!DOCTYPE html><html><head><meta charset=\"utf-8\"><title>"_s + tr("Report") +
                   u"</title><style>"_s + ozm::paragraphStyleSheet() + kStyle + u"</style></head><body>"_s;
    for (qsizetype index = 0; index < report.pages.size(); ++index) {
        if (index > 0)
            html += u"<p style=\"page-break-before: always; margin: 0px;\"></p>"_s;
        html += report.pages.at(index).html;
    }
    return html + u"</body></html>"_s;
}

ozm::ReportPaperOptions reportPaperOptions()
{
    ozm::ReportPaperOptions options{tr("Report"), tr("Made by the workbench")};
    options.styleSheet = kStyle;
    return options;
}

ozm::ReportBookOptions bookOptions(const ReportContext &context)
{
    return {tr("Report"), context.user, context.source};
}

Error addSheets(const ReportPages &report, ozm::ReportBook &book)
{
    for (const ReportPage &page : report.pages) {
        const ozm::ReportPaper paper(page.html, reportPaperOptions());
        if (Error error = book.add(paper, page.name.isEmpty() ? tr("Without a name") : page.name);
            error.hasError())
            return error;
    }
    return {};
}

Error saveReportPdf(const ReportPages &report, const QString &path, const ReportContext &context)
{
    ozm::ReportBook book(path, bookOptions(context));
    Error error = addSheets(report, book);
    return error.hasError() ? error : book.finish();
}

Error saveReportHtml(const ReportPages &report, const QString &path)
{
    if (ozm::writeWhole(path, reportHtml(report).toUtf8()).hasError())
        return fileError(tr("\"%1\" cannot be written."), path);
    return {};
}

} // namespace workbench
