#include "TrailModel_p.h"

#include "RowText.h"

#include <ozm_audit/Logger.h>

#include <QFont>

#include <algorithm>
#include <limits>
#include <numeric>

using namespace Qt::StringLiterals;

namespace ozm::audit {

namespace {

// Long texts are cut in cells; the details and the tool tip have all of them.
constexpr qsizetype kMostInCell = 300;
constexpr int kPendingMs = 200;

/// Unusual entries differ in form, not in colour, so that every palette can show it.
QFont italicFont()
{
    QFont font;
    font.setItalic(true);
    return font;
}

QString oneLine(const QString &text)
{
    return text.left(kMostInCell).simplified();
}

} // namespace

TrailModel::Private::Private(TrailModel &model, Store &used)
    : q(model)
    , store(used)
    , pages(used, [this](qint64 position, qint64 wanted) { return numbersAt(position, wanted); })
{
    if (const auto known = store.size())
        size = known.value();
    scanner = new TrailScanner(store, marks);
    scanner->moveToThread(&thread);
    QObject::connect(&thread, &QThread::started, scanner, &TrailScanner::start);
    QObject::connect(&thread, &QThread::finished, scanner, &QObject::deleteLater);
    QObject::connect(scanner, &TrailScanner::grown, &q, [this](qint64 to) { grown(to); });
    QObject::connect(scanner, &TrailScanner::found, &q,
                     [this](int of, const QList<qint64> &numbers, qint64 upTo) {
                         if (of == generation)
                             added(numbers, upTo);
                     });
    QObject::connect(scanner, &TrailScanner::sorted, &q, [this](int of, const QList<int> &newOrder) {
        if (of == sortToken)
            orderBy(newOrder);
    });
    QObject::connect(scanner, &TrailScanner::marked, &q, [this] { marked(); });
    QObject::connect(scanner, &TrailScanner::failed, &q, &TrailModel::failed);
    QObject::connect(&pendingTimer, &QTimer::timeout, &q, [this] { updatePending(); });
    pendingTimer.setInterval(kPendingMs);
    thread.setObjectName(u"audit trail"_s);
    thread.start(QThread::LowPriority);
}

TrailModel::Private::~Private()
{
    thread.quit();
    thread.wait();
}

QList<qint64> TrailModel::Private::numbersAt(qint64 position, qint64 wanted) const
{
    scanner->giveWay();
    if (isFiltered())
        return found.mid(position, wanted);
    QList<qint64> numbers(qMax<qint64>(0, qMin(wanted, size - position)));
    std::iota(numbers.begin(), numbers.end(), position + 1);
    return numbers;
}

qint64 TrailModel::Private::positionOf(int row) const
{
    if (!order.isEmpty())
        return row < order.size() ? order.at(row) : row;
    if (!newestFirst)
        return row < count() ? row : -1;
    return row < waiting ? -1 : count() - 1 - (row - waiting);
}

int TrailModel::Private::rowOfPosition(qint64 position) const
{
    if (!order.isEmpty())
        return int(position < rowsByPosition.size() ? rowsByPosition.at(position) : position);
    return int(!newestFirst ? position : count() - 1 - position + waiting);
}

TrailRow *TrailModel::Private::rowAt(int row)
{
    TrailRow *found_ = pages.row(positionOf(row));
    if (Error error = pages.takeError(); error.hasError())
        QMetaObject::invokeMethod(
            &q, [this, error] { Q_EMIT q.failed(error); }, Qt::QueuedConnection);
    return found_;
}

QVariant TrailModel::Private::cell(TrailRow *at, int column, int role)
{
    if (!at)
        return pendingCell(column, role);
    const Entry &entry = at->entry;
    if (role == NumberRole)
        return entry.number;
    if (role == GroupRole)
        return entry.kind == Kind::Commit ? 0 : entry.parent;
    if (at->marksStamp != marksStamp) {
        at->marks = q.marks(entry);
        at->marksStamp = marksStamp;
        at->cells[State].clear();
    }
    const Marks state = at->marks;
    switch (role) {
    case MarksRole:
        return int(state.toInt());
    case Qt::DecorationRole:
        return column == State && state != Marks() ? QVariant(marksIcon(state)) : QVariant();
    case Qt::FontRole:
        return state.testAnyFlags(Mark::Undone | Mark::Unfinished | Mark::Disposed) ? QVariant(italicFont())
                                                                                    : QVariant();
    case Qt::DisplayRole: {
        QString &shown = at->cells.at(std::size_t(column));
        if (shown.isNull())
            shown = shownText(*at, column);
        return shown;
    }
    default:
        return fullText(*at, column);
    }
}

QString TrailModel::Private::fullText(TrailRow &row, int column) const
{
    if (!row.texts)
        row.texts = EntryTexts::of(row.entry);
    return cellText(row.entry, *row.texts, row.marks, column, zone);
}

QString TrailModel::Private::shownText(TrailRow &row, int column) const
{
    const QString text = oneLine(fullText(row, column));
    const bool indented = column == What && row.entry.parent != 0 && row.entry.kind != Kind::Commit;
    // Not null: that means that it was not made.
    return (indented ? u"\u2003\u2003"_s : u""_s) + text;
}

QVariant TrailModel::Private::pendingCell(int column, int role) const
{
    if (role == MarksRole)
        return int(Mark::Pending);
    if (role == NumberRole || role == GroupRole)
        return 0;
    if (column != State)
        return {};
    if (role == Qt::DecorationRole)
        return marksIcon(Mark::Pending);
    return role == Qt::DisplayRole || role == Qt::ToolTipRole ? QVariant(marksText(Mark::Pending))
                                                              : QVariant();
}

void TrailModel::Private::insertRows(qint64 more, const std::function<void()> &grow)
{
    if (more <= 0) {
        grow();
        return;
    }
    const bool atTop = order.isEmpty() && newestFirst;
    const int first = int(atTop ? waiting : count());
    q.beginInsertRows({}, first, first + int(more) - 1);
    pages.grewFrom(count());
    grow();
    q.endInsertRows();
}

void TrailModel::Private::grown(qint64 to)
{
    // A view counts its rows in int.
    to = qMin<qint64>(to, std::numeric_limits<int>::max() / 2);
    if (isFiltered())
        size = to;
    else
        insertRows(to - size, [this, to] { size = to; });
    updatePending();
    Q_EMIT q.countsChanged();
}

void TrailModel::Private::added(const QList<qint64> &numbers, qint64 upTo)
{
    insertRows(numbers.size(), [&] {
        found.append(numbers);
        for (const qint64 number : numbers) {
            if (foundSet.runs().size() <= kMostRuns)
                foundSet.add(number);
        }
    });
    searched = upTo;
    if (!q.isSearching() && sortedBy > Time && order.isEmpty())
        q.sort(sortedBy, direction);
    Q_EMIT q.countsChanged();
}

void TrailModel::Private::updatePending()
{
    const qint64 now = logger && !isFiltered() && order.isEmpty()
                           ? qMax<qint64>(0, logger->handedOver() - logger->watermark())
                           : 0;
    if (now == waiting)
        return;
    const int first = newestFirst ? 0 : int(count());
    if (now > waiting) {
        q.beginInsertRows({}, first + int(waiting), first + int(now) - 1);
        waiting = now;
        q.endInsertRows();
    } else {
        q.beginRemoveRows({}, first + int(now), first + int(waiting) - 1);
        waiting = now;
        q.endRemoveRows();
    }
    Q_EMIT q.countsChanged();
}

void TrailModel::Private::marked()
{
    ++marksStamp;
    // A view asks for the rows that it shows, and for no others.
    if (q.rowCount() > 0)
        Q_EMIT q.dataChanged(q.index(0, State), q.index(q.rowCount() - 1, State));
    Q_EMIT q.countsChanged();
}

void TrailModel::Private::changeOrder(const std::function<void()> &change)
{
    Q_EMIT q.layoutAboutToBeChanged();
    const QModelIndexList before = q.persistentIndexList();
    QList<qint64> positions;
    for (const QModelIndex &index : before)
        positions.append(positionOf(index.row()));
    change();
    for (qsizetype i = 0; i < before.size(); ++i) {
        const qint64 position = positions.at(i);
        q.changePersistentIndex(before.at(i), position < 0
                                                  ? QModelIndex()
                                                  : q.index(rowOfPosition(position), before.at(i).column()));
    }
    Q_EMIT q.layoutChanged();
}

void TrailModel::Private::orderBy(const QList<int> &newOrder)
{
    changeOrder([this, &newOrder] {
        order = newOrder;
        if (direction == Qt::DescendingOrder)
            std::reverse(order.begin(), order.end());
        rowsByPosition.resize(order.size());
        for (qsizetype row = 0; row < order.size(); ++row)
            rowsByPosition[order.at(row)] = int(row);
    });
}

void TrailModel::Private::reset(const std::function<void()> &change)
{
    q.beginResetModel();
    ++generation;
    ++sortToken;
    pages.clear();
    order.clear();
    rowsByPosition.clear();
    change();
    q.endResetModel();
}

} // namespace ozm::audit
