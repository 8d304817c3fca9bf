#include "editor/RichTextView.h"
#include "editor/TemplateEditorPrivate.h"

#include "editor/EditorFiles.h"
#include "templates/document/InlineHtml.h"

#include <ozm_widgets/DefaultWidgetCreator.h>
#include <ozm_widgets/OZMStyle.h>

#include <QBuffer>
#include <QDialog>
#include <QDialogButtonBox>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QFormLayout>
#include <QImageReader>
#include <QLineEdit>

using namespace Qt::StringLiterals;
using namespace ozm::editor;

namespace {

// Embedded, an image is a third larger, in every report that is made.
constexpr qint64 kLargestImage = qint64(16) * 1024 * 1024;

QString imageSource(const QByteArray &bytes, const QByteArray &format)
{
    return u"<img src=\"data:image/%1;base64,%2\"/>"_s.arg(QString::fromLatin1(format),
                                                           QString::fromLatin1(bytes.toBase64()));
}

/// The image's own bytes, when they are one; else why not.
ozm::Result<QString> readImage(const QString &path)
{
    QFile file(path);
    const QString name = QDir::toNativeSeparators(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return ozm::Error(
            ozm::ErrorCode::FileAccess,
            AbstractTemplateEditor::tr("\"%1\" cannot be read: %2").arg(name, file.errorString()));
    }
    if (file.size() > kLargestImage) {
        return ozm::Error(ozm::ErrorCode::BadParameter,
                          AbstractTemplateEditor::tr("\"%1\" is too large for a template.").arg(name));
    }
    QByteArray bytes = file.readAll();
    QBuffer buffer(&bytes);
    QImageReader reader(&buffer);
    const QByteArray format = reader.format();
    if (reader.read().isNull()) {
        return ozm::Error(ozm::ErrorCode::BadParameter,
                          AbstractTemplateEditor::tr("\"%1\" is no image that can be shown.").arg(name));
    }
    return imageSource(bytes, format == "svg" ? QByteArray("svg+xml") : format);
}

} // namespace

void AbstractTemplateEditor::Private::askImage()
{
    static const auto location = FileSystemSettings::addLocation(u"templateImages"_s);
    const QString path = ozm::DefaultWidgetCreator::fileAccessor()->getOpenFileName(
        qptr, tr("Insert image"), {},
        FileExtensionsNameFilter(tr("Images (*.png *.jpg *.jpeg *.gif *.bmp *.svg);;All files (*)")),
        location);
    if (path.isEmpty())
        return;
    const auto source = readImage(path);
    if (source) {
        insertSource(source.value());
        return;
    }
    OZMStyle::critical(qptr, ozm::OzmMessageBoxSignal::FileNotReadable, tr("Image not inserted"),
                       source.error().errorMessage());
}

void AbstractTemplateEditor::Private::askLink()
{
    QDialog dialog(qptr);
    dialog.setObjectName(u"linkDialog"_s);
    dialog.setWindowTitle(tr("Insert link"));
    auto *form = new QFormLayout(&dialog);
    auto *address = new QLineEdit(cursor().charFormat().anchorHref(), &dialog);
    address->setObjectName(u"linkAddress"_s);
    address->setMinimumWidth(320);
    auto *text = new QLineEdit(&dialog);
    text->setObjectName(u"linkText"_s);
    text->setPlaceholderText(cursor().hasSelection() ? tr("As selected") : tr("As the address"));
    text->setDisabled(cursor().hasSelection());
    form->addRow(tr("&Address:"), address);
    form->addRow(tr("&Text:"), text);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, &dialog);
    form->addRow(buttons);
    connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    if (dialog.exec() != QDialog::Accepted || address->text().trimmed().isEmpty())
        return;
    const QString href = address->text().trimmed();
    if (isRich() && cursor().hasSelection()) {
        QTextCharFormat link;
        link.setAnchor(true);
        link.setAnchorHref(href);
        link.setFontUnderline(true);
        link.setForeground(qptr->palette().link());
        rich->mergeFormat(link);
        return;
    }
    const QString shown = text->text().isEmpty() ? href : text->text();
    insertSource(u"<a href=\"%1\">%2</a>"_s.arg(href.toHtmlEscaped(), escaped(shown)));
}

void AbstractTemplateEditor::Private::askPdf()
{
    static const auto location = FileSystemSettings::addLocation(u"templatePdfs"_s);
    const auto accessor =
        ozm::DefaultWidgetCreator::fileAccessor(ozm::IFileAccessor::FileAccessorType::Report);
    const QString name = files->path().isEmpty() ? tr("report") : QFileInfo(files->path()).completeBaseName();
    const auto target =
        accessor->getSaveFileName(qptr, tr("Save as PDF"), {}, name + ".pdf"_L1,
                                  FileExtensionsNameFilter(tr("PDF (*.pdf)")), nullptr, {}, location);
    if (target.isCanceled())
        return;
    const ozm::Error error = accessor->saveFile(target, [this, name](const QString &path) {
        return printing.writePdf(path, decodedForPaper(), name);
    });
    if (error.hasError())
        OZMStyle::critical(qptr, ozm::OzmMessageBoxSignal::FileNotWritable, tr("PDF not saved"),
                           error.errorMessage());
    else
        tell(tr("Saved to %1").arg(QDir::toNativeSeparators(target.toString())));
}
