#include "ScriptWatchdog.h"

#include <QDeadlineTimer>
#include <QJSEngine>
#include <QThread>

#include <algorithm>
#include <condition_variable>
#include <mutex>
#include <vector>

namespace ozm {

namespace {

// The end of time, added to now, is in the past on some systems.
constexpr std::chrono::nanoseconds kLongestSleep = std::chrono::hours(24);

class Watchdog
{
public:
    /// Never destroyed: its thread sleeps until the process ends, and there is no good moment to join it.
    static Watchdog &instance()
    {
        static auto *watchdog = new Watchdog;
        return *watchdog;
    }

    void watch(QJSEngine &engine, QDeadlineTimer deadline)
    {
        const std::lock_guard lock(m_mutex);
        m_watched.push_back({&engine, deadline});
        if (deadline < m_wakeUp)
            m_sooner.notify_one();
    }

    void release(QJSEngine &engine)
    {
        const std::lock_guard lock(m_mutex);
        const auto latest =
            std::ranges::find(m_watched.rbegin(), m_watched.rend(), &engine, &Watched::engine);
        m_watched.erase(std::next(latest).base());
    }

private:
    struct Watched
    {
        QJSEngine *engine;
        QDeadlineTimer deadline;
    };

    Watchdog()
    {
        QThread *thread = QThread::create([this] { run(); });
        thread->setObjectName(QStringLiteral("script watchdog"));
        thread->start();
    }

    [[noreturn]] void run()
    {
        std::unique_lock lock(m_mutex);
        while (true) {
            interruptTheLate();
            if (m_wakeUp.isForever())
                m_sooner.wait(lock);
            else
                m_sooner.wait_for(lock, std::min(m_wakeUp.remainingTimeAsDuration(), kLongestSleep));
        }
    }

    void interruptTheLate()
    {
        m_wakeUp = QDeadlineTimer(QDeadlineTimer::Forever);
        for (Watched &watched : m_watched) {
            if (watched.deadline.hasExpired()) {
                watched.engine->setInterrupted(true);
                watched.deadline = QDeadlineTimer(QDeadlineTimer::Forever);
            }
            m_wakeUp = std::min(m_wakeUp, watched.deadline);
        }
    }

    // The standard library's, as the thread sanitizer knows nothing of Qt's.
    std::mutex m_mutex;
    std::condition_variable m_sooner;
    QDeadlineTimer m_wakeUp{QDeadlineTimer::Forever};
    std::vector<Watched> m_watched;
};

} // namespace

ScriptWatch::ScriptWatch(QJSEngine &engine, std::chrono::milliseconds deadline)
    : m_engine(engine)
    , m_watching(deadline.count() > 0)
{
    if (m_watching)
        Watchdog::instance().watch(engine, QDeadlineTimer(deadline, Qt::PreciseTimer));
}

ScriptWatch::~ScriptWatch()
{
    if (!m_watching)
        return;
    Watchdog::instance().release(m_engine);
    m_engine.setInterrupted(false);
}

bool ScriptWatch::barked() const
{
    return m_engine.isInterrupted();
}

} // namespace ozm
