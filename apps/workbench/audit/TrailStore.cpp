#include "audit/TrailStore.h"

#include <ozm_audit/InspectionCopy.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;
using ozm::Error;
using ozm::ErrorCode;
using ozm::audit::Store;

namespace workbench {

namespace {

QString addressOf(const QString &given)
{
    const bool isAddress = given.startsWith("sqlite:"_L1) || given.contains("://"_L1);
    return isAddress ? given : u"sqlite:"_s + given + u"?sharing=processes"_s;
}

ozm::audit::Draft takenOverBy(const QString &user)
{
    ozm::audit::Draft draft;
    draft.user.id = user;
    draft.program = QCoreApplication::applicationName();
    draft.version = QCoreApplication::applicationVersion();
    return draft;
}

/// Made elsewhere and then moved, so that a trail that is there holds all of the former one.
Error takeOver(const QString &former, const QString &path, const QString &user)
{
    const QTemporaryDir aside(QFileInfo(path).dir().filePath(u"taking-over-XXXXXX"_s));
    const QString made = aside.filePath(QFileInfo(path).fileName());
    {
        auto store = Store::open(u"sqlite:"_s + made, Store::Mode::Create);
        if (!store)
            return store.error();
        const auto imported = ozm::audit::importFormerTrail(*store.value(), former, takenOverBy(user));
        if (!imported)
            return imported.error();
    }
    // Another workbench that was quicker has made the same trail.
    if (QFile::rename(made, path) || QFile::exists(path))
        return {};
    return Error(ErrorCode::FileAccess, QCoreApplication::translate("TrailStore", "\"%1\" cannot be written.")
                                            .arg(QDir::toNativeSeparators(path)))
        .ecatch(OZM_HERE);
}

} // namespace

ozm::Result<std::unique_ptr<Store>> openTrail(const QString &given, const QString &folder,
                                              const QString &user)
{
    if (!given.isEmpty())
        return Store::open(addressOf(given));
    const QDir in(folder);
    const QString path = in.filePath(u"trail.sqlite"_s);
    if (!in.exists(path) && in.exists(u"audit.sqlite"_s)) {
        if (Error error = takeOver(in.filePath(u"audit.sqlite"_s), path, user); error.hasError())
            return error;
    }
    return Store::open(addressOf(path));
}

} // namespace workbench
