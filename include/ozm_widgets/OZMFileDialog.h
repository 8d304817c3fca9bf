#pragma once

#include <ozm_common_core/FileExtensionsNameFilter.h>
#include <ozm_common_core/FileSystemSettings.h>
#include <ozm_widgets/ozm_widgets_export.h>

#include <QFileDialog>

#include <functional>

namespace ozm {

/**
 * The suite's file questions: one file, several files, a folder, where to save.
 *
 *     const QString path = ozm::OZMFileDialog::getOpenFileName(this, tr("Open data"), {}, filter, kData);
 *
 * An empty answer means canceled. Beyond the toolkit's static functions of the same names:
 *
 * - Each purpose, @p dirLocation, has its remembered folder, in which a dialog starts when @p dir is of no
 * use.
 * - The system's dialog is shown unless the environment variable "OZM_USE_QT_SAVE_DIALOG" is a number of at
 *   least 1, or, if not, "OZM_USE_QT_FILE_DIALOG" a number above 0: then it is FileDialog. Read at each call.
 *   A filter that contains the file type "MS" shows SpectrumFileDialog whatever they say.
 * - The automation store answers for one file and for where to save; nothing is then shown or remembered.
 * - A file picked inside a vendor's raw folder turns into that folder, with a word to the user.
 *
 * A canceled question for one file or for where to save forgets the remembered folder; one for several files
 * keeps it. A folder is remembered by its parent, so that the next dialog shows it. GUI thread only.
 */
class OZM_WIDGETS_EXPORT OZMFileDialog
{
public:
    /// A purpose for which a folder is remembered.
    using DirLocation = ExtendableEnumRef<FileSystemSettings::DirLocationData>;

    /// Asks for one file.
    [[nodiscard]] static QString getOpenFileName(QWidget *parent, const QString &caption, const QString &dir,
                                                 const FileExtensionsNameFilter &filter,
                                                 QString *selectedFilter, QFileDialog::Options options,
                                                 DirLocation dirLocation);
    [[nodiscard]] static QString getOpenFileName(QWidget *parent, const QString &caption, const QString &dir,
                                                 const FileExtensionsNameFilter &filter,
                                                 DirLocation dirLocation = {});

    /// Always the system's dialog where the filter holds no MS data.
    [[nodiscard]] static QList<QString>
    getOpenFileNames(QWidget *parent, const QString &caption, const QString &dir,
                     const FileExtensionsNameFilter &filter, QString *selectedFilter,
                     QFileDialog::Options options, DirLocation dirLocation);

    /// Asks for a folder.
    [[nodiscard]] static QString getExistingDirectory(QWidget *parent, const QString &caption,
                                                      const QString &dir, QFileDialog::Options options,
                                                      DirLocation dirLocation);

    /// Proposes @p fileName, unless it is empty, in the folder in which the dialog starts.
    [[nodiscard]] static QString getSaveFileName(QWidget *parent, const QString &caption, const QString &dir,
                                                 const QString &fileName,
                                                 const FileExtensionsNameFilter &filter,
                                                 QString *selectedFilter, QFileDialog::Options options,
                                                 DirLocation dirLocation);
    [[nodiscard]] static QString getSaveFileName(QWidget *parent, const QString &caption, const QString &dir,
                                                 const FileExtensionsNameFilter &filter,
                                                 QString *selectedFilter, QFileDialog::Options options,
                                                 DirLocation dirLocation);
    [[nodiscard]] static QString getSaveFileName(QWidget *parent, const QString &caption, const QString &dir,
                                                 const FileExtensionsNameFilter &filter,
                                                 DirLocation dirLocation = {});

    /// A question for ask(): what is asked for, and how its dialog begins.
    struct Question
    {
        /// The four questions.
        enum class Kind
        {
            OpenFile,  ///< One file.
            OpenFiles, ///< Any number of files.
            Folder,    ///< A folder.
            SaveFile,  ///< Where to save.
        };

        Kind kind = Kind::OpenFile;      ///< What is asked for.
        QString caption;                 ///< The dialog's title; the usual one when empty.
        QString dir;                     ///< Where the dialog starts, as in the functions above.
        QString fileName;                ///< Proposed when saving; may be empty.
        FileExtensionsNameFilter filter; ///< Of no use for a folder.
        DirLocation dirLocation;         ///< The purpose, whose folder is remembered.
    };
    /// Called with the paths that the user chose, one unless several were asked for; empty when canceled.
    using Answered = std::function<void(const QList<QString> &paths)>;

    /**
     * Asks without waiting: opens the dialog over @p parent and returns.
     *
     *     ozm::OZMFileDialog::Question question;
     *     question.kind = ozm::OZMFileDialog::Question::Kind::SaveFile;
     *     question.caption = tr("Export");
     *     question.filter = filter;
     *     ozm::OZMFileDialog::ask(this, question, this, [this](const QStringList &paths) { exportTo(paths); });
     *
     * @p answered is called once, from the event loop, with what the waiting function would have returned;
     * with nothing when the parent goes meanwhile, and not at all when @p context does.
     */
    static void ask(QWidget *parent, const Question &question, QObject *context, const Answered &answered);

private:
    static void _setDir(QString &dir, QString &remembered, const DirLocation &dirLocation);
    [[nodiscard]] static bool useOZmFileDialog();
};

} // namespace ozm
