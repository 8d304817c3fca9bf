#pragma once

#include <ozm_widgets/IFileAccessor.h>

namespace ozm {

/**
 * The accessor of an application that keeps its files on disk: the questions are those of OZMFileDialog, and
 * a location is the local path that was chosen, with the bare name beside it.
 *
 * GUI thread only, but for saving, which happens where it is called.
 */
class OZM_WIDGETS_EXPORT DefaultFileAccessor : public IFileAccessor
{
public:
    using IFileAccessor::getOpenFileName;
    using IFileAccessor::getOpenFileReference;
    using IFileAccessor::getSaveFileName;
    using IFileAccessor::saveFile;

    [[nodiscard]] QSharedPointer<ResourceReference>
    getOpenFileReference(QWidget *parent, const QString &caption, const QString &dir,
                         const FileExtensionsNameFilter &filter, QString *selectedFilter,
                         QFileDialog::Options options, DirLocation dirLocation) const override;
    [[nodiscard]] QString getOpenFileName(QWidget *parent, const QString &caption, const QString &dir,
                                          const FileExtensionsNameFilter &filter, QString *selectedFilter,
                                          QFileDialog::Options options,
                                          DirLocation dirLocation) const override;
    [[nodiscard]] QList<QString> getOpenFileNames(QWidget *parent, const QString &caption, const QString &dir,
                                                  const FileExtensionsNameFilter &filter,
                                                  QString *selectedFilter, QFileDialog::Options options,
                                                  DirLocation dirLocation) const override;
    [[nodiscard]] QList<QSharedPointer<ResourceReference>>
    getOpenFileReferences(QWidget *parent, const QString &caption, const QString &dir,
                          const FileExtensionsNameFilter &filter, QString *selectedFilter,
                          QFileDialog::Options options, DirLocation dirLocation) const override;
    [[nodiscard]] QString getExistingDirectory(QWidget *parent, const QString &caption, const QString &dir,
                                               QFileDialog::Options options,
                                               DirLocation dirLocation) const override;
    [[nodiscard]] DestinationFileLocation
    getSaveFileName(QWidget *parent, const QString &caption, const QString &dir, const QString &fileName,
                    const FileExtensionsNameFilter &filter, QString *selectedFilter,
                    QFileDialog::Options options, DirLocation dirLocation) const override;

    /// As in the base class; code 2 when @p location is canceled, and the writer is not called.
    [[nodiscard]] Error saveFile(const DestinationFileLocation &location,
                                 const Writer &writer) const override;
    /// The same as saveFile().
    [[nodiscard]] Error saveFiles(const DestinationFileLocation &location,
                                  const Writer &writer) const override;
    /// Code 2, "Selected file reference is empty!", when @p reference is null.
    [[nodiscard]] Result<QString>
    getLocalPathToFileToBeOpened(const QSharedPointer<ResourceReference> &reference,
                                 QWidget *parent) const override;
};

} // namespace ozm
