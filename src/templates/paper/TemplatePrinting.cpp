#include "templates/paper/TemplatePrinting.h"

#include <platform/Errors.h>

#include <QPageSetupDialog>
#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QPrinter>

#include <utility>

using namespace Qt::StringLiterals;

namespace ozm::editor {

TemplatePrinting::TemplatePrinting(std::function<ReportPaperOptions()> options)
    : m_options(std::move(options))
{}

TemplatePrinting::~TemplatePrinting() = default;

QPrinter &TemplatePrinting::printer()
{
    if (!m_printer) {
        m_printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
        m_printer->setPageLayout(m_options().layout);
    }
    return *m_printer;
}

ReportPaperOptions TemplatePrinting::options() const
{
    ReportPaperOptions options = m_options();
    if (m_printer)
        options.layout = m_printer->pageLayout();
    return options;
}

void TemplatePrinting::askPage(QWidget *parent)
{
    QPageSetupDialog dialog(&printer(), parent);
    dialog.setObjectName(u"pageSetupDialog"_s);
    dialog.exec();
}

void TemplatePrinting::preview(QWidget *parent, const QString &decoded)
{
    const ReportPaper paper(decoded, options());
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
        ReportPaper(decoded, options()).print(printer());
}

Error TemplatePrinting::writePdf(const QString &path, const QString &decoded, const QString &title)
{
    ReportPaperOptions titled = options();
    titled.title = title;
    return ReportPaper(decoded, titled).writePdf(path);
}

} // namespace ozm::editor
