// Preloaded into a program, makes one of its system calls fail: see main.cpp. GNU/Linux only.
//
// OZM_FAULT is "<call> <errno or 'short'> <number> <once or on> <folder>": the call with that number, counted from
// 1 among those on files below the folder, fails, and with "on" all after it do. With the number 0 none does.
// Counting begins with the first call of ozm_faults_arm(), which returns how many calls there have been.

#include <cerrno>
#include <climits>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <dlfcn.h>
#include <fcntl.h>
#include <string>
#include <sys/types.h>
#include <sys/uio.h>
#include <unistd.h>

namespace {

struct Fault
{
    char call[16] = "";
    char kind[16] = "";
    char mode[8] = "";
    char folder[PATH_MAX] = "";
    int number = 0;
    int error = 0;
};

Fault readFault()
{
    Fault fault;
    const char *text = std::getenv("OZM_FAULT");
    if (text == nullptr || std::sscanf(text, "%15s %15s %d %7s %4095s", fault.call, fault.kind, &fault.number,
                                       fault.mode, fault.folder) != 5)
        return Fault();
    fault.error = std::atoi(fault.kind);
    return fault;
}

const Fault &fault()
{
    static const Fault the = readFault();
    return the;
}

bool armed = false;
int calls = 0;

bool isBelow(const char *path)
{
    return path != nullptr && std::strncmp(path, fault().folder, std::strlen(fault().folder)) == 0;
}

bool isBelow(int descriptor)
{
    char link[64];
    char path[PATH_MAX];
    std::snprintf(link, sizeof link, "/proc/self/fd/%d", descriptor);
    const ssize_t length = readlink(link, path, sizeof path - 1);
    if (length <= 0)
        return false;
    path[length] = 0;
    return isBelow(path);
}

/// True when this call, one of @p name on @p target, is to fail.
template <typename Target>
bool isDue(const char *name, Target target)
{
    if (!armed || std::strcmp(fault().call, name) != 0 || !isBelow(target))
        return false;
    ++calls;
    return fault().number > 0 &&
           (calls == fault().number || (calls > fault().number && std::strcmp(fault().mode, "on") == 0));
}

bool isShort()
{
    return std::strcmp(fault().kind, "short") == 0;
}

int failed()
{
    errno = fault().error;
    return -1;
}

template <typename Function>
Function next(const char *name)
{
    return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name));
}

mode_t modeOf(int flags, va_list arguments)
{
    return (flags & (O_CREAT | O_TMPFILE)) != 0 ? va_arg(arguments, mode_t) : 0;
}

} // namespace

// NOLINTBEGIN(readability-identifier-naming, cert-dcl50-cpp, readability-inconsistent-declaration-parameter-name): the names
// and forms are those of the C library.
extern "C" {

int ozm_faults_arm()
{
    armed = true;
    return calls;
}

#define OZM_OPEN(name)                                                                                       \
    int name(const char *path, int flags, ...)                                                               \
    {                                                                                                        \
        va_list arguments;                                                                                   \
        va_start(arguments, flags);                                                                          \
        const mode_t mode = modeOf(flags, arguments);                                                        \
        va_end(arguments);                                                                                   \
        if (isDue("open", path))                                                                             \
            return failed();                                                                                 \
        return next<int (*)(const char *, int, mode_t)>(#name)(path, flags, mode);                           \
    }
OZM_OPEN(open)
OZM_OPEN(open64)

#define OZM_OPENAT(name)                                                                                     \
    int name(int folder, const char *path, int flags, ...)                                                   \
    {                                                                                                        \
        va_list arguments;                                                                                   \
        va_start(arguments, flags);                                                                          \
        const mode_t mode = modeOf(flags, arguments);                                                        \
        va_end(arguments);                                                                                   \
        if (isDue("open", path))                                                                             \
            return failed();                                                                                 \
        return next<int (*)(int, const char *, int, mode_t)>(#name)(folder, path, flags, mode);              \
    }
OZM_OPENAT(openat)
OZM_OPENAT(openat64)

ssize_t write(int descriptor, const void *bytes, size_t size)
{
    const auto original = next<ssize_t (*)(int, const void *, size_t)>("write");
    if (!isDue("write", descriptor))
        return original(descriptor, bytes, size);
    return isShort() ? original(descriptor, bytes, size > 1 ? size / 2 : size) : failed();
}

#define OZM_PWRITE(name, offset_type)                                                                        \
    ssize_t name(int descriptor, const void *bytes, size_t size, offset_type offset)                         \
    {                                                                                                        \
        const auto original = next<ssize_t (*)(int, const void *, size_t, offset_type)>(#name);              \
        if (!isDue("write", descriptor))                                                                     \
            return original(descriptor, bytes, size, offset);                                                \
        return isShort() ? original(descriptor, bytes, size > 1 ? size / 2 : size, offset) : failed();       \
    }
OZM_PWRITE(pwrite, off_t)
OZM_PWRITE(pwrite64, off64_t)

ssize_t writev(int descriptor, const struct iovec *parts, int count)
{
    const auto original = next<ssize_t (*)(int, const struct iovec *, int)>("writev");
    if (!isDue("write", descriptor))
        return original(descriptor, parts, count);
    return isShort() ? original(descriptor, parts, 1) : failed();
}

ssize_t read(int descriptor, void *bytes, size_t size)
{
    const auto original = next<ssize_t (*)(int, void *, size_t)>("read");
    if (!isDue("read", descriptor))
        return original(descriptor, bytes, size);
    return isShort() ? original(descriptor, bytes, size > 1 ? size / 2 : size) : failed();
}

#define OZM_PREAD(name, offset_type)                                                                         \
    ssize_t name(int descriptor, void *bytes, size_t size, offset_type offset)                               \
    {                                                                                                        \
        const auto original = next<ssize_t (*)(int, void *, size_t, offset_type)>(#name);                    \
        if (!isDue("read", descriptor))                                                                      \
            return original(descriptor, bytes, size, offset);                                                \
        return isShort() ? original(descriptor, bytes, size > 1 ? size / 2 : size, offset) : failed();       \
    }
OZM_PREAD(pread, off_t)
OZM_PREAD(pread64, off64_t)

#define OZM_ON_DESCRIPTOR(name, call)                                                                        \
    int name(int descriptor)                                                                                 \
    {                                                                                                        \
        return isDue(call, descriptor) ? failed() : next<int (*)(int)>(#name)(descriptor);                   \
    }
OZM_ON_DESCRIPTOR(fsync, "fsync")
OZM_ON_DESCRIPTOR(fdatasync, "fsync")

int close(int descriptor)
{
    // The descriptor is gone whatever close() says.
    const bool due = isDue("close", descriptor);
    const int result = next<int (*)(int)>("close")(descriptor);
    return due ? failed() : result;
}

#define OZM_TRUNCATE(name, offset_type)                                                                      \
    int name(int descriptor, offset_type size)                                                               \
    {                                                                                                        \
        return isDue("ftruncate", descriptor) ? failed()                                                     \
                                              : next<int (*)(int, offset_type)>(#name)(descriptor, size);    \
    }
OZM_TRUNCATE(ftruncate, off_t)
OZM_TRUNCATE(ftruncate64, off64_t)

int rename(const char *from, const char *to)
{
    return isDue("rename", to) ? failed() : next<int (*)(const char *, const char *)>("rename")(from, to);
}

int renameat2(int fromFolder, const char *from, int toFolder, const char *to, unsigned int flags)
{
    return isDue("rename", to) ? failed()
                               : next<int (*)(int, const char *, int, const char *, unsigned int)>(
                                     "renameat2")(fromFolder, from, toFolder, to, flags);
}

int link(const char *from, const char *to)
{
    return isDue("link", to) ? failed() : next<int (*)(const char *, const char *)>("link")(from, to);
}

int linkat(int fromFolder, const char *from, int toFolder, const char *to, int flags)
{
    return isDue("link", to) ? failed()
                             : next<int (*)(int, const char *, int, const char *, int)>("linkat")(
                                   fromFolder, from, toFolder, to, flags);
}
}
// NOLINTEND
