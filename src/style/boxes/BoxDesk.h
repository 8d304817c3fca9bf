#pragma once

#include <QMessageBox>
#include <QPointer>

#include <atomic>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>

namespace ozm {

/**
 * Where other threads hand in their boxes to the GUI thread, as long as that takes any.
 *
 * The desk opens with the application and closes when its event loop ends: all that was handed in and not
 * begun is then lost, at once, and so is all that comes later. An event loop that runs again opens it again.
 */
class BoxDesk
{
public:
    using Answer = std::optional<QMessageBox::StandardButton>;

    static BoxDesk &instance();

    /// Calls @p work on the GUI thread and waits for its answer; none when the work was lost. Any other thread.
    [[nodiscard]] Answer ask(const std::function<Answer()> &work);
    /// Has @p work called on the GUI thread later; work that is lost is destroyed. Any thread.
    void post(const std::function<void()> &work);
    [[nodiscard]] bool isOpen();

    // GUI thread, all three.
    void open();
    void close();
    /// To be called as the event loop wakes up: tells the end of this loop, with all that aboutToQuit() calls.
    void awaitLoopEnd();

private:
    void reopenWithTheLoop();

    std::mutex m_mutex;
    bool m_open = false;
    /// Receives what is handed in; it outlives the application, so that nobody posts to a dead object.
    std::unique_ptr<QObject> m_receiver;
    /// Deleted when the event loop has ended that it was left to, and not by loops that run inside it or at its end.
    QPointer<QObject> m_loopEnd;
    /// Calls that are on their way, or posted and not begun.
    std::atomic<int> m_waiting = 0;
};

} // namespace ozm
