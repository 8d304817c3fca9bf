#include <ozm_widgets/TemplateFile.h>
#include <ozm_widgets/WholeFile.h>

#include "templates/files/TemplateFileText.h"
#include "templates/files/WebReader.h"
#include "templates/syntax/Envelope.h"

#include <disk/DiskEntry.h>

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <platform/Errors.h>

using namespace Qt::StringLiterals;

namespace ozm {

namespace {

QByteArray digestOf(const QByteArray &bytes)
{
    return QCryptographicHash::hash(bytes, QCryptographicHash::Sha256);
}

Error notRead(const QString &path, const QString &why)
{
    return Error(ozm::codes::FileAccess,
                 TemplateFile::tr("\"%1\" cannot be read: %2").arg(QDir::toNativeSeparators(path), why));
}

Error notWritten(const QString &path, const QString &why)
{
    return Error(ozm::codes::FileAccess,
                 TemplateFile::tr("\"%1\" cannot be written: %2").arg(QDir::toNativeSeparators(path), why));
}

Error refused(const QString &why)
{
    return Error(ozm::codes::BadParameter, why);
}

QString tooLarge()
{
    return TemplateFile::tr("It is larger than %1 MB.").arg(TemplateFile::kLargest / 1024 / 1024);
}

/// A folder, or a pipe or device, which would be waited for.
bool isNoFile(const QString &path)
{
    const EntryKind kind = disk::kindAt(path);
    return kind == EntryKind::Folder || kind == EntryKind::Other;
}

Result<QByteArray> bytesOf(const QString &path)
{
    if (isNoFile(path))
        return notRead(path, TemplateFile::tr("This is not a file."));
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return notRead(path, file.errorString());
    // Not by the size that the system gives, which is 0 for some files.
    QByteArray bytes = file.read(TemplateFile::kLargest + 1);
    if (file.error() != QFileDevice::NoError)
        return notRead(path, file.errorString());
    if (bytes.size() > TemplateFile::kLargest)
        return notRead(path, tooLarge());
    return bytes;
}

Result<QString> contentOf(const QString &text, TemplateFile::Page page, bool &converted)
{
    if (syntax::mentionsEnvelope(text)) {
        if (auto content = syntax::unwrapped(text))
            return std::move(content->text);
        return wrongTemplateFormat(
            TemplateFile::tr("The file begins as a template, but is cut short or of another version."));
    }
    converted = page == TemplateFile::Page::Body && isHtmlPage(text);
    return converted ? bodyOfPage(text) : Result<QString>(text);
}

Result<QByteArray> bytesFor(const QString &content)
{
    const QString text = syntax::wrapped(content);
    QByteArray bytes = text.toUtf8();
    if (bytes.size() > TemplateFile::kLargest)
        return refused(TemplateFile::tr("The template cannot be saved.") + u' ' + tooLarge());
    if (content.contains(QChar::Null))
        return refused(
            TemplateFile::tr("The template holds a zero character, which cannot be saved. Remove it."));
    if (QString::fromUtf8(bytes) != text) {
        return refused(
            TemplateFile::tr("The template holds half of a character pair, which cannot be saved. Remove "
                             "what is shown as a question mark or an empty box."));
    }
    if (const auto again = syntax::unwrapped(text); !again || again->text != content)
        return refused(TemplateFile::tr("The template could not be read back once saved, so it was not."));
    return bytes;
}

} // namespace

class TemplateFile::Private
{
public:
    QString path;
    QByteArray digest;
};

TemplateFile::TemplateFile()
    : d(std::make_unique<Private>())
{}

TemplateFile::~TemplateFile() = default;

Result<TemplateFile::Loaded> TemplateFile::read(const QString &path, Page page)
{
    const Result<QByteArray> bytes = bytesOf(path);
    if (!bytes)
        return bytes.error();
    const Result<DecodedText> decoded = decodeTemplateFile(bytes.value());
    if (!decoded)
        return decoded.error();
    Loaded loaded{{}, decoded.value().charset, false, digestOf(bytes.value())};
    Result<QString> content = contentOf(decoded.value().text, page, loaded.converted);
    if (!content)
        return content.error();
    loaded.content = std::move(content).value();
    return loaded;
}

Error TemplateFile::write(const QString &path, const QString &content)
{
    const Result<QByteArray> bytes = bytesFor(content);
    if (!bytes)
        return bytes.error();
    if (isNoFile(path))
        return notWritten(path, tr("This is not a file.")).ecatch(OZM_PLACE);
    if (const Error error = writeWhole(path, bytes.value()); error.hasError())
        return notWritten(path, error.errorMessage()).ecatch(OZM_PLACE);
    return {};
}

bool TemplateFile::changedOnDisk() const
{
    if (d->path.isEmpty())
        return false;
    // The content decides: a file may change within the clock's tick, and its time without any change.
    const Result<QByteArray> bytes = bytesOf(d->path);
    return !bytes || digestOf(bytes.value()) != d->digest;
}

QString TemplateFile::path() const
{
    return d->path;
}

void TemplateFile::opened(const QString &path, const QByteArray &digest)
{
    d->path = path;
    d->digest = digest;
    if (!digest.isEmpty())
        return;
    const Result<QByteArray> bytes = bytesOf(path);
    d->digest = bytes ? digestOf(bytes.value()) : QByteArray();
}

} // namespace ozm
