#include "templates/paper/TemplatePrinting.h"

#include <ozm_widgets/ReportPaper.h>
#include <platform/Errors.h>

#include <QPageSetupDialog>
#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QPrinter>

using namespace Qt::StringLiterals;

namespace ozm::editor {

TemplatePrinting::TemplatePrinting() = default;
TemplatePrinting::~TemplatePrinting() = default;

QPrinter &TemplatePrinting::printer()
{
    if (!m_printer)
        m_printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
    return *m_printer;
}

void TemplatePrinting::askPage(QWidget *parent)
{
    QPageSetupDialog dialog(&printer(), parent);
    dialog.setObjectName(u"pageSetupDialog"_s);
    dialog.exec();
}

void TemplatePrinting::preview(QWidget *parent, const QString &decoded)
{
    const ReportPaper paper(decoded);
    QPrintPreviewDialog dialog(&printer(), parent);
    dialog.setObjectName(u"printPreviewDialog"_s);
    QObject::connect(&dialog, &QPrintPreviewDialog::paintRequested, &dialog,
                     [&paper](QPrinter *device) { paper.print(*device); });
    dialog.exec();
}

void TemplatePrinting::print(QWidget *parent, const QString &decoded)
{
    QPrintDialog dialog(&printer(), parent);
    dialog.setObjectName(u"printDialog"_s);
    if (dialog.exec() == QDialog::Accepted)
        ReportPaper(decoded).print(printer());
}

Error TemplatePrinting::writePdf(const QString &path, const QString &decoded, const QString &title)
{
    ReportPaperOptions options;
    options.title = title;
    // Looking for printers only to learn the usual page would take seconds on some networks.
    if (m_printer)
        options.layout = m_printer->pageLayout();
    return ReportPaper(decoded, options).writePdf(path);
}

} // namespace ozm::editor
