#include "TrailModel_p.h"

#include "../Texts.h"
#include "RowText.h"

#include <ozm_audit/Logger.h>

#include <algorithm>
#include <array>

namespace ozm::audit {

namespace {

// Read, made into texts and sorted within a second or two.
constexpr int kSortLimit = 50'000;

// A view asks for many more roles, and each would look up the row.
constexpr std::array kRoles{int(Qt::DisplayRole),        int(Qt::ToolTipRole),
                            int(Qt::FontRole),           int(Qt::DecorationRole),
                            int(TrailModel::NumberRole), int(TrailModel::GroupRole),
                            int(TrailModel::MarksRole)};

bool isAnswered(int role)
{
    return std::ranges::find(kRoles, role) != kRoles.end();
}

} // namespace

TrailModel::TrailModel(Store &store, QObject *parent)
    : QAbstractTableModel(parent)
    , d(std::make_unique<Private>(*this, store))
{}

TrailModel::~TrailModel() = default;

Store &TrailModel::store() const
{
    return d->store;
}

void TrailModel::setLogger(const Logger *logger)
{
    d->logger = logger;
    if (logger)
        d->pendingTimer.start();
    else
        d->pendingTimer.stop();
    d->updatePending();
}

TrailFilter TrailModel::filter() const
{
    return d->filter;
}

void TrailModel::setFilter(const TrailFilter &filter)
{
    d->reset([this, &filter] {
        d->filter = filter;
        d->filtered = !filter.isEmpty();
        d->found.clear();
        d->foundSet = {};
        d->searched = 0;
        d->waiting = 0;
    });
    QMetaObject::invokeMethod(
        d->scanner,
        [scanner = d->scanner, filter, generation = d->generation] {
            scanner->setFilter(filter, generation);
        },
        Qt::QueuedConnection);
    if (filter.isEmpty() && d->sortedBy > Time)
        sort(d->sortedBy, d->direction);
    d->updatePending();
    Q_EMIT countsChanged();
}

TrailModel::Zone TrailModel::zone() const
{
    return d->zone;
}

void TrailModel::setZone(Zone zone)
{
    d->zone = zone;
    d->pages.clear();
    Q_EMIT headerDataChanged(Qt::Horizontal, Time, Time);
    if (rowCount() > 0)
        Q_EMIT dataChanged(index(0, Time), index(rowCount() - 1, Time));
}

bool TrailModel::isSearching() const
{
    return d->isFiltered() && d->searched < d->size;
}

qint64 TrailModel::total() const
{
    return d->size;
}

qint64 TrailModel::shown() const
{
    return d->count();
}

qint64 TrailModel::hidden() const
{
    return d->isFiltered() ? d->searched - d->found.count() : 0;
}

qint64 TrailModel::pending() const
{
    return d->waiting;
}

qint64 TrailModel::notReviewed() const
{
    const NumberSet reviewed = d->marks->reviewed();
    if (!d->isFiltered())
        return d->size - reviewed.countUpTo(d->size);
    qint64 known = 0;
    for (const NumberSet::Run &run : reviewed.runs())
        known += d->found.lowerBound(run.last + 1) - d->found.lowerBound(run.first);
    return d->found.count() - known;
}

qint64 TrailModel::knownMarks() const
{
    return d->marks->known();
}

Entry TrailModel::entryAt(int row) const
{
    const TrailRow *at = d->rowAt(row);
    return at ? at->entry : Entry();
}

int TrailModel::rowOf(qint64 number) const
{
    qint64 position = number - 1;
    if (d->isFiltered()) {
        position = d->found.lowerBound(number);
        if (d->found.mid(position, 1) != QList{number})
            return -1;
    }
    return position < 0 || position >= d->count() ? -1 : d->rowOfPosition(position);
}

Result<NumberSet> TrailModel::shownNumbers() const
{
    if (isSearching())
        return Error(ErrorCode::NotAllowed, tr("The trail is still being searched.")).ecatch(OZM_HERE);
    if (!d->isFiltered())
        return d->size == 0 ? NumberSet() : NumberSet(NumberSet::Run{1, d->size});
    if (d->foundSet.runs().size() > Private::kMostRuns) {
        return Error(ErrorCode::NotAllowed,
                     tr("The filter shows too many separate entries. Narrow it, by time for instance."))
            .ecatch(OZM_HERE);
    }
    return d->foundSet;
}

TrailModel::Marks TrailModel::marks(const Entry &entry) const
{
    return d->marks->of(entry);
}

QList<qint64> TrailModel::signaturesOf(qint64 number) const
{
    return d->marks->signaturesOf(number);
}

qint64 TrailModel::changedLaterBy(const Entry &entry) const
{
    return d->marks->changedLaterBy(entry);
}

QStringList TrailModel::choices(Choice choice) const
{
    return d->marks->choices(choice);
}

void TrailModel::sort(int column, Qt::SortOrder order)
{
    if (column < 0 || column >= ColumnCount)
        return;
    if (column > Time && d->count() > kSortLimit) {
        Q_EMIT sortRefused(
            tr("Sorting by \"%1\" would have to read all %L2 entries: the store keeps them in order "
               "of time. Narrow the filter to %L3 entries or fewer.")
                .arg(columnTitle(column, d->zone))
                .arg(d->count())
                .arg(kSortLimit));
        return;
    }
    d->sortedBy = column;
    d->direction = order;
    ++d->sortToken;
    if (column <= Time) {
        d->changeOrder([this, order] {
            d->order.clear();
            d->rowsByPosition.clear();
            d->newestFirst = order == Qt::DescendingOrder;
        });
        return;
    }
    if (isSearching())
        return; // Sorted when all is found.
    const QList<qint64> numbers = d->numbersAt(0, d->count());
    QMetaObject::invokeMethod(
        d->scanner,
        [scanner = d->scanner, numbers, column, token = d->sortToken] {
            scanner->sort(numbers, column, token);
        },
        Qt::QueuedConnection);
}

int TrailModel::sortLimit()
{
    return kSortLimit;
}

int TrailModel::sortColumn() const
{
    return d->sortedBy;
}

Qt::SortOrder TrailModel::sortOrder() const
{
    return d->direction;
}

int TrailModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(d->count() + d->waiting);
}

int TrailModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant TrailModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || !isAnswered(role))
        return {};
    return d->cell(d->rowAt(index.row()), index.column(), role);
}

void TrailModel::multiData(const QModelIndex &index, QModelRoleDataSpan roleDataSpan) const
{
    TrailRow *row = index.isValid() ? d->rowAt(index.row()) : nullptr;
    for (QModelRoleData &part : roleDataSpan) {
        if (index.isValid() && isAnswered(part.role()))
            part.setData(d->cell(row, index.column(), part.role()));
        else
            part.clearData();
    }
}

QVariant TrailModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || section < 0 || section >= ColumnCount)
        return {};
    if (role == Qt::DisplayRole)
        return columnTitle(section, d->zone);
    if (role == Qt::ToolTipRole && section > Time)
        return tr("Sorted by this column when %L1 entries or fewer are shown.").arg(kSortLimit);
    return {};
}

} // namespace ozm::audit
