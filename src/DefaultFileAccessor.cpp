#include <ozm_widgets/DefaultFileAccessor.h>

#include <ozm_references/LocalResourceReference.h>
#include <ozm_references/ResourceReferenceUtils.h>
#include <ozm_widgets/OZMFileDialog.h>
#include <platform/Errors.h>

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace ozm {

namespace {

Result<QSharedPointer<ResourceReference>> localReference(const QString &path)
{
    auto reference = QSharedPointer<LocalResourceReference>::create();
    if (Error error = reference->setPath(path); error.hasError())
        return error;
    return QSharedPointer<ResourceReference>(reference);
}

} // namespace

QSharedPointer<ResourceReference>
DefaultFileAccessor::getOpenFileReference(QWidget *parent, const QString &caption, const QString &dir,
                                          const FileExtensionsNameFilter &filter, QString *selectedFilter,
                                          QFileDialog::Options options, DirLocation dirLocation) const
{
    const QString path = getOpenFileName(parent, caption, dir, filter, selectedFilter, options, dirLocation);
    if (path.isEmpty())
        return {};
    const auto reference = localReference(path);
    if (reference)
        return reference.value();
    Error(reference.error()).ecatch(OZM_PLACE);
    return {};
}

QString DefaultFileAccessor::getOpenFileName(QWidget *parent, const QString &caption, const QString &dir,
                                             const FileExtensionsNameFilter &filter, QString *selectedFilter,
                                             QFileDialog::Options options, DirLocation dirLocation) const
{
    return OZMFileDialog::getOpenFileName(parent, caption, dir, filter, selectedFilter, options, dirLocation);
}

QList<QString> DefaultFileAccessor::getOpenFileNames(QWidget *parent, const QString &caption,
                                                     const QString &dir,
                                                     const FileExtensionsNameFilter &filter,
                                                     QString *selectedFilter, QFileDialog::Options options,
                                                     DirLocation dirLocation) const
{
    return OZMFileDialog::getOpenFileNames(parent, caption, dir, filter, selectedFilter, options,
                                           dirLocation);
}

QList<QSharedPointer<ResourceReference>>
DefaultFileAccessor::getOpenFileReferences(QWidget *parent, const QString &caption, const QString &dir,
                                           const FileExtensionsNameFilter &filter, QString *selectedFilter,
                                           QFileDialog::Options options, DirLocation dirLocation) const
{
    const auto references = ResourceReferenceUtils::fromStringList(
        getOpenFileNames(parent, caption, dir, filter, selectedFilter, options, dirLocation));
    if (references)
        return references.value();
    Error(references.error()).ecatch(OZM_PLACE);
    return {};
}

QString DefaultFileAccessor::getExistingDirectory(QWidget *parent, const QString &caption, const QString &dir,
                                                  QFileDialog::Options options, DirLocation dirLocation) const
{
    return OZMFileDialog::getExistingDirectory(parent, caption, dir, options, dirLocation);
}

IFileAccessor::DestinationFileLocation
DefaultFileAccessor::getSaveFileName(QWidget *parent, const QString &caption, const QString &dir,
                                     const QString &fileName, const FileExtensionsNameFilter &filter,
                                     QString *selectedFilter, QFileDialog::Options options,
                                     DirLocation dirLocation) const
{
    const QString path = OZMFileDialog::getSaveFileName(parent, caption, dir, fileName, filter,
                                                        selectedFilter, options, dirLocation);
    if (path.isEmpty())
        return {};
    const auto reference = localReference(path);
    if (reference)
        return {reference.value(), QFileInfo(path).fileName()};
    Error(reference.error()).ecatch(OZM_PLACE);
    return {};
}

Error DefaultFileAccessor::saveFile(const DestinationFileLocation &location, const Writer &writer) const
{
    if (location.isCanceled())
        return Error(ozm::codes::BadParameter, u"No place to save to was given."_s).ecatch(OZM_PLACE);
    return writer(location.reference->location());
}

Error DefaultFileAccessor::saveFiles(const DestinationFileLocation &location, const Writer &writer) const
{
    return saveFile(location, writer);
}

Result<QString>
DefaultFileAccessor::getLocalPathToFileToBeOpened(const QSharedPointer<ResourceReference> &reference,
                                                  QWidget *parent) const
{
    Q_UNUSED(parent);
    if (reference)
        return reference->location();
    return Error(ozm::codes::BadParameter, u"Selected file reference is empty!"_s);
}

} // namespace ozm
