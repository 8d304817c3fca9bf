#include "TrailScanner.h"

#include "RowText.h"

#include <QTimer>

#include <algorithm>
#include <numeric>

namespace ozm::audit {

namespace {

// Below the time in which an eye sees a new row; next to no work for the store.
constexpr int kPollMs = 150;
// Others wait for the store no longer than about this.
constexpr qint64 kPieceMs = 15;
constexpr qint64 kSmallestPiece = 128;
constexpr qint64 kLargestPiece = 1 << 16;
constexpr qint64 kMarkPiece = 100;
constexpr int kGiveWayMs = 60;
// A view draws itself again each time.
constexpr int kTellMs = 250;

} // namespace

TrailScanner::TrailScanner(const Store &store, std::shared_ptr<TrailMarks> marks)
    : m_store(store)
    , m_marks(std::move(marks))
{}

TrailScanner::~TrailScanner() = default;

void TrailScanner::start()
{
    m_poll = new QTimer(this);
    connect(m_poll, &QTimer::timeout, this, &TrailScanner::poll);
    m_poll->start(kPollMs);
    poll();
}

void TrailScanner::setFilter(const TrailFilter &filter, int generation)
{
    m_filter = filter;
    m_generation = generation;
    m_searched = 0;
    m_piece = kSmallestPiece;
    m_scan.reset();
    if (!filter.isEmpty())
        m_scan.emplace(filter);
    schedule();
}

void TrailScanner::poll()
{
    const auto size = m_store.size();
    if (!size) {
        Q_EMIT failed(size.error());
        return;
    }
    if (size.value() == m_size)
        return;
    m_size = size.value();
    Q_EMIT grown(m_size);
    schedule();
}

void TrailScanner::schedule(int afterMs)
{
    if (m_scheduled)
        return;
    m_scheduled = true;
    QTimer::singleShot(afterMs, this, &TrailScanner::step);
}

void TrailScanner::step()
{
    m_scheduled = false;
    if (!m_evidenceRead) {
        m_evidenceRead = true;
        if (Error error = readEvidence(); error.hasError())
            Q_EMIT failed(error);
    }
    const bool more = searchPiece();
    // A mutex is not fair: who takes it again and again keeps others out.
    if (!more && m_wanted.exchange(false)) {
        schedule(kGiveWayMs);
        return;
    }
    if (more || markPiece())
        schedule();
}

bool TrailScanner::searchPiece()
{
    if (!m_scan || m_searched >= m_size)
        return false;
    QElapsedTimer timer;
    timer.start();
    const qint64 last = qMin(m_size, m_searched + m_piece);
    const auto numbers = search(m_searched + 1, last);
    if (!numbers) {
        Q_EMIT failed(numbers.error());
        return false;
    }
    m_searched = last;
    m_piece = qBound(kSmallestPiece, timer.elapsed() < kPieceMs ? m_piece * 2 : m_piece / 2, kLargestPiece);
    Q_EMIT found(m_generation, numbers.value(), m_searched);
    return true;
}

Result<QList<qint64>> TrailScanner::search(qint64 first, qint64 last)
{
    Query query = m_filter.query;
    query.firstNumber = first;
    query.lastNumber = last;
    query.pageSize = int(last - first + 1);
    auto numbers = m_store.findNumbers(query);
    if (!numbers || !m_filter.needsEntries())
        return numbers;
    QList<qint64> accepted;
    Error error = m_store.forEach(first, last, [&](const Entry &entry) {
        if (m_scan->accepts(entry) && std::ranges::binary_search(numbers.value(), entry.number))
            accepted.append(entry.number);
        return true;
    });
    if (error.hasError())
        return error;
    return accepted;
}

Error TrailScanner::readEvidence()
{
    Query query;
    query.kinds = {Kind::Signature, Kind::Review};
    while (true) {
        const auto page = m_store.find(query);
        if (!page || page.value().isEmpty())
            return page ? Error() : page.error();
        for (const Entry &entry : page.value())
            m_marks->takeEvidence(entry);
        query.after = page.value().constLast().number;
    }
}

bool TrailScanner::markPiece()
{
    const qint64 known = m_marks->known();
    if (known >= m_size)
        return false;
    const qint64 last = qMin(m_size, known + kMarkPiece);
    qint64 taken = 0;
    Error error = m_store.forEach(known + 1, last, [&](const Entry &entry) {
        m_marks->take(entry);
        taken = entry.number;
        return true;
    });
    if (error.hasError() || taken == 0) {
        if (error.hasError())
            Q_EMIT failed(error);
        return false;
    }
    if (taken == m_size || !m_sinceMarked.isValid() || m_sinceMarked.hasExpired(kTellMs)) {
        m_sinceMarked.start();
        Q_EMIT marked();
    }
    return taken < m_size;
}

void TrailScanner::sort(const QList<qint64> &numbers, int column, int generation)
{
    QStringList keys;
    keys.reserve(numbers.size());
    for (const qint64 number : numbers) {
        const auto entry = m_store.entry(number);
        keys.append(entry ? sortText(entry.value(), m_marks->of(entry.value()), column) : QString());
    }
    QList<int> order(numbers.size());
    std::iota(order.begin(), order.end(), 0);
    std::ranges::stable_sort(order,
                             [&keys](int a, int b) { return keys.at(a).localeAwareCompare(keys.at(b)) < 0; });
    Q_EMIT sorted(generation, order);
}

} // namespace ozm::audit
