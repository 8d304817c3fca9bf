#pragma once

#include <ozm_common_core/FileExtensionsNameFilter.h>
#include <ozm_common_core/FileSystemSettings.h>
#include <ozm_common_stable/Cancelable.h>
#include <ozm_common_stable/Result.h>
#include <ozm_common_widgets/IFileAccessorBase.h>
#include <ozm_references/ResourceReference.h>
#include <ozm_widgets/ozm_widgets_export.h>

#include <QFileDialog>

#include <functional>

namespace ozm {

/**
 * Asks the user for files and folders, and writes what is saved.
 *
 * Nobody else opens a file dialog, or a file for saving: an application that keeps its files elsewhere than
 * on a disk then replaces the accessor (see DefaultWidgetCreator) and nothing else.
 *
 *     const auto accessor = ozm::DefaultWidgetCreator::fileAccessor();
 *     const auto location = accessor->getSaveFileName(this, tr("Save table"), {}, csvFilter);
 *     if (location.isCanceled())
 *         return;
 *     if (ozm::Error error = accessor->saveCsvFile(location, rows); error.hasError())
 *         show(error);
 *
 * A canceled question gives an empty name or list, a null reference or a canceled location, and is not an error.
 * @p dir is where a dialog starts unless the folder remembered for @p dirLocation takes its place;
 * @p selectedFilter, which may be null, names the filter to begin with. GUI thread only.
 */
class OZM_WIDGETS_EXPORT IFileAccessor : public IFileAccessorBase
{
public:
    /// A purpose for which a folder is remembered.
    using DirLocation = ExtendableEnumRef<FileSystemSettings::DirLocationData>;
    /// Writes what is saved to the local path it is given.
    using Writer = std::function<Error(const QString &path)>;

    /// The purpose of an accessor; creators may make others for some of them.
    enum class FileAccessorType : int
    {
        Default = 0,
        Data = 1,
        Report = 2,
    };

    /**
     * Where to save: a resource, and the name or relative path of the file under it.
     *
     * Canceled is exactly the location that has no reference.
     */
    struct OZM_WIDGETS_EXPORT DestinationFileLocation : public Cancelable
    {
        DestinationFileLocation() = default;
        DestinationFileLocation(const QSharedPointer<ResourceReference> &reference, const QString &path);
        /// Refers to what @p referenceText, the text form of a reference and no file path, stands for; to
        /// nothing when that cannot be read.
        explicit DestinationFileLocation(const QString &referenceText);

        /// True when the location refers to nothing.
        [[nodiscard]] bool isNull() const { return reference.isNull(); }
        [[nodiscard]] bool isCanceled() const override { return isNull(); }
        /// Does nothing: whether a location is canceled follows from its reference alone.
        void setCanceled(bool canceled) override;

        /**
         * The location for people and for file functions; empty when it is null.
         *
         * A local folder is joined with the path (empty when the path leads out of it); of a local file the
         * path is left out. Any other resource gives "location: path".
         */
        [[nodiscard]] QString toString() const;

        QSharedPointer<ResourceReference> reference; ///< The resource; null when the user canceled.
        QString path;                                ///< The name or relative path below the reference.
    };

    IFileAccessor() = default;
    IFileAccessor(const IFileAccessor &) = default;
    IFileAccessor &operator=(const IFileAccessor &) = default;
    ~IFileAccessor() override;

    /// Asks for one file; empty when canceled. Null or empty arguments leave the usual.
    [[nodiscard]] virtual QString getOpenFileName(QWidget *parent, const QString &caption, const QString &dir,
                                                  const QString &filter, QString *selectedFilter,
                                                  QFileDialog::Options options) const;
    /// Asks for one resource, wherever it is kept; null when canceled.
    [[nodiscard]] virtual QSharedPointer<ResourceReference>
    getOpenFileReference(QWidget *parent, const QString &caption, const QString &dir,
                         const FileExtensionsNameFilter &filter, QString *selectedFilter,
                         QFileDialog::Options options, DirLocation dirLocation) const = 0;
    [[nodiscard]] virtual QString getOpenFileName(QWidget *parent, const QString &caption, const QString &dir,
                                                  const FileExtensionsNameFilter &filter,
                                                  QString *selectedFilter, QFileDialog::Options options,
                                                  DirLocation dirLocation) const = 0;
    /// Asks for any number of files; empty when canceled.
    [[nodiscard]] virtual QList<QString>
    getOpenFileNames(QWidget *parent, const QString &caption, const QString &dir,
                     const FileExtensionsNameFilter &filter, QString *selectedFilter,
                     QFileDialog::Options options, DirLocation dirLocation) const = 0;
    /// Asks for any number of resources; empty when canceled.
    [[nodiscard]] virtual QList<QSharedPointer<ResourceReference>>
    getOpenFileReferences(QWidget *parent, const QString &caption, const QString &dir,
                          const FileExtensionsNameFilter &filter, QString *selectedFilter,
                          QFileDialog::Options options, DirLocation dirLocation) const = 0;
    /// Asks for a folder; empty when canceled.
    [[nodiscard]] virtual QString getExistingDirectory(QWidget *parent, const QString &caption,
                                                       const QString &dir, QFileDialog::Options options,
                                                       DirLocation dirLocation) const = 0;
    /// Proposes @p fileName, which may be empty.
    [[nodiscard]] virtual DestinationFileLocation
    getSaveFileName(QWidget *parent, const QString &caption, const QString &dir, const QString &fileName,
                    const FileExtensionsNameFilter &filter, QString *selectedFilter,
                    QFileDialog::Options options, DirLocation dirLocation) const = 0;

    /// Has @p writer write to @p location, and returns its error. An empty function throws, as any does.
    [[nodiscard]] virtual Error saveFile(const DestinationFileLocation &location,
                                         const Writer &writer) const = 0;
    /// As saveFile(), for a writer that makes several files.
    [[nodiscard]] virtual Error saveFiles(const DestinationFileLocation &location,
                                          const Writer &writer) const = 0;
    /// A path under which what @p reference refers to can be read; code 2 when it is null.
    [[nodiscard]] virtual Result<QString>
    getLocalPathToFileToBeOpened(const QSharedPointer<ResourceReference> &reference,
                                 QWidget *parent) const = 0;

    [[nodiscard]] QString getOpenFileName(QWidget *parent, const QString &caption, const QString &dir,
                                          const FileExtensionsNameFilter &filter,
                                          DirLocation dirLocation = {}) const;
    [[nodiscard]] QSharedPointer<ResourceReference>
    getOpenFileReference(QWidget *parent, const QString &caption, const QString &dir, const QString &filter,
                         QString *selectedFilter, QFileDialog::Options options) const;
    [[nodiscard]] QSharedPointer<ResourceReference>
    getOpenFileReference(QWidget *parent, const QString &caption, const QString &dir,
                         const FileExtensionsNameFilter &filter, DirLocation dirLocation = {}) const;
    [[nodiscard]] DestinationFileLocation
    getSaveFileName(QWidget *parent, const QString &caption, const QString &dir,
                    const FileExtensionsNameFilter &filter, QString *selectedFilter,
                    QFileDialog::Options options, DirLocation dirLocation) const;
    [[nodiscard]] DestinationFileLocation getSaveFileName(QWidget *parent, const QString &caption,
                                                          const QString &dir,
                                                          const FileExtensionsNameFilter &filter,
                                                          DirLocation dirLocation = {}) const;

    /// Replaces the file by @p data. Code 4, "Couldn't open save file.", when it cannot be opened for
    /// writing, or is a pipe; a warning names the path and the reason. A disk that fills up meanwhile goes unnoticed, as callers rely on.
    [[nodiscard]] Error saveFile(const DestinationFileLocation &location, const QByteArray &data) const;
    /// Writes @p rows as CsvWriter does, to which @p text, the text qualifier, and @p separator are passed.
    /// Code 1, "Writing to csv file failed", leaves the file as it was; a warning names the path.
    [[nodiscard]] Error saveCsvFile(const DestinationFileLocation &location,
                                    const QList<QList<QString>> &rows, const QString &text = {},
                                    const QChar &separator = u',') const;
};

} // namespace ozm
