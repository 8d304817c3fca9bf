#include "FileLocks.h"

#include <QFile>

#ifdef Q_OS_WIN
#include <io.h>
#include <windows.h>
#else
#include <fcntl.h>
#endif

namespace ozm::audit {

namespace {

#ifdef Q_OS_WIN
bool change(const QFile &file, long long byte, bool lock)
{
    auto *handle = reinterpret_cast<HANDLE>(_get_osfhandle(file.handle()));
    OVERLAPPED at = {};
    at.Offset = DWORD(byte);
    if (!lock)
        return UnlockFileEx(handle, 0, 1, 0, &at) != 0;
    return LockFileEx(handle, LOCKFILE_EXCLUSIVE_LOCK | LOCKFILE_FAIL_IMMEDIATELY, 0, 1, 0, &at) != 0;
}
#else
// Locks of the open file, where there are such: the others are shared by all of a program.
#ifdef F_OFD_SETLK
constexpr int kSetLock = F_OFD_SETLK;
#else
constexpr int kSetLock = F_SETLK;
#endif

bool change(const QFile &file, long long byte, bool lock)
{
    struct flock range = {};
    range.l_type = lock ? F_WRLCK : F_UNLCK;
    range.l_whence = SEEK_SET;
    range.l_start = byte;
    range.l_len = 1;
    return ::fcntl(file.handle(), kSetLock, &range) == 0;
}
#endif

} // namespace

bool tryLock(const QFile &file, long long byte)
{
    return change(file, byte, true);
}

void unlock(const QFile &file, long long byte)
{
    change(file, byte, false);
}

} // namespace ozm::audit
