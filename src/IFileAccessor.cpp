#include <ozm_widgets/IFileAccessor.h>

#include "dialogs/SaveProbe.h"

#include "support/Platform.h"
#include <ozm_common_core_mini/CsvWriter.h>
#include <ozm_qt_shared_libs_core/FileUtilsGeneric.h>
#include <platform/Errors.h>

#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace ozm {

namespace {

// Support staff look errors up by these places, which therefore stay whatever moves in here.
constexpr auto kSource = "ozm_widgets/src/IFileAccessor"_L1;
constexpr int kReferenceLine = 30;
constexpr int kBytesLine = 97;
constexpr int kCsvLine = 114;

QSharedPointer<ResourceReference> referenceFromString(const QString &text)
{
    const auto reference = ResourceReference::fromString(text);
    if (reference)
        return reference.value();
    Error error = reference.error();
    error.ecatch(QString::fromUtf8(Q_FUNC_INFO), kSource, kReferenceLine);
    return {};
}

} // namespace

IFileAccessor::DestinationFileLocation::DestinationFileLocation(
    const QSharedPointer<ResourceReference> &resource, const QString &filePath)
    : reference(resource)
    , path(filePath)
{}

IFileAccessor::DestinationFileLocation::DestinationFileLocation(const QString &referenceText)
    : reference(referenceFromString(referenceText))
{}

void IFileAccessor::DestinationFileLocation::setCanceled(bool canceled)
{
    Q_UNUSED(canceled);
}

QString IFileAccessor::DestinationFileLocation::toString() const
{
    if (isNull())
        return {};
    QString location = reference->location();
    if (!reference->isScheme(ResourceReference::Scheme::LocalFile))
        return u"%1: %2"_s.arg(location, path);
    if (!QFileInfo(location).isDir())
        return location;
    return platform::valueOr(FileUtilsGeneric::createFilePathForLocalResource(location, path), QString());
}

IFileAccessor::~IFileAccessor() = default;

QString IFileAccessor::getOpenFileName(QWidget *parent, const QString &caption, const QString &dir,
                                       const QString &filter, QString *selectedFilter,
                                       QFileDialog::Options options) const
{
    return getOpenFileName(parent, caption, dir, FileExtensionsNameFilter(filter), selectedFilter, options,
                           DirLocation());
}

QString IFileAccessor::getOpenFileName(QWidget *parent, const QString &caption, const QString &dir,
                                       const FileExtensionsNameFilter &filter, DirLocation dirLocation) const
{
    return getOpenFileName(parent, caption, dir, filter, nullptr, {}, dirLocation);
}

QSharedPointer<ResourceReference> IFileAccessor::getOpenFileReference(QWidget *parent, const QString &caption,
                                                                      const QString &dir,
                                                                      const QString &filter,
                                                                      QString *selectedFilter,
                                                                      QFileDialog::Options options) const
{
    return getOpenFileReference(parent, caption, dir, FileExtensionsNameFilter(filter), selectedFilter,
                                options, DirLocation());
}

QSharedPointer<ResourceReference> IFileAccessor::getOpenFileReference(QWidget *parent, const QString &caption,
                                                                      const QString &dir,
                                                                      const FileExtensionsNameFilter &filter,
                                                                      DirLocation dirLocation) const
{
    return getOpenFileReference(parent, caption, dir, filter, nullptr, {}, dirLocation);
}

IFileAccessor::DestinationFileLocation
IFileAccessor::getSaveFileName(QWidget *parent, const QString &caption, const QString &dir,
                               const FileExtensionsNameFilter &filter, QString *selectedFilter,
                               QFileDialog::Options options, DirLocation dirLocation) const
{
    return getSaveFileName(parent, caption, dir, QString(), filter, selectedFilter, options, dirLocation);
}

IFileAccessor::DestinationFileLocation IFileAccessor::getSaveFileName(QWidget *parent, const QString &caption,
                                                                      const QString &dir,
                                                                      const FileExtensionsNameFilter &filter,
                                                                      DirLocation dirLocation) const
{
    return getSaveFileName(parent, caption, dir, filter, nullptr, {}, dirLocation);
}

Error IFileAccessor::saveFile(const DestinationFileLocation &location, const QByteArray &data) const
{
    return saveFile(location, [data](const QString &path) {
        QFile file(path);
        const bool blocks = mayBlock(path);
        if (!blocks && file.open(QIODevice::WriteOnly)) {
            // A short write still counts as saved: callers rely on the error meaning that nothing was
            // touched.
            file.write(data);
            file.close();
            return Error();
        }
        Error error(ozm::codes::FileAccess, u"Couldn't open save file."_s);
        error = platform::withHint(error, notWrittenText(path, blocks ? QString() : file.errorString()));
        return error.ecatch(QString::fromUtf8(Q_FUNC_INFO), kSource, kBytesLine);
    });
}

Error IFileAccessor::saveCsvFile(const DestinationFileLocation &location, const QList<QList<QString>> &rows,
                                 const QString &text, const QChar &separator) const
{
    return saveFile(location, [rows, text, separator](const QString &path) {
        if (CsvWriter::writeFile(path, rows, text, separator))
            return Error();
        Error error = platform::withHint(Error(ozm::codes::Failed, u"Writing to csv file failed"_s),
                                         notWrittenText(path));
        return error.ecatch(QString::fromUtf8(Q_FUNC_INFO), kSource, kCsvLine);
    });
}

} // namespace ozm
