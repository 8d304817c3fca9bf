#include "editor/EditorQuestions.h"

#include "editor/EditorViews.h"
#include "templates/document/InlineHtml.h"
#include "templates/paper/TemplatePrinting.h"

#include "support/Platform.h"
#include <ozm_widgets/DefaultWidgetCreator.h>
#include <ozm_widgets/OZMStyle.h>
#include <platform/Errors.h>

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
namespace ozm::editor {

namespace {

// Embedded, an image is a third larger, in every report that is made.
constexpr qint64 kLargestImage = qint64(16) * 1024 * 1024;

QString imageSource(const QByteArray &bytes, const QByteArray &format)
{
    return u"<img src=\"data:image/%1;base64,%2\"/>"_s.arg(QString::fromLatin1(format),
                                                           QString::fromLatin1(bytes.toBase64()));
}

/// The bytes of the image as the source of an element; an error when they cannot be shown.
Result<QString> readImage(const QString &path)
{
    QFile file(path);
    const QString name = QDir::toNativeSeparators(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return Error(ozm::codes::FileAccess,
                     EditorQuestions::tr("\"%1\" cannot be read: %2").arg(name, file.errorString()));
    }
    if (file.size() > kLargestImage) {
        return Error(ozm::codes::BadParameter,
                     EditorQuestions::tr("\"%1\" is too large for a template.").arg(name));
    }
    QByteArray bytes = file.readAll();
    QBuffer buffer(&bytes);
    QImageReader reader(&buffer);
    const QByteArray format = reader.format();
    if (reader.read().isNull()) {
        return Error(ozm::codes::BadParameter,
                     EditorQuestions::tr("\"%1\" is not an image that can be shown.").arg(name));
    }
    return imageSource(bytes, format == "svg" ? QByteArray("svg+xml") : format);
}

} // namespace

EditorQuestions::EditorQuestions(EditorViews &views, TemplatePrinting &printing, const Report &report,
                                 QWidget *window)
    : QObject(window)
    , m_views(views)
    , m_printing(printing)
    , m_report(report)
    , m_window(window)
{}

void EditorQuestions::askImage()
{
    static const auto location = ozm::platform::dirLocation(u"templateImages"_s);
    const QString path = DefaultWidgetCreator::fileAccessor()->getOpenFileName(
        m_window, tr("Insert image"), {},
        FileExtensionsNameFilter(tr("Images (*.png *.jpg *.jpeg *.gif *.bmp *.svg);;All files (*)")),
        location);
    if (path.isEmpty())
        return;
    const auto source = readImage(path);
    if (source) {
        m_views.current().insertSource(source.value());
        return;
    }
    OZMStyle::critical(m_window, OzmMessageBoxSignal::FileNotReadable, tr("Image not inserted"),
                       source.error().errorMessage());
}

void EditorQuestions::askLink()
{
    const QTextCursor cursor = m_views.current().cursor();
    QDialog dialog(m_window);
    dialog.setObjectName(u"linkDialog"_s);
    dialog.setWindowTitle(tr("Insert link"));
    auto *form = new QFormLayout(&dialog);
    auto *address = new QLineEdit(cursor.charFormat().anchorHref(), &dialog);
    address->setObjectName(u"linkAddress"_s);
    address->setMinimumWidth(320);
    auto *text = new QLineEdit(&dialog);
    text->setObjectName(u"linkText"_s);
    text->setPlaceholderText(cursor.hasSelection() ? tr("As selected") : tr("As the address"));
    text->setDisabled(cursor.hasSelection());
    form->addRow(tr("&Address:"), address);
    form->addRow(tr("&Text:"), text);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, &dialog);
    form->addRow(buttons);
    connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    if (dialog.exec() != QDialog::Accepted || address->text().trimmed().isEmpty())
        return;
    const QString href = address->text().trimmed();
    if (m_views.current().linkSelection(href))
        return;
    const QString shown = text->text().isEmpty() ? href : text->text();
    m_views.current().insertSource(u"<a href=\"%1\">%2</a>"_s.arg(href.toHtmlEscaped(), escaped(shown)));
}

void EditorQuestions::askPdf()
{
    static const auto location = ozm::platform::dirLocation(u"templatePdfs"_s);
    const auto accessor = DefaultWidgetCreator::fileAccessor(IFileAccessor::FileAccessorType::Report);
    const QString name = m_report.name();
    const auto target =
        accessor->getSaveFileName(m_window, tr("Save as PDF"), {}, name + ".pdf"_L1,
                                  FileExtensionsNameFilter(tr("PDF (*.pdf)")), nullptr, {}, location);
    if (target.isCanceled())
        return;
    const Error error = accessor->saveFile(target, [this, name](const QString &path) {
        return m_printing.writePdf(path, m_report.decoded(), name);
    });
    if (error.hasError())
        OZMStyle::critical(m_window, OzmMessageBoxSignal::FileNotWritable, tr("PDF not saved"),
                           error.errorMessage());
    else
        Q_EMIT told(tr("Saved to %1").arg(QDir::toNativeSeparators(target.toString())));
}

} // namespace ozm::editor
