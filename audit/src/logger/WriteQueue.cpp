#include "WriteQueue.h"

#include "Texts.h"
#include <QLoggingCategory>

#include <algorithm>

namespace ozm::audit {

namespace {

// So many entries in a commit cost little more than one, and make nobody wait long.
constexpr std::size_t kGroup = 512;
constexpr int kRetryMs = 200;

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
        const QMutexLocker lock(&m_mutex);
        m_ending = true;
        m_work.wakeAll();
    }
    m_thread.join();
    if (!m_waiting.empty()) {
        qCWarning(lcAudit).noquote() << m_waiting.size()
                                     << "audit records are lost:" << m_error.errorMessage();
    }
}

Result<qint64> WriteQueue::push(QList<PendingRecord> records)
{
    const QMutexLocker lock(&m_mutex);
    while (!m_error.hasError() && qsizetype(m_waiting.size()) >= m_length)
        m_progress.wait(&m_mutex);
    if (m_error.hasError())
        return m_error;
    const qint64 first = m_handedOver + 1;
    for (PendingRecord &record : records) {
        const qint64 below = record.below < 0 ? 0 : first + record.below;
        m_waiting.push_back({std::move(record), below});
    }
    m_handedOver += records.size();
    m_work.wakeOne();
    return first;
}

qint64 WriteQueue::watermark() const
{
    const QMutexLocker lock(&m_mutex);
    return m_watermark;
}

qint64 WriteQueue::handedOver() const
{
    const QMutexLocker lock(&m_mutex);
    return m_handedOver;
}

Error WriteQueue::error() const
{
    const QMutexLocker lock(&m_mutex);
    return m_error;
}

bool WriteQueue::wait(qint64 ticket, QDeadlineTimer deadline)
{
    const QMutexLocker lock(&m_mutex);
    while (m_watermark < ticket && !m_error.hasError()) {
        if (!m_progress.wait(&m_mutex, deadline))
            break;
    }
    return m_watermark >= ticket;
}

qint64 WriteQueue::numberOf(qint64 ticket) const
{
    const QMutexLocker lock(&m_mutex);
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
    QMutexLocker lock(&m_mutex);
    while (true) {
        while (m_waiting.empty() && !m_ending)
            m_work.wait(&m_mutex);
        if (m_waiting.empty())
            return;
        const QList<Draft> group = nextGroup(m_watermark + 1);
        lock.unlock();
        const auto number = m_store.append(group);
        lock.relock();
        settleGroup(number, group.size());
        if (number) {
            lock.unlock();
            m_written(number.value() + group.size() - 1);
            lock.relock();
        } else if (m_ending) {
            return;
        } else {
            m_work.wait(&m_mutex, kRetryMs);
        }
    }
}

QList<Draft> WriteQueue::nextGroup(qint64 firstTicket) const
{
    // The elements stay in place while others are added behind them, so their JSON is written without the
    // lock.
    std::vector<const Waiting *> front;
    for (std::size_t i = 0; i < std::min(kGroup, m_waiting.size()); ++i)
        front.push_back(&m_waiting[i]);
    QList<Draft> group;
    group.reserve(qsizetype(front.size()));
    m_mutex.unlock();
    for (const Waiting *waiting : front)
        group.append(m_facts.draftOf(waiting->record));
    m_mutex.lock();
    auto waiting = front.cbegin();
    for (Draft &draft : group)
        draft.parent = parentOf(**waiting++, firstTicket);
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
        m_waiting.erase(m_waiting.begin(), m_waiting.begin() + count);
    }
    m_progress.wakeAll();
}

} // namespace ozm::audit
