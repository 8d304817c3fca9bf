#pragma once

#include "NumberList.h"
#include "PageCache.h"
#include "TrailScanner.h"

#include <ozm_audit_widgets/TrailModel.h>

#include <QThread>
#include <QTimer>

#include <memory>
#include <optional>

namespace ozm::audit {

class TrailModel::Private
{
public:
    Private(TrailModel &model, Store &used);
    ~Private();

    [[nodiscard]] bool isFiltered() const { return filtered; }
    [[nodiscard]] qint64 count() const { return isFiltered() ? found.count() : size; }
    [[nodiscard]] QList<qint64> numbersAt(qint64 position, qint64 wanted) const;
    /// The position in the order of the store, or -1 for a pending row.
    [[nodiscard]] qint64 positionOf(int row) const;
    [[nodiscard]] int rowOfPosition(qint64 position) const;
    [[nodiscard]] TrailRow *rowAt(int row);
    [[nodiscard]] QVariant cell(TrailRow *row, int column, int role);
    [[nodiscard]] QString fullText(TrailRow &row, int column) const;
    /// In one line, of which a cell shows the beginning.
    [[nodiscard]] QString shownText(TrailRow &row, int column) const;
    [[nodiscard]] QVariant pendingCell(int column, int role) const;

    void grown(qint64 to);
    void added(const QList<qint64> &numbers, qint64 upTo);
    void insertRows(qint64 more, const std::function<void()> &grow);
    void updatePending();
    void marked();
    void orderBy(const QList<int> &newOrder);
    /// Carries the selection over to the rows that @p change leads to.
    void changeOrder(const std::function<void()> &change);
    void reset(const std::function<void()> &change);

    TrailModel &q;
    Store &store;
    const Logger *logger = nullptr;
    const std::shared_ptr<TrailMarks> marks = std::make_shared<TrailMarks>();

    TrailFilter filter;
    bool filtered = false; ///< Asked for with each cell, and the filter would put its conditions into words.
    Zone zone = Zone::Local;
    int marksStamp = 0;
    int generation = 0;
    qint64 size = 0;
    qint64 searched = 0;
    qint64 waiting = 0; ///< Rows that a queued logger has not written.
    NumberList found;
    // A review or signature names its entries in its own record.
    static constexpr qsizetype kMostRuns = 100'000;
    NumberSet foundSet; ///< Of @c found, up to so many runs.

    int sortedBy = Number;
    Qt::SortOrder direction = Qt::AscendingOrder;
    bool newestFirst = false; ///< Of rows that no other order is known for.
    int sortToken = 0;        ///< Of the last order that was asked for.
    /// Positions by row; empty in the order of the store. Rows that came after the sort follow as they came.
    QList<int> order;
    QList<int> rowsByPosition;

    PageCache pages;
    QThread thread;
    TrailScanner *scanner = nullptr; ///< Lives on the thread, and ends with it.
    QTimer pendingTimer;
};

} // namespace ozm::audit
