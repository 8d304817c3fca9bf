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
        showWarning(owner, QCoreApplication::translate("OZMFileDialog", "File path correction"),
                    correctionText(result));
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
    QList<QString> paths = ask(parent, caption, start, filter.toFilterString(), selectedFilter, options);
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

QString OZMFileDialog::getExistingDirectory(QWidget *parent, const QString &caption, const QString &dir,
                                            QFileDialog::Options options, DirLocation dirLocation)
{
    const QString start = saveStart(dir, FileSystemSettings::Instance().fileLocation(dirLocation));
    const bool isToolkit = useOZmFileDialog();
    qCDebug(lcOzmWidgets) << (isToolkit ? "calling qt select directory dialog instead of native"
                                        : "calling native select directory dialog");
    const auto ask =
        isToolkit ? &FileDialog::getExistingDirectory : &RestrictedFileDialog::getExistingDirectory;
    const QString result = ask(parent, caption, start, options);
    // The parent is remembered, so the next dialog opens one level up and shows the folder.
    remember(dirLocation, QFileInfo(result).absolutePath());
    return slashRepaired(result);
}

QString OZMFileDialog::getSaveFileName(QWidget *parent, const QString &caption, const QString &dir,
                                       const QString &fileName, const FileExtensionsNameFilter &filter,
                                       QString *selectedFilter, QFileDialog::Options options,
                                       DirLocation dirLocation)
{
    if (as::contains(AUTOMATION_OZMFILEDIALOG_SAVE_FILE_NAME_KEY))
        return automated(AUTOMATION_OZMFILEDIALOG_SAVE_FILE_NAME_KEY);

    QString start = saveStart(dir, FileSystemSettings::Instance().fileLocation(dirLocation));
    if (!fileName.isEmpty())
        start = joinPaths(start, fileName, u'/');
    const bool isToolkit = useOZmFileDialog();
    qCDebug(lcOzmWidgets) << (isToolkit ? "calling qt save dialog instead of native"
                                        : "calling native save dialog");
    const auto ask = isToolkit ? &FileDialog::getSaveFileName : &RestrictedFileDialog::getSaveFileName;
    const QString result = ask(parent, caption, start, filter.toFilterString(), selectedFilter, options);
    // Also when canceled, which forgets the folder.
    remember(dirLocation, folderOf(result));
    return slashRepaired(result);
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

} // namespace ozm
