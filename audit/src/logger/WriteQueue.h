#pragma once

#include "SessionFacts.h"

#include <QDeadlineTimer>

#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <thread>

namespace ozm::audit {

/**
 * Records on their way to a store, written by a thread of its own in groups.
 *
 * Each record gets a ticket, counted from 1; those up to the watermark are durable, in the order of their
 * tickets. A failure of the store stops the writing, refuses further records, and is tried again from time to
 * time; nothing that was taken is dropped while the queue lives.
 */
class WriteQueue
{
public:
    /// @p written is told, on the writing thread, the number of the last entry of each group.
    WriteQueue(Store &store, const SessionFacts &facts, int length, std::function<void(qint64)> written);
    /// Writes what is left; with a store that fails, warns how many records are lost.
    ~WriteQueue();
    Q_DISABLE_COPY_MOVE(WriteQueue)

    /// The ticket of the first; waits while the queue is full.
    [[nodiscard]] Result<qint64> push(QList<PendingRecord> records);

    [[nodiscard]] qint64 watermark() const;
    [[nodiscard]] qint64 handedOver() const;
    [[nodiscard]] Error error() const;
    [[nodiscard]] bool wait(qint64 ticket, QDeadlineTimer deadline);
    /// The number of a ticket's entry, 0 above the watermark.
    [[nodiscard]] qint64 numberOf(qint64 ticket) const;

private:
    struct Waiting
    {
        PendingRecord record;
        qint64 belowTicket = 0;
    };
    /// Tickets from a first one on, and the numbers they got: one run for as long as nobody else writes.
    struct Run
    {
        qint64 ticket = 0;
        qint64 number = 0;
        qint64 count = 0;
    };

    void write();
    [[nodiscard]] QList<Draft> nextGroup() const;
    [[nodiscard]] qint64 parentOf(const Waiting &waiting, qint64 firstTicket) const;
    [[nodiscard]] qint64 numberLocked(qint64 ticket) const;
    void settleGroup(const Result<qint64> &number, qsizetype count);
    [[nodiscard]] qint64 outstandingLocked() const { return m_handedOver - m_watermark; }

    Store &m_store;
    const SessionFacts &m_facts;
    const qsizetype m_length;
    const std::function<void(qint64)> m_written;

    // The standard library's, as the thread sanitizer knows nothing of Qt's.
    mutable std::mutex m_mutex;
    std::condition_variable m_work;
    std::condition_variable m_progress;
    std::deque<Waiting> m_waiting;
    // The writing thread's own, so that nobody who pushes waits while it writes their JSON or frees them.
    std::deque<Waiting> m_taken;
    qint64 m_handedOver = 0;
    qint64 m_watermark = 0;
    QList<Run> m_runs; // The writing thread, which alone changes it, reads it without the lock.
    Error m_error;
    bool m_ending = false;
    std::thread m_thread;
};

} // namespace ozm::audit
