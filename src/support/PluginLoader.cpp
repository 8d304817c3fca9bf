#include "support/PluginLoader.h"

#include "support/LibraryFolder.h"
#include "support/Logging.h"

#include <QDir>
#include <QPluginLoader>

using namespace Qt::StringLiterals;

namespace ozm {

namespace {

QObject *instanceOf(const QString &file, const QString &iid)
{
    QPluginLoader loader(file);
    const QString found = loader.metaData().value("IID"_L1).toString();
    if (found != iid) {
        OZM_WIDGETS_WARNING() << "Plug-in" << file << "is passed over: it implements" << found << "instead of"
                              << iid;
        return nullptr;
    }
    QObject *instance = loader.instance();
    if (!instance)
        OZM_WIDGETS_WARNING() << "Plug-in" << file << "cannot be loaded:" << loader.errorString();
    return instance;
}

} // namespace

QObject *loadPlugin(const QString &name, const QString &iid)
{
    const QStringList folders = pluginFolders();
    for (const QString &folder : folders) {
        const QStringList files = QDir(folder).entryList({u'*' + name + u'*'}, QDir::Files);
        for (const QString &file : files)
            if (QObject *instance = instanceOf(folder + u'/' + file, iid))
                return instance;
    }
    return nullptr;
}

} // namespace ozm
