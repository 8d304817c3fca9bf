#pragma once

#include "../filter/EntryScan.h"
#include "TrailMarks.h"

#include <ozm_audit/Store.h>

#include <QElapsedTimer>
#include <QObject>

#include <atomic>
#include <memory>
#include <optional>

class QTimer;

namespace ozm::audit {

/**
 * Reads a trail on a thread of its own, a short piece at a time: how long it is, which entries a filter shows,
 * and what entries say about each other.
 */
class TrailScanner : public QObject
{
    Q_OBJECT

public:
    TrailScanner(const Store &store, std::shared_ptr<TrailMarks> marks);
    ~TrailScanner() override;

    /// From any thread: the store is wanted for rows in sight. The scanner leaves it alone for a moment.
    void giveWay() { m_wanted = true; }

    // Called on the scanner's thread.
    void start();
    void setFilter(const TrailFilter &filter, int generation);
    void sort(const QList<qint64> &numbers, int column, int generation);

Q_SIGNALS:
    void grown(qint64 size);
    void found(int generation, const QList<qint64> &numbers, qint64 upTo);
    void marked();
    /// Positions of @p numbers of sort() in ascending order of their texts.
    void sorted(int generation, const QList<int> &order);
    void failed(const ozm::Error &error);

private:
    void poll();
    void step();
    void schedule(int afterMs = 0);
    [[nodiscard]] bool searchPiece();
    [[nodiscard]] Result<QList<qint64>> search(qint64 first, qint64 last);
    [[nodiscard]] bool markPiece();
    [[nodiscard]] Error readEvidence();

    const Store &m_store;
    const std::shared_ptr<TrailMarks> m_marks;
    QTimer *m_poll = nullptr;
    QElapsedTimer m_sinceMarked;
    std::atomic<bool> m_wanted = false;
    bool m_scheduled = false;
    qint64 m_size = 0;
    bool m_evidenceRead = false;

    std::optional<EntryScan> m_scan;
    TrailFilter m_filter;
    int m_generation = 0;
    qint64 m_searched = 0;
    qint64 m_piece = 0;
};

} // namespace ozm::audit
