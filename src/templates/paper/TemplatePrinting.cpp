#include "templates/paper/TemplatePrinting.h"

#include "templates/syntax/ScriptTags.h"

#include <ozm_widgets/TemplateDocument.h>
#include <platform/Errors.h>

#include <QCoreApplication>
#include <QDir>
#include <QPageSetupDialog>
#include <QPdfWriter>
#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QSaveFile>

using namespace Qt::StringLiterals;

namespace ozm::editor {

namespace {

constexpr int kDotsPerInch = 300;

} // namespace

TemplatePrinting::TemplatePrinting() = default;
TemplatePrinting::~TemplatePrinting() = default;

std::unique_ptr<QTextDocument> TemplatePrinting::document(const QString &decoded)
{
    // This document, unlike its base class, never loads the files that a text refers to.
    auto document = std::make_unique<TemplateDocument>();
    const QString text = syntax::withoutScriptTags(decoded);
    if (TemplateDocument::isHtml(text))
        document->setHtml(text);
    else
        document->setPlainText(text);
    return document;
}

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
    const auto printed = document(decoded);
    QPrintPreviewDialog dialog(&printer(), parent);
    dialog.setObjectName(u"printPreviewDialog"_s);
    QObject::connect(&dialog, &QPrintPreviewDialog::paintRequested, &dialog,
                     [&printed](QPrinter *device) { printed->print(device); });
    dialog.exec();
}

void TemplatePrinting::print(QWidget *parent, const QString &decoded)
{
    QPrintDialog dialog(&printer(), parent);
    dialog.setObjectName(u"printDialog"_s);
    if (dialog.exec() == QDialog::Accepted)
        document(decoded)->print(&printer());
}

Error TemplatePrinting::writePdf(const QString &path, const QString &decoded, const QString &title)
{
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly)) {
        QPdfWriter writer(&file);
        writer.setResolution(kDotsPerInch);
        writer.setTitle(title);
        writer.setCreator(QCoreApplication::applicationName());
        // Looking for printers only to learn the usual page would take seconds on some networks.
        writer.setPageLayout(m_printer ? m_printer->pageLayout()
                                       : QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait, {}));
        document(decoded)->print(&writer);
    }
    if (file.commit())
        return {};
    return Error(ozm::codes::FileAccess, tr("\"%1\" cannot be written.").arg(QDir::toNativeSeparators(path)))
        .ecatch(OZM_PLACE);
}

} // namespace ozm::editor
