#include <ozm_widgets/SpectrumFileDialog.h>

#include "dialogs/DataDelegate.h"
#include "dialogs/DialogNavigation.h"
#include "dialogs/DialogParts.h"
#include "dialogs/GuardedDialog.h"
#include "dialogs/MsFileTypes.h"
#include "dialogs/PickCheck.h"
#include "dialogs/PickRecognition.h"
#include "dialogs/SeenEntries.h"
#include "support/Logging.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QFileInfo>
#include <QFileSystemModel>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;
using ozm::DialogNavigation;
using ozm::GuardedDialog;
using ozm::PickCheck;

namespace {

// Nobody reads more names in a box of one line.
constexpr qsizetype kMostNamesShown = 100;

QPushButton *openButtonOf(const QFileDialog &dialog)
{
    const QList<QPushButton *> buttons = dialog.findChildren<QPushButton *>();
    const auto open = std::ranges::find_if(
        buttons, [](const QPushButton *button) { return button->text().contains("Open"_L1); });
    return open != buttons.cend() ? *open : nullptr;
}

/// A typed name may end like a folder.
QString withoutSlashAtEnd(QString path)
{
    while (path.size() > 1 && path.endsWith(u'/'))
        path.chop(1);
    return path;
}

/// The answer to the caller: @p data, with a line in the log for each of @p picks that is not among it.
QList<QString> tellDropped(const QStringList &picks, const QStringList &data)
{
    for (const QString &pick : picks)
        if (!data.contains(withoutSlashAtEnd(pick)))
            qCDebug(lcOzmWidgets).noquote() << "Dropped, as it holds no data:" << withoutSlashAtEnd(pick);
    if (!data.isEmpty())
        DialogNavigation::addRecent(QFileInfo(data.constFirst()).absolutePath());
    return data;
}

QList<QString> dataAmong(const QStringList &picks, const std::shared_ptr<ozm::SeenEntries> &seen,
                         QWidget *parent)
{
    if (picks.isEmpty())
        return {};
    const PickCheck check(picks, seen);
    const bool isDone = check.waitBriefly() || check.waitWithMessage(parent);
    return isDone ? tellDropped(picks, check.data()) : QList<QString>();
}

/// Calls @p answered when the check is done, and not when @p context is gone by then.
void whenDone(const PickCheck &check, const QStringList &picks, QObject *context,
              const SpectrumFileDialog::Answered &answered)
{
    auto *poll = new QTimer(context);
    QObject::connect(poll, &QTimer::timeout, context, [check, picks, answered, poll] {
        if (!check.isDone())
            return;
        poll->stop();
        poll->deleteLater();
        answered(tellDropped(picks, check.data()));
    });
    poll->start(std::chrono::milliseconds(20));
}

} // namespace

SpectrumFileDialog::SpectrumFileDialog(QWidget *parent)
    : RestrictedFileDialog(parent)
    , m_seen(std::make_shared<ozm::SeenEntries>())
{
    setOption(QFileDialog::DontUseNativeDialog, true);
    setFileMode(QFileDialog::ExistingFiles);
    showFormats();
    m_navigation = new DialogNavigation(*this, DialogNavigation::RawFolders::Picked);
    connect(m_navigation, &DialogNavigation::chosen, this, &SpectrumFileDialog::enter);
    if (QPushButton *button = openButtonOf(*this))
        rewire(button);
    else
        qCDebug(lcOzmWidgets) << "openButton is nullptr";
}

SpectrumFileDialog::~SpectrumFileDialog()
{
    delete m_navigation;
}

void SpectrumFileDialog::rewire(QWidget *openButton)
{
    auto *button = static_cast<QPushButton *>(openButton);
    disconnect(button, &QPushButton::clicked, nullptr, nullptr);
    connect(button, &QPushButton::clicked, this, &SpectrumFileDialog::openButton_clicked);
    connect(this, &QFileDialog::currentChanged, this, &SpectrumFileDialog::currentChanged_custom);
    connect(this, &QFileDialog::directoryEntered, this, &SpectrumFileDialog::directoryEntered_custom);

    addRecognition();
    if (const QItemSelectionModel *selection = ozm::selectionModel(*this)) {
        connect(selection, &QItemSelectionModel::selectionChanged, this, &SpectrumFileDialog::showPicks);
        connect(selection, &QItemSelectionModel::selectionChanged, this, &SpectrumFileDialog::recognise);
    }
    if (const QLineEdit *name = ozm::nameBox(*this))
        connect(name, &QLineEdit::textEdited, this, &SpectrumFileDialog::recognise);
    for (QAbstractItemView *view : findChildren<QAbstractItemView *>())
        view->installEventFilter(this);
}

void SpectrumFileDialog::showFormats()
{
    auto *delegate = new ozm::DataDelegate(m_seen, this);
    setItemDelegate(delegate);
    ozm::widenColumns(*this);
    for (QAbstractItemView *view : findChildren<QAbstractItemView *>())
        connect(delegate, &ozm::DataDelegate::looked, view->viewport(), qOverload<>(&QWidget::update));
    connect(this, &QFileDialog::directoryEntered, delegate, &ozm::DataDelegate::clear);
}

void SpectrumFileDialog::addRecognition()
{
    auto *row = new QWidget(this);
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    m_recognition = new ozm::PickRecognition(m_seen, row);
    layout->addWidget(m_recognition, 1);
    // To open such a folder is to choose it, so that there has to be another way into one.
    auto *inside = new QPushButton(tr("Look &inside"), row);
    inside->setObjectName(u"lookInsideButton"_s);
    inside->setAutoDefault(false);
    inside->setEnabled(false);
    inside->setToolTip(tr("Shows the contents of a folder that is named as data and holds none"));
    layout->addWidget(inside, 0, Qt::AlignTop);
    connect(m_recognition, &ozm::PickRecognition::onlyPickChanged, inside, [this, inside] {
        const auto &only = m_recognition->onlyPick();
        inside->setEnabled(!only.isData() && isVendorRawFolder(only.path, true));
    });
    connect(inside, &QPushButton::clicked, this, [this] {
        // By value: the pick goes when its folder is left.
        const QString folder = m_recognition->onlyPick().path;
        enter(folder);
    });
    ozm::addToFileDialog(*this, row);
}

// By value, as in the suite's other libraries, which are built against it.
// NOLINTNEXTLINE(performance-unnecessary-value-param)
bool SpectrumFileDialog::isVendorRawFolder(QString path, bool checkExistingDir)
{
    if (checkExistingDir && !QFileInfo(path).isDir())
        return false;
    return FileTypes::fileMatchesAnyType(path, {ozm::msFolderType()});
}

void SpectrumFileDialog::currentChanged_custom(const QString &path)
{
    if (!isVendorRawFolder(path, true))
        return;
    QItemSelectionModel *selection = ozm::selectionModel(*this);
    const bool picksSeveral = QApplication::keyboardModifiers() & (Qt::ControlModifier | Qt::ShiftModifier);
    if (!selection || isPicked(path) || picksSeveral) {
        showPicks();
        return;
    }
    selectFile(path);
    // The toolkit forgets the highlighted entry over that, and with it the keyboard's place in the list.
    const auto *files = qobject_cast<const QFileSystemModel *>(selection->model());
    const QSignalBlocker quiet(this);
    if (files)
        selection->setCurrentIndex(files->index(path),
                                   QItemSelectionModel::SelectCurrent | QItemSelectionModel::Rows);
}

bool SpectrumFileDialog::isPicked(const QString &path) const
{
    const QItemSelectionModel *selection = ozm::selectionModel(*this);
    return std::ranges::any_of(selection->selectedRows(), [&path](const QModelIndex &row) {
        return row.data(QFileSystemModel::FilePathRole).toString() == path;
    });
}

void SpectrumFileDialog::directoryEntered_custom(const QString &path)
{
    const QString before = std::exchange(m_folder, path);
    // From inside, the way up leads past the raw folder: it would be chosen otherwise.
    if (isVendorRawFolder(path, true) && before.startsWith(path + u'/')) {
        enter(QFileInfo(path).absolutePath());
        return;
    }
    if (!isVendorRawFolder(path, true)) {
        // The name of what was highlighted in the folder above means nothing in this one.
        if (QLineEdit *name = ozm::nameBox(*this); name && !name->hasFocus())
            name->clear();
        return;
    }
    if (QLineEdit *name = ozm::nameBox(*this))
        name->clearFocus(); // With it, the toolkit leaves what was typed in place of the folder's name.
    selectFile(path);
    finish();
}

bool SpectrumFileDialog::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        const auto *view = qobject_cast<QAbstractItemView *>(watched);
        // The toolkit would enter the current folder and forget the other picks.
        if ((key == Qt::Key_Return || key == Qt::Key_Enter) && view &&
            view->selectionModel() == ozm::selectionModel(*this) && selectedFiles().size() > 1) {
            openButton_clicked();
            return true;
        }
    }
    return RestrictedFileDialog::eventFilter(watched, event);
}

void SpectrumFileDialog::accept()
{
    const QStringList files = selectedFiles();
    if (!m_recognition)
        RestrictedFileDialog::accept();
    else if (files.size() == 1 && !QFileInfo::exists(files.constFirst()))
        tellMissing(files.constFirst());
    else
        openButton_clicked();
}

void SpectrumFileDialog::tellMissing(const QString &path)
{
    const QString text = tr("%1\nFile not found.\nPlease verify the correct file name was given.").arg(path);
    // Not under the key press that led here: the name box does not expect to be gone when that returns, and
    // this dialog's parent may go while the user reads the message.
    QMetaObject::invokeMethod(
        this, [this, text] { ozm::showWarning(this, windowTitle(), text); }, Qt::QueuedConnection);
}

void SpectrumFileDialog::openButton_clicked()
{
    const QStringList files = selectedFiles();
    qCDebug(lcOzmWidgets).nospace() << "Got here with " << files.size() << " selections.";
    for (const QString &file : files)
        qCDebug(lcOzmWidgets).noquote() << file;
    if (files.size() == 1)
        openOne(files.constFirst());
    else if (!files.isEmpty())
        openSeveral(files);
}

void SpectrumFileDialog::openOne(const QString &path)
{
    if (QFileInfo(path).isDir() && !isVendorRawFolder(path, true))
        enter(path);
    else
        finish();
}

void SpectrumFileDialog::openSeveral(const QStringList &paths)
{
    const PickCheck check(paths, m_seen);
    if (check.waitBriefly()) {
        if (!check.data().isEmpty())
            finish();
        return;
    }
    // Not under the key press that led here; see tellMissing().
    const auto wait = [this, check] {
        const QPointer<SpectrumFileDialog> self(this);
        if (check.waitWithMessage(this) && self && !check.data().isEmpty())
            self->finish();
    };
    QMetaObject::invokeMethod(this, wait, Qt::QueuedConnection);
}

void SpectrumFileDialog::enter(const QString &folder)
{
    if (QLineEdit *name = ozm::nameBox(*this))
        name->clear();
    m_folder = folder;
    setDirectory(folder);
}

void SpectrumFileDialog::finish()
{
    // Not the base class's accept(), which enters folders. Nothing is closed after it: that would reject.
    const QStringList files = selectedFiles();
    const QPointer<SpectrumFileDialog> self(this);
    Q_EMIT filesSelected(files);
    if (self)
        self->done(Accepted);
}

void SpectrumFileDialog::showPicks()
{
    QLineEdit *name = ozm::nameBox(*this);
    const QItemSelectionModel *selection = ozm::selectionModel(*this);
    if (!name || !selection || name->hasFocus())
        return;
    const QModelIndexList rows = selection->selectedRows();
    if (rows.size() > kMostNamesShown) {
        name->setText(tr("%n file(s) and folder(s)", nullptr, static_cast<int>(rows.size())));
        return;
    }
    QStringList names;
    bool hasFolder = false;
    for (const QModelIndex &row : rows) {
        const QString path = row.data(QFileSystemModel::FilePathRole).toString();
        const bool isFolder = QFileInfo(path).isDir();
        if (isFolder && !isVendorRawFolder(path, false))
            continue;
        hasFolder = hasFolder || isFolder;
        names.append(row.data(QFileSystemModel::FileNameRole).toString());
    }
    // Of files alone the toolkit shows the names.
    if (hasFolder)
        name->setText(names.size() == 1 ? names.constFirst() : u'"' + names.join("\" \""_L1) + u'"');
}

void SpectrumFileDialog::recognise()
{
    m_recognition->recognise(selectedFiles());
}

SpectrumFileDialog *SpectrumFileDialog::create(QWidget *parent, const QString &caption, const QString &dir,
                                               const QString &filter, QString *selectedFilter,
                                               QFileDialog::Options options)
{
    auto *dialog = new SpectrumFileDialog(parent);
    QDir start(dir);
    // A raw folder is shown among its neighbours, not from inside; so is a file.
    if (isVendorRawFolder(dir, true) && start.cdUp())
        start.setPath(start.absolutePath());
    else if (QFileInfo(dir).isFile())
        start.setPath(QFileInfo(dir).absolutePath());
    dialog->m_folder = start.absolutePath();
    dialog->setDirectory(start);
    dialog->setNameFilter(filter);
    dialog->setWindowTitle(caption);
    dialog->setOptions(options);
    if (selectedFilter && !selectedFilter->isEmpty())
        dialog->selectNameFilter(*selectedFilter);
    return dialog;
}

QList<QString> SpectrumFileDialog::_internalGetOpenFunction(QWidget *parent, const QString &caption,
                                                            const QString &dir, const QString &filter,
                                                            QString *selectedFilter,
                                                            QFileDialog::Options options,
                                                            std::shared_ptr<ozm::SeenEntries> *seen)
{
    GuardedDialog dialog(create(parent, caption, dir, filter, selectedFilter, options));
    *seen = dialog->m_seen;
    return dialog.exec() ? dialog->selectedFiles() : QList<QString>();
}

QList<QString> SpectrumFileDialog::getSpectrumFileList(QWidget *parent, const QString &caption,
                                                       const QString &dir, const QString &filter,
                                                       QString *selectedFilter, QFileDialog::Options options)
{
    const QPointer<QWidget> owner(parent);
    std::shared_ptr<ozm::SeenEntries> seen;
    const QStringList picks =
        _internalGetOpenFunction(parent, caption, dir, filter, selectedFilter, options, &seen);
    return dataAmong(picks, seen, owner);
}

QString SpectrumFileDialog::getSpectrumFile(QWidget *parent, const QString &caption, const QString &dir,
                                            const QString &filter)
{
    const QPointer<QWidget> owner(parent);
    GuardedDialog dialog(create(parent, caption, dir, filter, nullptr, {}));
    dialog->setFileMode(QFileDialog::ExistingFile);
    const auto seen = dialog->m_seen;
    const QStringList picks = dialog.exec() ? dialog->selectedFiles() : QStringList();
    return dataAmong(picks, seen, owner).value(0);
}

void SpectrumFileDialog::openSpectrumFileList(QWidget *parent, const QString &caption, const QString &dir,
                                              const QString &filter, QObject *context,
                                              const Answered &answered)
{
    SpectrumFileDialog *dialog = create(parent, caption, dir, filter, nullptr, {});
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    const auto isTold = std::make_shared<bool>(false);
    connect(dialog, &QDialog::finished, context, [dialog, context, answered, isTold](int result) {
        *isTold = true;
        const QStringList picks = result == Rejected ? QStringList() : dialog->selectedFiles();
        whenDone(PickCheck(picks, dialog->m_seen), picks, context, answered);
    });
    // With its parent it goes without a word.
    connect(dialog, &QObject::destroyed, context, [answered, isTold] {
        if (!*isTold)
            answered({});
    });
    static_cast<QDialog *>(dialog)->open();
}
