#include "editor/EditorFiles.h"

#include "editor/ComparisonDialog.h"
#include "editor/EditorHistory.h"

#include "support/Platform.h"
#include <ozm_references/LocalResourceReference.h>
#include <ozm_widgets/AbstractTemplateEditor.h>
#include <ozm_widgets/DefaultWidgetCreator.h>
#include <ozm_widgets/OZMStyle.h>
#include <platform/Errors.h>

#include <QDir>
#include <QFileInfo>
#include <QLocale>
#include <QMenu>
#include <QPointer>
#include <QScopedValueRollback>
#include <QSettings>

using namespace Qt::StringLiterals;

namespace ozm::editor {

namespace {

using Signal = OzmMessageBoxSignal;

constexpr int kStoreAfterMs = 2000;
constexpr int kRecentFiles = 8;
constexpr auto kRecentKey = "templateEditor/recentFiles"_L1;

IFileAccessor::DirLocation templateLocation()
{
    static const auto location = ozm::platform::dirLocation(u"templates"_s);
    return location;
}

FileExtensionsNameFilter openFilter()
{
    return FileExtensionsNameFilter(
        EditorFiles::tr("Templates and pages (*.ozt *.html *.htm *.txt);;All files (*)"));
}

FileExtensionsNameFilter saveFilter()
{
    return FileExtensionsNameFilter(EditorFiles::tr("Templates (*.ozt);;Templates as HTML (*.html)"));
}

/// A template elsewhere than on a disk is watched and listed by nobody here.
bool isLocal(const IFileAccessor::DestinationFileLocation &location)
{
    return !location.reference.dynamicCast<LocalResourceReference>().isNull();
}

IFileAccessor::DestinationFileLocation locationOf(const QString &path)
{
    auto reference = QSharedPointer<LocalResourceReference>::create();
    // Refused, it stays the reference to nothing, which is then what cannot be written.
    (void)reference->setPath(path);
    return {reference, QFileInfo(path).fileName()};
}

QSettings settings()
{
    // An application without an organization is its own.
    const QString organization = QCoreApplication::organizationName();
    const QString application = QCoreApplication::applicationName();
    return QSettings(organization.isEmpty() ? application : organization, application);
}

QString storageName(const QObject &editor)
{
    return QString::fromLatin1(editor.metaObject()->className()).replace("::"_L1, "-"_L1);
}

} // namespace

void tellWrongFormat(QWidget *parent)
{
    OZMStyle::critical(parent, Signal::TemplateError,
                       EditorFiles::tr("Wrong template editor content format."));
}

EditorFiles::EditorFiles(AbstractTemplateEditor *editor, const Template &shown)
    : m_editor(editor)
    , m_shown(shown)
    , m_file(std::make_unique<TemplateFile>())
{
    m_storeTimer.setSingleShot(true);
    connect(&m_storeTimer, &QTimer::timeout, this, [this] {
        if (m_shown.prepare())
            m_storeTimer.start(0);
        else
            storeNow();
    });
}

EditorFiles::~EditorFiles() = default;

void EditorFiles::fillRecentMenu(QMenu *menu)
{
    menu->clear();
    const QStringList paths = settings().value(kRecentKey).toStringList();
    for (const QString &path : paths) {
        QAction *action = menu->addAction(QFileInfo(path).fileName());
        action->setObjectName(u"recentAction"_s);
        action->setToolTip(QDir::toNativeSeparators(path));
        connect(action, &QAction::triggered, this, [this, path] { openChosen(path); });
    }
    menu->setToolTipsVisible(true);
    menu->setDisabled(paths.isEmpty());
}

void EditorFiles::remember(const QString &path)
{
    QSettings store = settings();
    QStringList paths = store.value(kRecentKey).toStringList();
    paths.removeAll(path);
    paths.prepend(path);
    store.setValue(kRecentKey, QStringList(paths.mid(0, kRecentFiles)));
}

void EditorFiles::askNew()
{
    if (!mayDiscard())
        return;
    m_shown.show({});
    setNoFile();
}

void EditorFiles::askOpen()
{
    const QString path = DefaultWidgetCreator::fileAccessor()->getOpenFileName(
        m_editor, tr("Open template"), m_editor->storageDirectory(), openFilter(), templateLocation());
    if (!path.isEmpty())
        openChosen(path);
}

void EditorFiles::askCompare()
{
    const QString path = DefaultWidgetCreator::fileAccessor()->getOpenFileName(
        m_editor, tr("Compare with template"), m_editor->storageDirectory(), openFilter(),
        templateLocation());
    if (!path.isEmpty())
        compareWith(path);
}

void EditorFiles::compareWith(const QString &other)
{
    const auto loaded = read(other);
    if (!loaded) {
        tellNotOpened(other, loaded.error());
        return;
    }
    if (qMax(loaded.value().content.size(), m_shown.content().size()) > EditorSession::kLargestRich) {
        Q_EMIT told(tr("The template is too large to be compared."));
        return;
    }
    const QString here =
        path().isEmpty() || path() == other ? tr("this window") : QFileInfo(path()).fileName();
    auto *dialog = new ComparisonDialog({QFileInfo(other).fileName(), loaded.value().content},
                                        {here, m_shown.content()}, m_editor);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->open();
}

void EditorFiles::openChosen(const QString &path)
{
    if (mayDiscard())
        open(path);
}

Result<TemplateFile::Loaded> EditorFiles::read(const QString &path)
{
    // Reading a page lets events through.
    const QScopedValueRollback asking(m_isAsking, true);
    auto loaded = TemplateFile::read(path);
    if (loaded || loaded.error().errorCode() != ozm::codes::NotAllowed)
        return loaded;
    const auto answer =
        OZMStyle::question(m_editor, Signal::FileNotReadable, tr("Page without its reader"),
                           tr("%1\n\nOpen all of its text as it stands?").arg(loaded.error().errorMessage()));
    return answer == QMessageBox::Yes ? TemplateFile::read(path, TemplateFile::Page::AsText) : loaded;
}

void EditorFiles::tellNotOpened(const QString &path, const Error &error)
{
    // Said already, as the question.
    if (error.errorCode() != ozm::codes::NotAllowed)
        OZMStyle::critical(m_editor, Signal::FileNotReadable, tr("Template not opened"),
                           QDir::toNativeSeparators(path), error);
}

bool EditorFiles::open(const QString &path)
{
    const auto loaded = read(path);
    if (!loaded) {
        tellNotOpened(path, loaded.error());
        return false;
    }
    m_shown.show(loaded.value().content);
    if (!loaded.value().converted) {
        setLocation(locationOf(path), loaded.value().digest);
        return true;
    }
    // Saved over, the page would be gone for whoever wrote it.
    setNoFile();
    m_shown.setUnsaved();
    Q_EMIT told(tr("The body of the page was taken over as a new template."));
    return true;
}

void EditorFiles::setLocation(const IFileAccessor::DestinationFileLocation &location,
                              const QByteArray &digest)
{
    m_location = location;
    m_file = std::make_unique<TemplateFile>();
    giveUp();
    if (isLocal(location)) {
        m_file->opened(path(), digest);
        remember(path());
    }
    Q_EMIT pathChanged();
}

void EditorFiles::setNoFile()
{
    m_location = {};
    m_file = std::make_unique<TemplateFile>();
    giveUp();
    Q_EMIT pathChanged();
}

bool EditorFiles::save()
{
    if (path().isEmpty())
        return askSaveAs();
    return mayReplaceChanged() && saveTo(IFileAccessor::DestinationFileLocation(m_location));
}

bool EditorFiles::askSaveAs()
{
    const QString name = path().isEmpty() ? tr("template.ozt") : QFileInfo(path()).fileName();
    const QString folder =
        isLocal(m_location) ? QFileInfo(path()).absolutePath() : m_editor->storageDirectory();
    const auto location = DefaultWidgetCreator::fileAccessor()->getSaveFileName(
        m_editor, tr("Save template"), folder, name, saveFilter(), nullptr, {}, templateLocation());
    return !location.isCanceled() && saveTo(location);
}

bool EditorFiles::saveTo(const IFileAccessor::DestinationFileLocation &location)
{
    const QString path = location.toString();
    const Error error = DefaultWidgetCreator::fileAccessor()->saveFile(
        location, [this](const QString &local) { return TemplateFile::write(local, m_shown.content()); });
    if (error.hasError()) {
        OZMStyle::critical(m_editor, Signal::FileNotWritable, tr("Template not saved"),
                           tr("The template could not be saved. It is unchanged in the window."), error);
        return false;
    }
    m_shown.setSaved();
    setLocation(location, {});
    Q_EMIT told(tr("Saved to %1").arg(QDir::toNativeSeparators(path)));
    Q_EMIT saved(path);
    return true;
}

bool EditorFiles::mayReplaceChanged()
{
    if (!m_file->changedOnDisk() || !QFileInfo::exists(path()))
        return true;
    const QScopedValueRollback asking(m_isAsking, true);
    return OZMStyle::warning(m_editor, Signal::FileExists, tr("File changed"),
                             tr("\"%1\" was changed by another program. Replace it by what is in the window?")
                                 .arg(QDir::toNativeSeparators(path())),
                             QMessageBox::Yes | QMessageBox::Cancel, QMessageBox::Cancel) == QMessageBox::Yes;
}

bool EditorFiles::mayDiscard()
{
    if (!m_shown.isModified())
        return true;
    const QScopedValueRollback asking(m_isAsking, true);
    const auto answer =
        OZMStyle::question(m_editor, Signal::UnsavedChanges, tr("Unsaved template"),
                           tr("The template has changed. Save it first?"),
                           QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, QMessageBox::Save);
    if (answer == QMessageBox::Save)
        return save();
    return answer == QMessageBox::Discard;
}

void EditorFiles::checkDisk()
{
    if (m_isAsking || !m_file->changedOnDisk())
        return;
    const QScopedValueRollback asking(m_isAsking, true);
    const QString file = QDir::toNativeSeparators(path());
    if (!QFileInfo::exists(path())) {
        m_file->opened(path());
        m_shown.setUnsaved();
        Q_EMIT told(tr("\"%1\" does not exist any more. The template is kept in the window.").arg(file));
        return;
    }
    const auto answer = OZMStyle::question(
        m_editor, Signal::Unspecified, tr("File changed"),
        m_shown.isModified()
            ? tr("\"%1\" was changed by another program. Read it again, and lose your own changes?").arg(file)
            : tr("\"%1\" was changed by another program. Read it again?").arg(file),
        QMessageBox::Yes | QMessageBox::No, m_shown.isModified() ? QMessageBox::No : QMessageBox::Yes);
    if (answer == QMessageBox::Yes) {
        open(path());
        return;
    }
    // Asked once for each change.
    m_file->opened(path());
    m_shown.setUnsaved();
}

void EditorFiles::giveUp()
{
    m_storeTimer.stop();
    m_autosave.reset();
}

void EditorFiles::storeSoon()
{
    if (m_shown.isModified())
        m_storeTimer.start(kStoreAfterMs);
}

bool EditorFiles::storeNow()
{
    if (!m_autosave)
        m_autosave = std::make_unique<TemplateAutosave>(storageName(*m_editor));
    return m_autosave->store(isLocal(m_location) ? path() : QString(), m_shown.content());
}

void EditorFiles::offerRescued()
{
    const QScopedValueRollback asking(m_isAsking, true);
    const QPointer<EditorFiles> self(this);
    const QList<TemplateAutosave::Rescued> copies = TemplateAutosave::rescued(storageName(*m_editor));
    for (const TemplateAutosave::Rescued &copy : copies) {
        const bool isWanted = isRescuedWanted(copy);
        if (!self)
            return;
        // A copy that is wanted but not opened is offered at the next start again.
        if (!isWanted || openRescued(copy))
            TemplateAutosave::discard(copy);
        if (!self)
            return;
    }
}

bool EditorFiles::isRescuedWanted(const TemplateAutosave::Rescued &copy)
{
    const QString name = copy.path.isEmpty() ? tr("a new template") : QDir::toNativeSeparators(copy.path);
    QString text = tr("The program ended while %1 was not saved. Open what was kept of it at %2?")
                       .arg(name, QLocale().toString(copy.when, QLocale::ShortFormat));
    if (!m_shown.content().isEmpty())
        text += u"\n\n"_s + tr("It takes the place of the template that is open in this window.");
    return OZMStyle::question(m_editor, Signal::Unspecified, tr("Rescued template"), text,
                              QMessageBox::Yes | QMessageBox::No, QMessageBox::Yes) == QMessageBox::Yes;
}

bool EditorFiles::openRescued(const TemplateAutosave::Rescued &copy)
{
    // One window shows one template: the one before is saved, or given up, first.
    if (!mayDiscard())
        return false;
    m_shown.show(copy.content);
    m_location = copy.path.isEmpty() ? IFileAccessor::DestinationFileLocation() : locationOf(copy.path);
    m_file = std::make_unique<TemplateFile>();
    if (!copy.path.isEmpty())
        m_file->opened(copy.path);
    m_shown.setUnsaved();
    Q_EMIT pathChanged();
    return storeNow();
}

} // namespace ozm::editor
