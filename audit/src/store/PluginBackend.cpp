#include "PluginBackend.h"

#include "../../../src/support/LibraryFolder.h"
#include "../Texts.h"

#include <QDir>
#include <QLibrary>

using namespace Qt::StringLiterals;

namespace ozm::audit {

Result<std::unique_ptr<StoreBackend>> openByPlugin(const Address &address, Store::Mode mode)
{
    const QStringList folders = pluginFolders("ozm_audit"_L1);
    for (const QString &folder : folders) {
        const QStringList names =
            QDir(folder).entryList({u"ozm_audit_%1.*"_s.arg(address.scheme)}, QDir::Files);
        for (const QString &name : names) {
            if (auto *found = QLibrary::resolve(folder + u'/' + name, "ozm_audit_open"))
                return reinterpret_cast<OpenBackend>(found)(address, mode);
        }
    }
    return Error(ErrorCode::BadParameter,
                 Texts::tr("\"%1\" cannot be opened: the plug-in \"ozm_audit_%2\" was not found in %3.")
                     .arg(address.shown(), address.scheme, folders.join(u", "_s)))
        .ecatch(OZM_HERE);
}

} // namespace ozm::audit
