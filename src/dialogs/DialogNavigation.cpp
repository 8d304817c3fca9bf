#include "dialogs/DialogNavigation.h"

#include "dialogs/DialogParts.h"
#include "dialogs/EntryFilter.h"
#include "dialogs/PathBar.h"
#include "support/Platform.h"

#include <ozm_widgets/SpectrumFileDialog.h>

#include <QComboBox>
#include <QCoreApplication>
#include <QDropEvent>
#include <QFileInfo>
#include <QFileSystemModel>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QListView>
#include <QMimeData>
#include <QScreen>
#include <QSettings>
#include <QStandardPaths>
#include <QThread>
#include <QUrl>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace ozm {

namespace {

constexpr qsizetype kMostRecent = 5;
constexpr int kFilterCharacters = 16;
// Room for the columns of the table beside names of usual length.
constexpr int kUsualCharacters = 120;
constexpr int kUsualLines = 34;

ExtendableEnumRef<FileSystemSettings::DirLocationData> recentLocation()
{
    static const auto location = platform::dirLocation(u"recentData"_s);
    return location;
}

/// One text holds them all: no folder has a line feed in its name that anybody would miss here.
QStringList recentFolders()
{
    if (!platform::hasOwnLocations())
        return {};
    return FileSystemSettings::Instance().fileLocation(recentLocation()).split(u'\n', Qt::SkipEmptyParts);
}

QSettings settings()
{
    const QString application = QCoreApplication::applicationName();
    const QString organization = QCoreApplication::organizationName();
    return QSettings(organization.isEmpty() ? application : organization, application);
}

QStringList localFiles(const QMimeData &data)
{
    QStringList paths;
    for (const QUrl &url : data.urls())
        if (url.isLocalFile())
            paths.append(QDir::cleanPath(url.toLocalFile()));
    return paths;
}

} // namespace

DialogNavigation::DialogNavigation(QFileDialog &dialog, RawFolders rawFolders)
    : QObject(&dialog)
    , m_dialog(dialog)
    , m_rawFolders(rawFolders)
{
    addBar();
    addPlaces();
    const QFontMetrics font = dialog.fontMetrics();
    const QSize usual(font.averageCharWidth() * kUsualCharacters, font.lineSpacing() * kUsualLines);
    const QSize size = settings().value(sizeKey(), usual).toSize();
    dialog.resize(size.expandedTo(dialog.minimumSizeHint()).boundedTo(dialog.screen()->availableSize()));
    dialog.setAcceptDrops(true);
    dialog.installEventFilter(this);
    // A filter for data names more extensions than there is room for.
    if (auto *types = dialog.findChild<QComboBox *>(u"fileTypeCombo"_s))
        connect(types, &QComboBox::currentTextChanged, types, &QWidget::setToolTip);
    // A field for text would write the address of what is dropped.
    if (QLineEdit *name = nameBox(dialog))
        name->installEventFilter(this);
}

DialogNavigation::~DialogNavigation()
{
    QList<QUrl> places = m_dialog.sidebarUrls();
    places.removeIf([this](const QUrl &url) { return m_added.contains(url); });
    m_dialog.setSidebarUrls(places);
    if (m_shownSize.isValid() && m_dialog.size() != m_shownSize && !m_dialog.isMaximized())
        settings().setValue(sizeKey(), m_dialog.size());
}

QString DialogNavigation::sizeKey() const
{
    return "Dialogs/"_L1 + QLatin1StringView(m_dialog.metaObject()->className()) + "/size"_L1;
}

void DialogNavigation::addBar()
{
    const auto *list = m_dialog.findChild<QListView *>(u"listView"_s);
    auto *frame = m_dialog.findChild<QFrame *>(u"frame"_s);
    auto *layout = frame ? qobject_cast<QVBoxLayout *>(frame->layout()) : nullptr;
    const auto *files = list ? qobject_cast<const QFileSystemModel *>(list->model()) : nullptr;
    if (!layout || !files)
        return;
    auto *bar = new PathBar(frame);
    auto *filter = new EntryFilter(m_dialog, frame);
    filter->setMinimumWidth(filter->fontMetrics().averageCharWidth() * kFilterCharacters);
    auto *row = new QHBoxLayout;
    row->addWidget(bar, 3);
    row->addWidget(filter, 1);
    layout->insertLayout(0, row);
    bar->setPath(files->rootPath());
    connect(bar, &PathBar::chosen, this, &DialogNavigation::chosen);
    connect(files, &QFileSystemModel::rootPathChanged, bar, &PathBar::setPath);
    // It was about the entries of another folder. Before the views go there, as they unhide their own.
    connect(files, &QFileSystemModel::rootPathChanged, filter, &QLineEdit::clear);
}

void DialogNavigation::addPlaces()
{
    QStringList places;
    for (const auto place : {QStandardPaths::HomeLocation, QStandardPaths::DesktopLocation,
                             QStandardPaths::DocumentsLocation, QStandardPaths::DownloadLocation})
        places.append(QStandardPaths::writableLocation(place));
    places.removeIf([](const QString &place) { return !QFileInfo(place).isDir(); });
    addPlaces(places);
    const QStringList recent = recentFolders();
    if (recent.isEmpty())
        return;
    // They may be on a share that does not answer.
    const auto there = std::make_shared<QStringList>();
    QThread *thread = QThread::create([recent, there] {
        std::ranges::copy_if(recent, std::back_inserter(*there),
                             [](const QString &folder) { return QFileInfo(folder).isDir(); });
    });
    connect(thread, &QThread::finished, this, [this, there] { addPlaces(*there); });
    connect(thread, &QThread::finished, thread, &QObject::deleteLater);
    thread->start();
}

void DialogNavigation::addPlaces(const QStringList &folders)
{
    QList<QUrl> places = m_dialog.sidebarUrls();
    for (const QString &folder : folders) {
        const QUrl url = QUrl::fromLocalFile(folder);
        if (places.contains(url))
            continue;
        places.append(url);
        m_added.append(url);
    }
    m_dialog.setSidebarUrls(places);
}

void DialogNavigation::addRecent(const QString &folder)
{
    if (!platform::hasOwnLocations() || folder.contains(u'\n'))
        return;
    QStringList folders = recentFolders();
    folders.removeAll(folder);
    folders.prepend(folder);
    FileSystemSettings::Instance().setFileLocation(
        recentLocation(), folders.first(qMin(folders.size(), kMostRecent)).join(u'\n'));
}

bool DialogNavigation::eventFilter(QObject *watched, QEvent *event)
{
    const auto type = event->type();
    if (type == QEvent::Show && watched == &m_dialog && !m_shownSize.isValid())
        m_shownSize = m_dialog.size();
    if (type != QEvent::DragEnter && type != QEvent::DragMove && type != QEvent::Drop)
        return QObject::eventFilter(watched, event);
    auto *drag = static_cast<QDropEvent *>(event);
    const QStringList paths = localFiles(*drag->mimeData());
    if (paths.isEmpty())
        return QObject::eventFilter(watched, event);
    // Whatever the other program offers, its files stay where they are.
    drag->setDropAction(Qt::CopyAction);
    drag->accept();
    if (type == QEvent::Drop)
        takeDropped(paths);
    return true;
}

void DialogNavigation::takeDropped(const QStringList &paths)
{
    const QFileInfo first(paths.constFirst());
    const bool isPick =
        m_rawFolders == RawFolders::Picked && SpectrumFileDialog::isVendorRawFolder(first.filePath(), false);
    if (paths.size() == 1 && first.isDir() && !isPick) {
        Q_EMIT chosen(first.filePath());
        return;
    }
    Q_EMIT chosen(first.absolutePath());
    QLineEdit *name = nameBox(m_dialog);
    QItemSelectionModel *selection = selectionModel(m_dialog);
    if (!name || !selection)
        return;
    selection->clearSelection();
    const bool takesSeveral = m_dialog.fileMode() == QFileDialog::ExistingFiles;
    QStringList names;
    for (const QString &path : takesSeveral ? paths : paths.first(1))
        names.append(QFileInfo(path).absolutePath() == first.absolutePath() ? QFileInfo(path).fileName()
                                                                            : path);
    name->setText(names.size() == 1 ? names.constFirst() : u'"' + names.join("\" \""_L1) + u'"');
}

} // namespace ozm
