#include "support/LibraryFolder.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#ifdef Q_OS_WIN
#include <array>
#include <windows.h>
#else
#include <dlfcn.h>
#endif

using namespace Qt::StringLiterals;

namespace ozm {

namespace {

// An address inside this library, to ask the system where the library was loaded from.
const char anchor = 0;

#ifdef Q_OS_WIN
QString libraryFile()
{
    // The longest path that the system knows.
    static std::array<wchar_t, 32768> name;
    HMODULE module = nullptr;
    if (!GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS |
                                GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                            reinterpret_cast<LPCWSTR>(&anchor), &module))
        return {};
    const DWORD length = GetModuleFileNameW(module, name.data(), DWORD(name.size()));
    return QString::fromWCharArray(name.data(), int(length));
}
#else
QString libraryFile()
{
    Dl_info info = {};
    return ::dladdr(&anchor, &info) != 0 && info.dli_fname ? QFile::decodeName(info.dli_fname) : QString();
}
#endif

} // namespace

QString libraryFolder()
{
    const QString file = libraryFile();
    return file.isEmpty() ? QString() : QFileInfo(file).absolutePath();
}

QStringList pluginFolders(QLatin1StringView name)
{
    QStringList folders;
    if (const QString folder = libraryFolder(); !folder.isEmpty())
        folders.append(QDir::cleanPath(folder + u'/' + name + "/plugins"_L1));
    const QStringList paths = QCoreApplication::libraryPaths();
    for (const QString &path : paths)
        folders.append(QDir::cleanPath(path + u'/' + name));
    return folders;
}

QStringList helperPrograms(QLatin1StringView program, QLatin1StringView name)
{
#ifdef Q_OS_WIN
    const QString file = program + ".exe"_L1;
#else
    const QString file = program;
#endif
    QStringList programs;
    if (const QString folder = libraryFolder(); !folder.isEmpty())
        programs.append(QDir::cleanPath(folder + u'/' + name + "/libexec/"_L1 + file));
#ifdef Q_OS_MACOS
    programs.append(QDir::cleanPath(QCoreApplication::applicationDirPath() + "/../Helpers/"_L1 + file));
#endif
    return programs;
}

} // namespace ozm
