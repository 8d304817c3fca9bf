#include "reports/Report.h"

#include "reports/ReportLists.h"

#include <ozm_widgets/AbstractTemplateEditor.h>
#include <ozm_widgets/ReportPaper.h>
#include <ozm_widgets/TemplateFile.h>
#include <ozm_widgets/TemplateFilling.h>

#include <QCoreApplication>
#include <QDir>
#include <QSaveFile>

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

QString tr(const char *text)
{
    return QCoreApplication::translate("workbench", text);
}

Error fileError(const QString &text, const QString &path)
{
    return Error(ErrorCode::FileAccess, text.arg(QDir::toNativeSeparators(path))).ecatch(OZM_HERE);
}

ozm::Result<QString> loadTemplate(const QString &path)
{
    initReportResource();
    const auto loaded = ozm::TemplateFile::read(path);
    if (!loaded)
        return loaded.error();
    return loaded.value().content;
}

ReportPages pageOf(const ozm::TemplateReport &decoded)
{
    ReportPages page{{AbstractTemplateEditor::withoutScriptTags(decoded.text)}, {}};
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

ReportPages fillGroup(const QString &content, const ReportContext &context, ReportLists &lists)
{
    const auto all = lists.about(nullptr);
    return pageOf(ozm::fillTemplate(content, {all.value(u"Samples"_s), extraData(context), all}));
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
    };
    return templates;
}

ozm::Result<ReportPages> fillReport(const QString &path, bool asGroup, const std::vector<RowNode> &rows,
                                    const ReportContext &context)
{
    const auto content = loadTemplate(path);
    if (!content)
        return content.error();
    ReportLists lists(rows);
    if (asGroup)
        return fillGroup(content.value(), context, lists);
    ReportPages report;
    for (const RowNode &row : rows) {
        const ReportContext own = context.about(row);
        const ozm::ReportData data{{const_cast<RowNode *>(&row)}, extraData(own), lists.about(&row)};
        report.append(pageOf(ozm::fillTemplate(content.value(), data)));
    }
    return report;
}

QString reportHtml(const ReportPages &report, PageEnd end)
{
    QString html = u"<!DOCTYPE html><html><head><meta charset=\"utf-8\"><title>"_s + tr("Report") +
                   u"</title><style>"_s + kStyle + u"</style></head><body>"_s;
    for (qsizetype index = 0; index < report.pages.size(); ++index) {
        if (index > 0)
            html += end == PageEnd::Line ? u"<p></p><hr/><p></p>"_s
                                         : u"<p style=\"page-break-before: always; margin: 0px;\"></p>"_s;
        html += report.pages.at(index);
    }
    return html + u"</body></html>"_s;
}

Error saveReportPdf(const ReportPages &report, const QString &path)
{
    return ozm::ReportPaper(reportHtml(report), {tr("Report"), tr("Made by the workbench")}).writePdf(path);
}

Error saveReportHtml(const ReportPages &report, const QString &path)
{
    const QByteArray bytes = reportHtml(report).toUtf8();
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit())
        return {};
    return fileError(tr("\"%1\" cannot be written."), path);
}

} // namespace workbench
