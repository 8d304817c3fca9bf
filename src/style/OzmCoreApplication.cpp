#include <ozm_widgets/OzmCoreApplication.h>

#include <ozm_widgets/OZMStyle.h>

#include "style/SystemUser.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QMutex>
#include <QThread>
#include <QTranslator>

#include <memory>

using namespace Qt::StringLiterals;

static void initTranslations()
{
    // A static build drops resources that nobody names.
    Q_INIT_RESOURCE(ozm_widgets_translations);
}

namespace ozm {

namespace {

struct User
{
    QMutex mutex;
    QString name;
};

User &user()
{
    static User user;
    return user;
}

QString userOfSystem()
{
    // Anyone can set a variable, so it counts only where the system knows nobody. A directory service may take
    // its time, and is asked once.
    static const QString known = systemUserName();
    if (!known.isEmpty())
        return known;
    for (const char *variable : {"USER", "USERNAME", "LOGNAME"}) {
        QString name = qEnvironmentVariable(variable);
        if (!name.isEmpty())
            return name;
    }
    return u"unknown"_s;
}

/// Loads <file>_<language>.qm in place of what was loaded of that file before; false when there is none.
bool install(const QString &file, const QLocale &locale, const QString &folder)
{
    const QString name = u"ozmTranslator/"_s + file;
    delete qApp->findChild<QTranslator *>(name, Qt::FindDirectChildrenOnly);
    auto translator = std::make_unique<QTranslator>(qApp);
    translator->setObjectName(name);
    if (!translator->load(locale, file, u"_"_s, folder))
        return false;
    return QCoreApplication::installTranslator(translator.release());
}

} // namespace

OzmCoreApplication::OzmCoreApplication()
{
    // Whoever asks first, the object belongs to the GUI thread.
    if (qApp && qApp->thread() != thread())
        moveToThread(qApp->thread());
}

OzmCoreApplication::~OzmCoreApplication() = default;

OzmCoreApplication *OzmCoreApplication::instance()
{
    static OzmCoreApplication application;
    return &application;
}

void OzmCoreApplication::start(const QString &style)
{
    OZMStyle::apply(style);
    (void)loadTranslation(QLocale());
}

bool OzmCoreApplication::loadTranslation(const QLocale &locale, const QString &name)
{
    initTranslations();
    install(u"qtbase"_s, locale, QLibraryInfo::path(QLibraryInfo::TranslationsPath));
    return install(name, locale, u":/i18n"_s);
}

QString OzmCoreApplication::userName()
{
    const QMutexLocker lock(&user().mutex);
    return user().name.isEmpty() ? userOfSystem() : user().name;
}

void OzmCoreApplication::setUserName(const QString &name)
{
    const QMutexLocker lock(&user().mutex);
    user().name = name;
}

} // namespace ozm
