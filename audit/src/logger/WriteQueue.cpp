#include "WriteQueue.h"

#include "Texts.h"
#include <QLoggingCategory>

#include <algorithm>
#include <chrono>

namespace ozm::audit {

namespace {

// So many entries in a commit cost little more than one, and make nobody wait long.
constexpr qsizetype kGroup = 512;
constexpr std::chrono::milliseconds kRetry{200};

} // namespace

WriteQueue::WriteQueue(Store &store, const SessionFacts &facts, int length,
                       std::function<void(qint64)> written)
    : m_store(store)
    , m_facts(facts)
    , m_length(length)
    , m_written(std::move(written))
    , m_thread([this] { write(); })
{}

WriteQueue::~WriteQueue()
{
    {
        const std::lock_guard lock(m_mutex);
        m_ending = true;
        m_work.notify_all();
    }
    m_thread.join();
    if (outstandingLocked() > 0) {
        qCWarning(lcAudit).noquote() << outstandingLocked()
                                     << "audit records are lost:" << m_error.errorMessage();
    }
}

Result<qint64> WriteQueue::push(QList<PendingRecord> records)
{
    std::unique_lock lock(m_mutex);
    m_progress.wait(lock, [this] { return m_error.hasError() || outstandingLocked() < m_length; });
    if (m_error.hasError())
        return m_error;
    const qint64 first = m_handedOver + 1;
    for (PendingRecord &record : records) {
        const qint64 below = record.below < 0 ? 0 : first + record.below;
        m_waiting.push_back({std::move(record), below});
    }
    m_handedOver += records.size();
    m_work.notify_one();
    return first;
}

qint64 WriteQueue::watermark() const
{
    const std::lock_guard lock(m_mutex);
    return m_watermark;
}

qint64 WriteQueue::handedOver() const
{
    const std::lock_guard lock(m_mutex);
    return m_handedOver;
}

Error WriteQueue::error() const
{
    const std::lock_guard lock(m_mutex);
    return m_error;
}

bool WriteQueue::wait(qint64 ticket, QDeadlineTimer deadline)
{
    std::unique_lock lock(m_mutex);
    const auto isDone = [this, ticket] { return m_watermark >= ticket || m_error.hasError(); };
    if (deadline.isForever())
        m_progress.wait(lock, isDone);
    else
        (void)m_progress.wait_until(lock, deadline.deadline<std::chrono::steady_clock>(), isDone);
    return m_watermark >= ticket;
}

qint64 WriteQueue::numberOf(qint64 ticket) const
{
    const std::lock_guard lock(m_mutex);
    return numberLocked(ticket);
}

qint64 WriteQueue::numberLocked(qint64 ticket) const
{
    // The last run first: parents are mostly recent.
    for (qsizetype i = m_runs.size(); i-- > 0;) {
        const Run &run = m_runs.at(i);
        if (ticket >= run.ticket && ticket < run.ticket + run.count)
            return run.number + ticket - run.ticket;
    }
    return 0;
}

void WriteQueue::write()
{
    std::unique_lock lock(m_mutex);
    while (true) {
        if (m_taken.empty()) {
            m_work.wait(lock, [this] { return !m_waiting.empty() || m_ending; });
            m_taken.swap(m_waiting);
        }
        if (m_taken.empty())
            return;
        lock.unlock();
        const QList<Draft> group = nextGroup();
        const auto number = m_store.append(group);
        lock.lock();
        settleGroup(number, group.size());
        if (number) {
            lock.unlock();
            m_taken.erase(m_taken.begin(), m_taken.begin() + group.size());
            m_written(number.value() + group.size() - 1);
            lock.lock();
        } else if (m_ending) {
            return;
        } else {
            m_work.wait_for(lock, kRetry);
        }
    }
}

QList<Draft> WriteQueue::nextGroup() const
{
    // Nobody else changes it.
    const qint64 firstTicket = m_watermark + 1;
    const qsizetype count = std::min(kGroup, qsizetype(m_taken.size()));
    QList<Draft> group;
    group.reserve(count);
    for (auto waiting = m_taken.cbegin(); waiting != m_taken.cbegin() + count; ++waiting) {
        group.append(m_facts.draftOf(waiting->record));
        group.last().parent = parentOf(*waiting, firstTicket);
    }
    return group;
}

qint64 WriteQueue::parentOf(const Waiting &waiting, qint64 firstTicket) const
{
    const qint64 ticket = waiting.belowTicket != 0 ? waiting.belowTicket : -waiting.record.parent;
    if (ticket <= 0)
        return waiting.record.parent;
    return ticket >= firstTicket ? Draft::below(ticket - firstTicket) : numberLocked(ticket);
}

void WriteQueue::settleGroup(const Result<qint64> &number, qsizetype count)
{
    m_error = number ? Error() : number.error();
    if (number) {
        const qint64 ticket = m_watermark + 1;
        if (!m_runs.isEmpty() && m_runs.constLast().number + m_runs.constLast().count == number.value())
            m_runs.last().count += count;
        else
            m_runs.append({ticket, number.value(), count});
        m_watermark += count;
    }
    m_progress.notify_all();
}

} // namespace ozm::audit
