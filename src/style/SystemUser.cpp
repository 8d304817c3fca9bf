#include "style/SystemUser.h"

#include <QtGlobal>

#ifdef Q_OS_WIN
#include <qt_windows.h>

#include <array>
#else
#include <pwd.h>
#include <unistd.h>

#include <cerrno>
#include <vector>
#endif

namespace ozm {

#ifdef Q_OS_WIN

QString systemUserName()
{
    // UNLEN and the closing zero.
    std::array<wchar_t, 257> name{};
    auto size = static_cast<DWORD>(name.size());
    return GetUserNameW(name.data(), &size) ? QString::fromWCharArray(name.data()) : QString();
}

#else

QString systemUserName()
{
    passwd entry{};
    passwd *found = nullptr;
    // Some directory services have entries far longer than the system's own.
    std::vector<char> buffer(1024);
    while (getpwuid_r(geteuid(), &entry, buffer.data(), buffer.size(), &found) == ERANGE)
        buffer.resize(buffer.size() * 2);
    return found ? QString::fromLocal8Bit(found->pw_name) : QString();
}

#endif

} // namespace ozm
