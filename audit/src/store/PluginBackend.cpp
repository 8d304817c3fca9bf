#include "PluginBackend.h"

#include "../Texts.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLibrary>

#ifdef Q_OS_WIN
#include <array>
#include <windows.h>
#else
#include <dlfcn.h>
#endif

using namespace Qt::StringLiterals;

namespace ozm::audit {

namespace {

// Its address is one of this library's.
const char anchor = 0;

#ifdef Q_OS_WIN
QString libraryFile()
{
    static std::array<wchar_t, 32768> name;
    HMODULE module = nullptr;
    if (!GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS |
                                GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                            reinterpret_cast<LPCWSTR>(&anchor), &module)) {
        return {};
    }
    return QString::fromWCharArray(name.data(),
                                   int(GetModuleFileNameW(module, name.data(), DWORD(name.size()))));
}
#else
QString libraryFile()
{
    Dl_info info = {};
    return ::dladdr(&anchor, &info) != 0 && info.dli_fname ? QFile::decodeName(info.dli_fname) : QString();
}
#endif

} // namespace

Result<std::unique_ptr<StoreBackend>> openByPlugin(const Address &address, Store::Mode mode)
{
    QStringList folders{QFileInfo(libraryFile()).absolutePath() + "/ozm_audit/plugins"_L1};
    const QStringList paths = QCoreApplication::libraryPaths();
    for (const QString &path : paths)
        folders.append(path + "/ozm_audit"_L1);
    for (const QString &folder : std::as_const(folders)) {
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
