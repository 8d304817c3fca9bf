#include "ProcessLimits.h"

#include <QFile>

#ifdef Q_OS_WIN
#include <windows.h>
#else
#include <sys/resource.h>
#include <unistd.h>
#endif

namespace ozm {

namespace {

// Sanitizers reserve more addresses than any bound allows.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr bool kIsBounded = false;
#else
constexpr bool kIsBounded = true;
#endif

#ifdef Q_OS_WIN
void limitMemory(quint64 bytes)
{
    JOBOBJECT_EXTENDED_LIMIT_INFORMATION limits = {};
    limits.BasicLimitInformation.LimitFlags =
        JOB_OBJECT_LIMIT_PROCESS_MEMORY | JOB_OBJECT_LIMIT_DIE_ON_UNHANDLED_EXCEPTION;
    limits.ProcessMemoryLimit = SIZE_T(bytes);
    // Held until the process ends.
    const HANDLE job = CreateJobObjectW(nullptr, nullptr);
    if (job && SetInformationJobObject(job, JobObjectExtendedLimitInformation, &limits, sizeof(limits)))
        AssignProcessToJobObject(job, GetCurrentProcess());
}

void leaveNoDump()
{
    SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOGPFAULTERRORBOX);
}
#else
/// The addresses that this process has, where the system tells.
quint64 addressesTaken()
{
    QFile file(QStringLiteral("/proc/self/statm"));
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    return file.readAll().split(' ').constFirst().toULongLong() * static_cast<quint64>(sysconf(_SC_PAGESIZE));
}

void limitTo(int resource, rlim_t value)
{
    rlimit limit = {};
    if (getrlimit(resource, &limit) != 0)
        return;
    limit.rlim_cur = qMin(limit.rlim_max, value);
    limit.rlim_max = limit.rlim_cur;
    setrlimit(resource, &limit);
}

void limitMemory(quint64 bytes)
{
    limitTo(RLIMIT_AS, static_cast<rlim_t>(addressesTaken() + bytes));
}

void leaveNoDump()
{
    limitTo(RLIMIT_CORE, 0);
}
#endif

} // namespace

void limitProcess(quint64 bytes)
{
    leaveNoDump();
    if (kIsBounded && bytes > 0)
        limitMemory(bytes);
}

} // namespace ozm
