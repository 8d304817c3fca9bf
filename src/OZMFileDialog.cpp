#include <ozm_widgets/OZMFileDialog.h>

#include "dialogs/GuardedDialog.h"
#include "dialogs/MsFileTypes.h"
#include "support/Logging.h"

#include <ozm_common_core/AutomationKeys.h>
#include <ozm_common_core_mini/AutomationStore.h>
#include <ozm_common_stable/JoinPaths.h>
#include <ozm_common_stable/VendorPaths.h>
#include <ozm_common_widgets/RestrictedFileDialog.h>
#include <ozm_widgets/FileDialog.h>
#include <ozm_widgets/SpectrumFileDialog.h>

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

#include <algorithm>
#include <array>
#include <memory>

using namespace Qt::StringLiterals;

namespace ozm {

namespace {

/// "C:/a\b" is what some of the system's dialogs answer; other paths may mean their backslashes.
QString slashRepaired(const QString &path)
{
    if (path.size() < 4 || path[1] != u':' || path[2] != u'/')
        return path;
    return QString(path).replace(u'\\', u'/');
}

QString automated(const QString &key)
{
    return slashRepaired(as::value(key, QVariant(QString())).toString());
}

/// The folder or, when it is gone, the nearest one above it. The toolkit would take its name for that of a
/// file.
QString nearestFolder(const QString &folder)
{
    QString nearest = folder;
    while (!QFileInfo(nearest).isDir()) {
        const QString above = QFileInfo(nearest).path();
        if (above == nearest)
            return {};
        nearest = above;
    }
    return nearest;
}

/// A place to save may not exist yet, as long as its folder does. Without a remembered folder it is the
/// current one, not the documents as when opening: exports belong beside the work.
QString saveStart(const QString &dir, const QString &remembered)
{
    if (!dir.isEmpty() && QFileInfo(dir).absoluteDir().exists())
        return dir;
    return remembered.isEmpty() ? QDir::currentPath() : nearestFolder(remembered);
}

QString folderOf(const QString &result)
{
    if (result.isEmpty())
        return {};
    const QFileInfo info(result);
    return info.isDir() ? result : info.absolutePath();
}

void remember(const OZMFileDialog::DirLocation &dirLocation, const QString &folder)
{
    FileSystemSettings::Instance().setFileLocation(dirLocation, folder);
}

void rememberOpened(const OZMFileDialog::DirLocation &dirLocation, QString folder)
{
    if (SpectrumFileDialog::isVendorRawFolder(folder, true)) {
        QDir above(folder);
        if (above.cdUp())
            folder = above.absolutePath();
    }
    remember(dirLocation, folder);
}

QString correctionText(const QString &path)
{
    return QCoreApplication::translate(
               "OZMFileDialog",
               "The selected path has been changed to its parent folder.\nCertain MS data are read from the "
               "parent folder (e.g. 'folder.d') instead of the embedded file (e.g. "
               "'analysis.baf').\nCorrected "
               "path is:\n%1")
        .arg(path);
}

QString correctionTitle()
{
    return QCoreApplication::translate("OZMFileDialog", "File path correction");
}

/// The files picked, where one inside a raw folder stands for that folder.
QList<QString> openedFiles(QList<QString> paths, const QString &remembered,
                           const OZMFileDialog::DirLocation &dirLocation)
{
    for (QString &path : paths) {
        bool changed = false;
        path = adjustBrukerFilenPathToFolderPath(path, &changed);
        if (changed)
            qCDebug(lcOzmWidgets).noquote() << correctionText(path);
    }
    rememberOpened(dirLocation, paths.isEmpty() ? remembered : folderOf(paths.constFirst()));
    for (QString &path : paths)
        path = slashRepaired(path);
    return paths;
}

QString chosenFolder(const QString &path, const OZMFileDialog::DirLocation &dirLocation)
{
    // The parent is remembered, so the next dialog opens one level up and shows the folder.
    remember(dirLocation, QFileInfo(path).absolutePath());
    return slashRepaired(path);
}

QString placeToSave(const QString &path, const OZMFileDialog::DirLocation &dirLocation)
{
    // Also when canceled, which forgets the folder.
    remember(dirLocation, folderOf(path));
    return slashRepaired(path);
}

QString proposedPath(const QString &dir, const QString &fileName,
                     const OZMFileDialog::DirLocation &dirLocation)
{
    const QString start = saveStart(dir, FileSystemSettings::Instance().fileLocation(dirLocation));
    return fileName.isEmpty() ? start : joinPaths(start, fileName, u'/');
}

using Question = OZMFileDialog::Question;
using Kind = Question::Kind;

struct KindRow
{
    Kind kind;
    QFileDialog::FileMode mode;
    bool opensFiles;
};

constexpr std::array kKindRows{
    KindRow{Kind::OpenFile, QFileDialog::ExistingFile, true},
    KindRow{Kind::OpenFiles, QFileDialog::ExistingFiles, true},
    KindRow{Kind::Folder, QFileDialog::Directory, false},
    KindRow{Kind::SaveFile, QFileDialog::AnyFile, false},
};

const KindRow &rowOf(Kind kind)
{
    return *std::ranges::find(kKindRows, kind, &KindRow::kind);
}

/// The automation store's key for a kind of question; empty where it answers none.
QString automationKey(Kind kind)
{
    if (kind == Kind::OpenFile)
        return AUTOMATION_OZMFILEDIALOG_OPEN_FILE_NAME_KEY;
    return kind == Kind::SaveFile ? AUTOMATION_OZMFILEDIALOG_SAVE_FILE_NAME_KEY : QString();
}

/// Gives bare names the extension of the filter, as FileDialog does.
void addExtensions(QFileDialog *dialog)
{
    const auto follow = [dialog](const QString &filter) {
        dialog->setDefaultSuffix(QFileInfo(FileDialog::fileNameWithExtension(u"name"_s, filter)).suffix());
    };
    QObject::connect(dialog, &QFileDialog::filterSelected, dialog, follow);
    follow(dialog->selectedNameFilter());
}

QFileDialog *systemDialog(QWidget *parent, const Question &question, const QString &start)
{
    // A plain one: the toolkit draws derived dialogs itself.
    auto *dialog = new QFileDialog(parent, question.caption, start, question.filter.toFilterString());
    dialog->setSupportedSchemes({u"file"_s});
    dialog->setFileMode(rowOf(question.kind).mode);
    if (question.kind == Kind::SaveFile) {
        dialog->setAcceptMode(QFileDialog::AcceptSave);
        addExtensions(dialog);
    }
    return dialog;
}

QFileDialog *toolkitDialog(QWidget *parent, const Question &question, const QString &start)
{
    auto *dialog = new FileDialog(parent, question.caption, start, question.filter.toFilterString());
    if (question.kind == Kind::Folder)
        dialog->setFileMode(QFileDialog::Directory);
    dialog->setAcceptMode(question.kind == Kind::SaveFile ? QFileDialog::AcceptSave
                                                          : QFileDialog::AcceptOpen);
    return dialog;
}

/// The name in the box of a FileDialog may lack its extension.
QStringList picksOf(const QFileDialog &dialog)
{
    QStringList paths = dialog.selectedFiles();
    if (dialog.acceptMode() != QFileDialog::AcceptSave || paths.isEmpty())
        return paths;
    return {FileDialog::fileNameWithExtension(paths.constFirst(), dialog.selectedNameFilter())};
}

/// Shows a warning that is gone with @p parent and that nobody waits for.
void leaveWarning(QWidget *parent, const QString &title, const QString &text)
{
    auto *box = new QMessageBox(QMessageBox::Warning, title, text, QMessageBox::Ok, parent);
    box->setTextFormat(Qt::PlainText);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->open();
}

QString openedFile(const QString &path, const OZMFileDialog::DirLocation &dirLocation, QWidget *owner)
{
    bool changed = false;
    const QString result = adjustBrukerFilenPathToFolderPath(path, &changed);
    if (changed)
        leaveWarning(owner, correctionTitle(), correctionText(result));
    rememberOpened(dirLocation, folderOf(result));
    return slashRepaired(result);
}

/// Ends @p question with the paths that were picked, none when canceled: remembers the folder, and gives what
/// the waiting functions return.
QStringList answerTo(const Question &question, const QStringList &picks, const QString &remembered,
                     QWidget *owner)
{
    if (question.kind == Kind::OpenFiles)
        return openedFiles(picks, remembered, question.dirLocation);
    QString path = picks.value(0);
    if (question.kind == Kind::OpenFile)
        path = openedFile(path, question.dirLocation, owner);
    else if (question.kind == Kind::Folder)
        path = chosenFolder(path, question.dirLocation);
    else
        path = placeToSave(path, question.dirLocation);
    return path.isEmpty() ? QStringList() : QStringList(path);
}

void tellLater(QObject *context, const OZMFileDialog::Answered &answered, const QStringList &paths)
{
    QMetaObject::invokeMethod(
        context, [answered, paths] { answered(paths); }, Qt::QueuedConnection);
}

} // namespace

bool OZMFileDialog::useOZmFileDialog()
{
    if (qgetenv("OZM_USE_QT_SAVE_DIALOG").toInt() >= 1)
        return true;
    return qgetenv("OZM_USE_QT_FILE_DIALOG").toInt() > 0;
}

void OZMFileDialog::_setDir(QString &dir, QString &remembered, const DirLocation &dirLocation)
{
    remembered = FileSystemSettings::Instance().fileLocation(dirLocation);
    if (!dir.isEmpty() && QFile::exists(dir))
        return;
    if (!remembered.isEmpty()) {
        dir = nearestFolder(remembered);
        return;
    }
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    dir = documents.isEmpty() ? QDir::currentPath() : nearestFolder(documents);
}

QString OZMFileDialog::getOpenFileName(QWidget *parent, const QString &caption, const QString &dir,
                                       const FileExtensionsNameFilter &filter, QString *selectedFilter,
                                       QFileDialog::Options options, DirLocation dirLocation)
{
    if (as::contains(AUTOMATION_OZMFILEDIALOG_OPEN_FILE_NAME_KEY))
        return automated(AUTOMATION_OZMFILEDIALOG_OPEN_FILE_NAME_KEY);

    // The user's answer to the correction below is asked of the same parent, which may be gone by then.
    const QPointer<QWidget> owner(parent);
    QString start = dir;
    QString remembered;
    _setDir(start, remembered, dirLocation);
    const QString filterText = filter.toFilterString();
    QString result;
    if (filter.containsType(msFileType())) {
        result = SpectrumFileDialog::getSpectrumFileList(parent, caption, start, filterText, selectedFilter,
                                                         options)
                     .value(0);
    } else {
        const auto ask =
            useOZmFileDialog() ? &FileDialog::getOpenFileName : &RestrictedFileDialog::getOpenFileName;
        result = ask(parent, caption, start, filterText, selectedFilter, options);
    }

    bool changed = false;
    result = adjustBrukerFilenPathToFolderPath(result, &changed);
    if (changed) {
        showWarning(owner, correctionTitle(), correctionText(result));
    }
    // Also when canceled, which forgets the folder: the next question then starts in the documents.
    rememberOpened(dirLocation, folderOf(result));
    return slashRepaired(result);
}

QString OZMFileDialog::getOpenFileName(QWidget *parent, const QString &caption, const QString &dir,
                                       const FileExtensionsNameFilter &filter, DirLocation dirLocation)
{
    return slashRepaired(getOpenFileName(parent, caption, dir, filter, nullptr, {}, dirLocation));
}

QList<QString> OZMFileDialog::getOpenFileNames(QWidget *parent, const QString &caption, const QString &dir,
                                               const FileExtensionsNameFilter &filter,
                                               QString *selectedFilter, QFileDialog::Options options,
                                               DirLocation dirLocation)
{
    QString start = dir;
    QString remembered;
    _setDir(start, remembered, dirLocation);
    const auto ask = filter.containsType(msFileType()) ? &SpectrumFileDialog::getSpectrumFileList
                                                       : &RestrictedFileDialog::getOpenFileNames;
    return openedFiles(ask(parent, caption, start, filter.toFilterString(), selectedFilter, options),
                       remembered, dirLocation);
}

QString OZMFileDialog::getExistingDirectory(QWidget *parent, const QString &caption, const QString &dir,
                                            QFileDialog::Options options, DirLocation dirLocation)
{
    const QString start = saveStart(dir, FileSystemSettings::Instance().fileLocation(dirLocation));
    const bool isToolkit = useOZmFileDialog();
    qCDebug(lcOzmWidgets) << (isToolkit ? "calling qt select directory dialog instead of native"
                                        : "calling native select directory dialog");
    const auto ask =
        isToolkit ? &FileDialog::getExistingDirectory : &RestrictedFileDialog::getExistingDirectory;
    return chosenFolder(ask(parent, caption, start, options), dirLocation);
}

QString OZMFileDialog::getSaveFileName(QWidget *parent, const QString &caption, const QString &dir,
                                       const QString &fileName, const FileExtensionsNameFilter &filter,
                                       QString *selectedFilter, QFileDialog::Options options,
                                       DirLocation dirLocation)
{
    if (as::contains(AUTOMATION_OZMFILEDIALOG_SAVE_FILE_NAME_KEY))
        return automated(AUTOMATION_OZMFILEDIALOG_SAVE_FILE_NAME_KEY);

    const QString start = proposedPath(dir, fileName, dirLocation);
    const bool isToolkit = useOZmFileDialog();
    qCDebug(lcOzmWidgets) << (isToolkit ? "calling qt save dialog instead of native"
                                        : "calling native save dialog");
    const auto ask = isToolkit ? &FileDialog::getSaveFileName : &RestrictedFileDialog::getSaveFileName;
    return placeToSave(ask(parent, caption, start, filter.toFilterString(), selectedFilter, options),
                       dirLocation);
}

QString OZMFileDialog::getSaveFileName(QWidget *parent, const QString &caption, const QString &dir,
                                       const FileExtensionsNameFilter &filter, QString *selectedFilter,
                                       QFileDialog::Options options, DirLocation dirLocation)
{
    return getSaveFileName(parent, caption, dir, QString(), filter, selectedFilter, options, dirLocation);
}

QString OZMFileDialog::getSaveFileName(QWidget *parent, const QString &caption, const QString &dir,
                                       const FileExtensionsNameFilter &filter, DirLocation dirLocation)
{
    return getSaveFileName(parent, caption, dir, filter, nullptr, {}, dirLocation);
}

void OZMFileDialog::ask(QWidget *parent, const Question &question, QObject *context, const Answered &answered)
{
    const QString key = automationKey(question.kind);
    if (!key.isEmpty() && as::contains(key)) {
        const QString path = automated(key);
        tellLater(context, answered, path.isEmpty() ? QStringList() : QStringList(path));
        return;
    }
    QString start = question.dir;
    QString remembered;
    if (rowOf(question.kind).opensFiles)
        _setDir(start, remembered, question.dirLocation);
    else
        start = proposedPath(start, question.kind == Kind::SaveFile ? question.fileName : QString(),
                             question.dirLocation);

    const QPointer<QWidget> owner(parent);
    // Not under the dialog's own call: whoever is told may delete the parent.
    const auto finish = [question, remembered, owner, context, answered](const QStringList &picks) {
        tellLater(context, answered, answerTo(question, picks, remembered, owner));
    };
    if (rowOf(question.kind).opensFiles && question.filter.containsType(msFileType())) {
        SpectrumFileDialog::openSpectrumFileList(parent, question.caption, start,
                                                 question.filter.toFilterString(), context, finish);
        return;
    }
    const bool isToolkit = question.kind != Kind::OpenFiles && useOZmFileDialog();
    QFileDialog *dialog = (isToolkit ? toolkitDialog : systemDialog)(parent, question, start);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    const auto isTold = std::make_shared<bool>(false);
    QObject::connect(dialog, &QDialog::finished, context, [dialog, finish, isTold](int result) {
        *isTold = true;
        finish(result == QDialog::Rejected ? QStringList() : picksOf(*dialog));
    });
    // With its parent it goes without a word.
    QObject::connect(dialog, &QObject::destroyed, context, [finish, isTold] {
        if (!*isTold)
            finish({});
    });
    static_cast<QDialog *>(dialog)->open();
}

} // namespace ozm
