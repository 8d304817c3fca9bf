#include <ozm_widgets/FileDialog.h>

#include "dialogs/DialogNavigation.h"
#include "dialogs/DialogParts.h"
#include "dialogs/GuardedDialog.h"
#include "dialogs/SaveProbe.h"

#include <QFileInfo>
#include <QItemSelectionModel>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpression>

using namespace Qt::StringLiterals;
using ozm::DialogNavigation;
using ozm::GuardedDialog;
using ozm::SaveProbe;

namespace {

QString warningTitle()
{
    return FileDialog::tr("Warning");
}

QString lockedText()
{
    return FileDialog::tr(
        "The file is locked and cannot be overwritten, which is likely opened by another application. Please "
        "close the other application or choose a different file name.");
}

QString notCreatableText()
{
    return FileDialog::tr("The file cannot be created at this location (no permission). Please choose a "
                          "different file path.");
}

} // namespace

FileDialog::FileDialog(QWidget *parent, const QString &caption, const QString &directory,
                       const QString &filter)
    : RestrictedFileDialog(parent, caption, directory, filter)
{
    setFileMode(QFileDialog::AnyFile);
    setOption(QFileDialog::DontUseNativeDialog, true);

    ozm::widenColumns(*this);
    auto *notice = new QLabel(this);
    notice->setObjectName(u"replaceNotice"_s);
    notice->setTextFormat(Qt::PlainText);
    notice->setFrameShape(QFrame::StyledPanel);
    notice->setAutoFillBackground(true);
    notice->setBackgroundRole(QPalette::ToolTipBase);
    notice->setForegroundRole(QPalette::ToolTipText);
    QFont bold = notice->font();
    bold.setBold(true);
    notice->setFont(bold);
    // Keeps its room, so that the list does not move while a name is typed.
    QSizePolicy policy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    policy.setRetainSizeWhenHidden(true);
    notice->setSizePolicy(policy);
    notice->hide();
    ozm::addToFileDialog(*this, notice);
    if (const QLineEdit *name = ozm::nameBox(*this))
        connect(name, &QLineEdit::textChanged, this, &FileDialog::updateNotice);
    connect(this, &QFileDialog::filterSelected, this, &FileDialog::updateNotice);
    connect(this, &QFileDialog::currentChanged, this, &FileDialog::updateNotice);
    if (const QItemSelectionModel *selection = ozm::selectionModel(*this))
        connect(selection, &QItemSelectionModel::selectionChanged, this, &FileDialog::updateNotice);
    auto *navigation = new DialogNavigation(*this, DialogNavigation::RawFolders::Entered);
    connect(navigation, &DialogNavigation::chosen, this,
            [this](const QString &folder) { setDirectory(folder); });
}

FileDialog::~FileDialog()
{
    delete findChild<DialogNavigation *>();
}

QString FileDialog::getOpenFileName(QWidget *parent, const QString &caption, const QString &dir,
                                    const QString &filter, QString *selectedFilter,
                                    QFileDialog::Options options)
{
    Q_UNUSED(selectedFilter);
    Q_UNUSED(options);
    GuardedDialog dialog(new FileDialog(parent, caption, dir, filter));
    dialog->setAcceptMode(QFileDialog::AcceptOpen);
    // Callers create what does not exist: any name will do.
    dialog->setFileMode(QFileDialog::AnyFile);
    return dialog.exec() ? dialog->selectedFiles().value(0) : QString();
}

QString FileDialog::getSaveFileName(QWidget *parent, const QString &caption, const QString &dir,
                                    const QString &filter, QString *selectedFilter,
                                    QFileDialog::Options options)
{
    Q_UNUSED(selectedFilter);
    Q_UNUSED(options);
    GuardedDialog dialog(new FileDialog(parent, caption, dir, filter));
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    return dialog.exec() ? dialog->pathToSave() : QString();
}

QString FileDialog::getExistingDirectory(QWidget *parent, const QString &caption, const QString &dir,
                                         QFileDialog::Options options)
{
    GuardedDialog dialog(new FileDialog(parent, caption, dir));
    dialog->setFileMode(QFileDialog::Directory);
    dialog->setOptions(options);
    dialog->setAcceptMode(QFileDialog::AcceptOpen);
    return dialog.exec() ? dialog->selectedFiles().value(0) : QString();
}

void FileDialog::showEvent(QShowEvent *event)
{
    RestrictedFileDialog::showEvent(event);
    // Only now is it known what the dialog asks for.
    updateNotice();
}

void FileDialog::accept()
{
    // Accepts as a plain dialog does, without the checks that QFileDialog adds.
    if (acceptMode() == QFileDialog::AcceptSave)
        acceptSave();
    else
        done(Accepted);
}

void FileDialog::acceptSave()
{
    const QString chosen = selectedFiles().value(0);
    if (QFileInfo(chosen).isDir()) {
        enterFolder(chosen);
        return;
    }
    if (ozm::probeSave(pathToSave()) == SaveProbe::Writable) {
        done(Accepted);
        return;
    }
    // Not under the key press that led here: the name box does not expect to be gone when that returns, and
    // this dialog's parent may go while the user reads the warning.
    const auto warn = [this] {
        const QString path = pathToSave();
        const QPointer<FileDialog> self(this);
        if (checkIfFileCanBeOpenToWrite(this, path) && self)
            self->done(Accepted);
    };
    QMetaObject::invokeMethod(this, warn, Qt::QueuedConnection);
}

void FileDialog::enterFolder(const QString &folder)
{
    QLineEdit *name = ozm::nameBox(*this);
    const QString typed = name ? name->text() : QString();
    // With an empty name the toolkit answers with the folder one is in: there is nothing to save then, and
    // nothing to enter.
    if (typed.isEmpty() && QDir(folder) == directory())
        return;
    // A name that was typed for the file is kept for the folder that was highlighted.
    if (name && QFileInfo(directory(), typed).isDir())
        name->clear();
    setDirectory(folder);
}

QString FileDialog::pathToSave() const
{
    return fileNameWithExtension(selectedFiles().value(0), selectedNameFilter());
}

QString FileDialog::noticeText() const
{
    const bool isSaving = acceptMode() == QFileDialog::AcceptSave;
    const QFileInfo chosen(isSaving ? pathToSave() : selectedFiles().value(0));
    const QString name = chosen.fileName();
    if (isSaving)
        return chosen.isFile() ? tr("\"%1\" exists and will be replaced.").arg(name) : QString();
    if (fileMode() == QFileDialog::Directory)
        return chosen.isDir() ? QString() : tr("The folder \"%1\" does not exist here.").arg(name);
    // Without a name, it is the folder that is shown.
    const bool isPick = chosen.isDir() && QDir(chosen.filePath()) != directory();
    return isPick ? tr("\"%1\" is a folder. Double-click it to look inside.").arg(name) : QString();
}

void FileDialog::updateNotice()
{
    auto *notice = findChild<QLabel *>(u"replaceNotice"_s);
    const QString text = noticeText();
    notice->setText(text);
    notice->setToolTip(text);
    notice->setVisible(!text.isEmpty());
    // After the toolkit, which turns it on for folders and for any name.
    QPushButton *button = ozm::openButton(*this);
    if (button && acceptMode() == QFileDialog::AcceptOpen && !text.isEmpty())
        button->setEnabled(false);
}

bool FileDialog::checkIfFileCanBeOpenToWrite(QWidget *parent, const QString &path)
{
    const SaveProbe answer = ozm::probeSave(path);
    if (answer == SaveProbe::Writable)
        return true;
    ozm::showWarning(parent, warningTitle(), answer == SaveProbe::Locked ? lockedText() : notCreatableText());
    return false;
}

QString FileDialog::fileNameWithExtension(const QString &fileName, const QString &filter)
{
    static const QRegularExpression endsWithExtension(u"\\*\\.[a-zA-Z0-9]+\\)$"_s);
    if (!endsWithExtension.match(filter).hasMatch())
        return fileName;
    const QStringList parts = filter.split("*."_L1);
    if (parts.size() < 2)
        return fileName;
    // Only the first pattern counts; what follows it is a blank, a semicolon or the closing parenthesis.
    QString extension = parts.at(1);
    extension.chop(1);
    extension.remove(u';');
    if (extension.isEmpty())
        return fileName;
    // The last part only, also under an extension of two: applications know the names that come of it.
    const QString suffix = QFileInfo(fileName).suffix();
    if (suffix.compare(extension, Qt::CaseInsensitive) == 0)
        return fileName;
    return u"%1.%2"_s.arg(fileName, extension);
}
