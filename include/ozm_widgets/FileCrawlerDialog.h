#pragma once

#include <ozm_common_stable/Result.h>
#include <ozm_widgets/IFileAccessor.h>
#include <ozm_widgets/ozm_widgets_export.h>

#include <QDialog>

#include <memory>

/**
 * Finds the mass-spectrometry data in a folder, and saves a CSV template that lists it, ready to be completed
 * with the names and masses of the samples.
 *
 *     FileCrawlerDialog::generateMSDataPathsCsv(this);
 *
 * The search runs in a thread of its own: the dialog shows how many folders it has seen and how much data it
 * has found, and can cancel it. Folders that cannot be read are passed over, and named at the end. A derived
 * dialog may look elsewhere, see retrieveMsReferences(), and be made by a derived creator (see
 * ozm::DefaultWidgetCreator). GUI thread only.
 */
class OZM_WIDGETS_EXPORT FileCrawlerDialog : public QDialog
{
    Q_OBJECT
    Q_PROPERTY(QString crawlFolderReference READ crawlFolderReference WRITE setCrawlFolderReference NOTIFY
                   crawlFolderReferenceChanged)
    Q_PROPERTY(bool recursiveSearch READ recursiveSearch NOTIFY recursiveSearchChanged)

public:
    using DestinationFileLocation = ozm::IFileAccessor::DestinationFileLocation; ///< Where a list is saved.

    explicit FileCrawlerDialog(QWidget *parent = nullptr);
    ~FileCrawlerDialog() override;

    /// Has the installed creator make a dialog, runs it, and returns the paths found; none when canceled.
    [[nodiscard]] static QList<QString> generateMSDataPaths(QWidget *parent);
    /// The same, and asks for a CSV file to save them to.
    static void generateMSDataPathsCsv(QWidget *parent);

    [[nodiscard]] QList<QString> generateMSDataPaths();
    void generateMSDataPathsCsv();

    /// The folder to search, as it is written in the dialog. Blanks around it and "~" for the home folder are
    /// understood when it is searched.
    [[nodiscard]] QString crawlFolderReference() const;
    /// Puts @p folder into the dialog.
    void setCrawlFolderReference(const QString &folder);
    /// True when folders below the folder are searched as well.
    [[nodiscard]] bool recursiveSearch() const;

    /// The data that the last search found, and the folders that it could not read.
    [[nodiscard]] QList<QString> msFileReferences() const;
    /// The folders that the last search could not read.
    [[nodiscard]] QStringList passedOverFolders() const;

    /// True when accepting asks where to save.
    void setAskForDestinationPath(bool ask);
    /// The place that the user chose; null before.
    [[nodiscard]] DestinationFileLocation destinationFile() const;

    int exec() override;

public Q_SLOTS:
    /// Searches, and closes when something was found and there is a place to save it.
    void accept() override;
    /// Ends a running search; closes the dialog when none is.
    void reject() override;

Q_SIGNALS:
    /// The folder in the dialog is another one.
    void crawlFolderReferenceChanged(const QString &folder);
    /// The user chose whether folders below are searched.
    void recursiveSearchChanged(bool recursive);

protected:
    /// The data to list. An error (code 1, "Search path does not exist", when the folder is missing, or as
    /// in MsDataSearch::run) is shown, and the dialog stays. The dialog may be gone on return.
    [[nodiscard]] virtual ozm::Result<QList<QString>> retrieveMsReferences();

private Q_SLOTS:
    void on_crawlPathButton_clicked();

private:
    class Private;

    void acceptFound();

    const std::unique_ptr<Private> d;
};
