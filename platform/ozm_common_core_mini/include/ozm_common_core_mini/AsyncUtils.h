#pragma once

#include <ozm_common_stable/Result.h>

#include <QLoggingCategory>
#include <QObject>
#include <QThread>

#include <chrono>
#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>

namespace ozm {

namespace internal {

/// A caller's wait for work that is on its way to another thread.
class HandOver
{
public:
    /// To be called where the work is to be done; false when the caller no longer waits for it.
    bool begin() { return move(State::Waiting, State::Running); }
    void finish() { move(State::Running, State::Done); }
    /// The work will not be done; work that was begun is not touched by it.
    void lose() { move(State::Waiting, State::Lost); }

    /// Waits until the work is done; false when it was lost.
    bool wait(std::chrono::milliseconds patience)
    {
        std::unique_lock lock(m_mutex);
        if (!m_changed.wait_for(lock, patience, [this] { return m_state != State::Waiting; })) {
            lock.unlock();
            warn();
            lock.lock();
        }
        m_changed.wait(lock, [this] { return m_state == State::Done || m_state == State::Lost; });
        return m_state == State::Done;
    }

private:
    enum class State
    {
        Waiting,
        Running,
        Done,
        Lost
    };

    bool move(State from, State to)
    {
        const std::lock_guard lock(m_mutex);
        if (m_state != from)
            return false;
        m_state = to;
        // The beginning of the work wakes nobody; it is checked when the waiting time has passed.
        if (to != State::Running)
            m_changed.notify_all();
        return true;
    }

    static void warn()
    {
        static const QLoggingCategory category("ozm.async");
        const QThread *caller = QThread::currentThread();
        qCWarning(category).nospace().noquote()
            << "Thread \"" << caller->objectName() << "\" (" << static_cast<const void *>(caller)
            << ") waits long for another thread to take its work; does that thread wait for this one?";
    }

    std::mutex m_mutex;
    std::condition_variable m_changed;
    State m_state = State::Waiting;
};

/// Where the value of the work goes; nothing has none.
template <typename T>
struct HandOverValue
{
    std::optional<T> value;
    void take(const std::function<T()> &work) { value.emplace(work()); }
    Result<T> result() { return std::move(*value); }
};

template <>
struct HandOverValue<void>
{
    void take(const std::function<void()> &work) { work(); }
    Result<void> result() { return {}; }
};

} // namespace internal

/**
 * Work that has to be done on a certain thread, asked for from any.
 *
 *     const ozm::Result<int> rows =
 *         ozm::AsyncUtils::executeInThread<int>(view, [view] { return view->model()->rowCount(); });
 *
 * When this deadlocks: if the thread of the context waits for the calling thread, for its end, for a lock it
 * holds, for a result of it. Neither then goes on. So call it without holding a lock, and let the other
 * thread not wait: it should be told by a signal that the calling thread is done. A warning (category
 * "ozm.async") names the calling thread when its work is not begun within five seconds.
 */
class AsyncUtils
{
public:
    /// Long past any work that an event loop does between two events.
    static constexpr std::chrono::milliseconds kPatience{5000};

    /**
     * Calls @p work on the thread that @p context lives in, waits for it, and returns its value. On that
     * thread itself, @p work is simply called. T may be void, and may be a type that can only be moved.
     *
     * Fails, with code Failed, when the work will not be done: "Thread context object cannot be null.";
     * "Execute code in thread failed." when the context's thread has finished, or finishes or the context
     * is deleted before the work was begun. The context must be there when this is called.
     */
    template <typename T>
    static Result<T> executeInThread(QObject *context, const std::function<T()> &work,
                                     std::chrono::milliseconds patience = kPatience)
    {
        if (!context)
            return failure(QStringLiteral("Thread context object cannot be null."), OZM_HERE);
        internal::HandOverValue<T> value;
        if (context->thread() == QThread::currentThread())
            value.take(work);
        else if (!handOver(
                     context, [&value, &work] { value.take(work); }, patience))
            return failure(QStringLiteral("Execute code in thread failed."), OZM_HERE);
        return value.result();
    }

private:
    static Error failure(const QString &text, const ErrorPlace &place)
    {
        return Error(ErrorCode::Failed, text).ecatch(place);
    }

    /// The posted call: runs @p work, which belongs to the caller and is valid as long as begin() says so.
    static auto errand(const std::shared_ptr<internal::HandOver> &waiting, std::shared_ptr<void> ticket,
                       const std::function<void()> &work)
    {
        return [waiting, ticket = std::move(ticket), &work] {
            if (!waiting->begin())
                return;
            work();
            waiting->finish();
        };
    }

    static bool handOver(QObject *context, const std::function<void()> &work,
                         std::chrono::milliseconds patience)
    {
        const QThread *thread = context->thread();
        if (!thread)
            return false;
        const auto waiting = std::make_shared<internal::HandOver>();
        // Qt's own blocking call takes a receiver that dies, or whose thread ends, for one that has done the
        // work, or waits for ever. The ticket goes with the posted event, whatever becomes of it.
        std::shared_ptr<void> ticket(nullptr, [waiting](void *) { waiting->lose(); });
        const auto finished = QObject::connect(thread, &QThread::finished, [waiting] { waiting->lose(); });
        if (thread->isFinished())
            waiting->lose();
        else
            QMetaObject::invokeMethod(context, errand(waiting, std::move(ticket), work),
                                      Qt::QueuedConnection);
        const bool done = waiting->wait(patience);
        QObject::disconnect(finished);
        return done;
    }
};

} // namespace ozm
