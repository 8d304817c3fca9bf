#include "window/Sessions.h"

#include "audit/TrailStore.h"
#include "samples/SampleEditor.h"
#include "window/FirstStepsPage.h"
#include "window/FirstStepsSession.h"
#include "window/MainWindow.h"

#include <ozm_widgets/OZMStyle.h>

#include <QApplication>
#include <QDir>
#include <QSettings>
#include <QStandardPaths>

using namespace Qt::StringLiterals;
using ozm::Error;

namespace workbench {

namespace {

constexpr auto kSeen = "firstStepsSeen"_L1;

QSettings sessionSettings()
{
    return QSettings(QCoreApplication::applicationName(), QCoreApplication::applicationName());
}

QDir trailFolder()
{
    return QDir(QStandardPaths::writableLocation(QStandardPaths::AppDataLocation));
}

void bringUp(QWidget &window)
{
    window.show();
    window.raise();
    window.activateWindow();
}

} // namespace

struct Sessions::Own
{
    explicit Own(std::unique_ptr<ozm::audit::Store> opened, const QString &user)
        : store(std::move(opened))
        , editor(*store, user)
    {}

    std::unique_ptr<ozm::audit::Store> store;
    SampleEditor editor;
    std::unique_ptr<MainWindow> window;
};

Sessions::Sessions(QString database, QString user)
    : m_database(std::move(database))
    , m_user(std::move(user))
{}

Sessions::~Sessions() = default;

bool Sessions::areNew() const
{
    const QDir folder = trailFolder();
    return m_database.isEmpty() && !sessionSettings().value(kSeen, false).toBool() &&
           !folder.exists(u"trail.sqlite"_s) && !folder.exists(u"audit.sqlite"_s);
}

Error Sessions::openOwn(const QString &file)
{
    if (!m_own) {
        const QDir folder = trailFolder();
        folder.mkpath(u"."_s);
        auto store = openTrail(m_database, folder.path(), m_user);
        if (!store)
            return store.error();
        auto own = std::make_unique<Own>(std::move(store).value(), m_user);
        if (Error error = own->editor.start(); error.hasError())
            return error;
        own->window = std::make_unique<MainWindow>(own->editor, own->store->place());
        QObject::connect(own->window.get(), &MainWindow::firstStepsAsked, own->window.get(),
                         [this] { openFirstStepsOrComplain(); });
        m_own = std::move(own);
    }
    // A closed window has nothing that would be lost: it asked.
    const bool mayOpen = file.isEmpty() || m_own->window->isHidden() || m_own->window->mayDiscard();
    bringUp(*m_own->window);
    if (!file.isEmpty() && mayOpen)
        m_own->window->open(file);
    return {};
}

Error Sessions::openFirstSteps()
{
    if (m_firstSteps.empty() || m_firstSteps.back()->window().isHidden()) {
        auto session = FirstStepsSession::make(m_user);
        if (!session)
            return session.error();
        MainWindow &window = session.value()->window();
        window.setOpener([this](const QString &path) { openOwnOrComplain(path); });
        QObject::connect(&window, &MainWindow::firstStepsAsked, &window,
                         [this] { openFirstStepsOrComplain(); });
        QObject::connect(&session.value()->page(), &FirstStepsPage::ownSamplesAsked, &window,
                         [this] { openOwnOrComplain({}); });
        m_firstSteps.push_back(std::move(session).value());
    }
    bringUp(m_firstSteps.back()->window());
    sessionSettings().setValue(kSeen, true);
    return {};
}

void Sessions::openOwnOrComplain(const QString &file)
{
    if (const Error error = openOwn(file); error.hasError())
        complainOnScreen(error);
}

void Sessions::openFirstStepsOrComplain()
{
    if (const Error error = openFirstSteps(); error.hasError())
        complainOnScreen(error);
}

void complainOnScreen(const Error &error)
{
    OZMStyle::critical(nullptr, ozm::OzmMessageBoxSignal::FileNotReadable,
                       QApplication::applicationDisplayName(), error.errorMessage());
}

} // namespace workbench
