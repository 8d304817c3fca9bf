#include <ozm_audit/Logger.h>

#include <chrono>

#ifdef Q_OS_WIN
#include <windows.h>
#elif defined(Q_OS_LINUX)
#include <ctime>
#endif

namespace ozm::audit {

Clock::~Clock() = default;

qint64 Clock::wallMs()
{
    return QDateTime::currentMSecsSinceEpoch();
}

qint64 Clock::monotonicUs()
{
#ifdef Q_OS_WIN
    ULONGLONG hundreds = 0;
    ::QueryInterruptTime(&hundreds);
    return qint64(hundreds / 10);
#elif defined(Q_OS_LINUX)
    // The plain monotonic clock stands while the machine sleeps, and each sleep would look like a jump.
    timespec now = {};
    ::clock_gettime(CLOCK_BOOTTIME, &now);
    return qint64(now.tv_sec) * 1'000'000 + now.tv_nsec / 1000;
#else
    using namespace std::chrono;
    return duration_cast<microseconds>(steady_clock::now().time_since_epoch()).count();
#endif
}

ReasonPolicy::~ReasonPolicy() = default;

QStringList ReasonPolicy::choices(const OperationLogItemData &) const
{
    return {};
}

} // namespace ozm::audit
