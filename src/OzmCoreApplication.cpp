#include <ozm_widgets/OzmCoreApplication.h>

#include <QCoreApplication>
#include <QMutex>
#include <QThread>

using namespace Qt::StringLiterals;

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
    for (const char *variable : {"USER", "USERNAME", "LOGNAME"}) {
        QString name = qEnvironmentVariable(variable);
        if (!name.isEmpty())
            return name;
    }
    return u"unknown"_s;
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
