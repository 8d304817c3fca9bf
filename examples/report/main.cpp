// A template filled with a row of data, as text and as PDF: report [file.pdf]

#include <ozm_common_core_mini/RowNode.h>
#include <ozm_widgets/AbstractTemplateEditor.h>
#include <ozm_widgets/ReportPaper.h>

#include <QApplication>
#include <QTextStream>

using namespace Qt::StringLiterals;

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    RowNode row({u"Name"_s, u"Charge"_s});
    row.setDataAt(0, u"T12"_s);
    row.setDataAt(1, 2);

    const QString content = u"<h1>Certificate</h1><p>[Name] was measured with charge [Charge]+.</p>"_s;
    const ozm::TemplateReport report = AbstractTemplateEditor::decodeTECReport(content, &row, {});
    QTextStream out(stdout);
    out << report.text << Qt::endl;
    for (const ozm::UnresolvedCode &code : report.unresolved)
        out << "No value for " << code.code << Qt::endl;

    const QString path = argc > 1 ? QString::fromLocal8Bit(argv[1]) : u"certificate.pdf"_s;
    const ozm::ReportPaper paper(report.text, {u"Certificate"_s, u"Laboratory 3"_s});
    const ozm::Error error = paper.writePdf(path);
    out << (error.hasError() ? error.errorMessage() : u"Saved to "_s + path) << Qt::endl;
    return error.hasError() || !report.unresolved.isEmpty() ? 1 : 0;
}
