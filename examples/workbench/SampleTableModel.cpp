#include "SampleTableModel.h"

#include "SampleEditor.h"
#include "SampleRules.h"

#include <ozm_common_core_mini/ColumnFriendlyName.h>
#include <ozm_common_core_mini/ColumnNames.h>

namespace workbench {

namespace {

QString columnAt(int section)
{
    return SampleTable::columns().value(section);
}

bool isNumber(int section)
{
    return columnAt(section) == kCharge || columnAt(section) == kMass;
}

QString shownText(const QString &column, const QVariant &value)
{
    const auto known = ColumnFriendlyName::getColumnFriendlyNames().constFind(column);
    if (known == ColumnFriendlyName::getColumnFriendlyNames().constEnd() || !value.isValid())
        return rules::toText(value);
    return known->valueToString(value);
}

} // namespace

SampleTableModel::SampleTableModel(SampleEditor &editor, QObject *parent)
    : QAbstractTableModel(parent)
    , m_editor(editor)
{
    const SampleTable *samples = &table();
    connect(samples, &SampleTable::aboutToInsert, this, [this](int row) { beginInsertRows({}, row, row); });
    connect(samples, &SampleTable::inserted, this, [this] { endInsertRows(); });
    connect(samples, &SampleTable::aboutToRemove, this, [this](int row) { beginRemoveRows({}, row, row); });
    connect(samples, &SampleTable::removed, this, [this] { endRemoveRows(); });
    connect(samples, &SampleTable::aboutToReset, this, [this] { beginResetModel(); });
    connect(samples, &SampleTable::wasReset, this, [this] { endResetModel(); });
    connect(samples, &SampleTable::changed, this, [this](int row, const QString &column) {
        const QModelIndex cell = index(row, static_cast<int>(SampleTable::columns().indexOf(column)));
        Q_EMIT dataChanged(cell, cell);
    });
}

int SampleTableModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : table().rowCount();
}

int SampleTableModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(SampleTable::columns().size());
}

QVariant SampleTableModel::data(const QModelIndex &index, int role) const
{
    const RowNode *row = table().row(index.row());
    if (!row)
        return {};
    const QVariant value = row->getDataAt(columnAt(index.column()));
    switch (role) {
    case Qt::DisplayRole:
        return shownText(columnAt(index.column()), value);
    case Qt::EditRole:
    case Qt::ToolTipRole:
        return rules::toText(value);
    case Qt::TextAlignmentRole:
        return static_cast<int>((isNumber(index.column()) ? Qt::AlignRight : Qt::AlignLeft) |
                                Qt::AlignVCenter);
    default:
        return {};
    }
}

bool SampleTableModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    // A cell that is left as it was is no edit.
    if (role != Qt::EditRole || value.toString() == data(index, Qt::EditRole).toString())
        return false;
    return !m_editor.setCell(idAt(index.row()), columnAt(index.column()), value.toString()).hasError();
}

QVariant SampleTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal)
        return QAbstractTableModel::headerData(section, orientation, role);
    if (role == Qt::DisplayRole)
        return ColumnFriendlyName::friendlyName(columnAt(section));
    if (role == Qt::ToolTipRole)
        return ColumnFriendlyName::toolTip(columnAt(section));
    return {};
}

Qt::ItemFlags SampleTableModel::flags(const QModelIndex &index) const
{
    return QAbstractTableModel::flags(index) | (index.isValid() ? Qt::ItemIsEditable : Qt::NoItemFlags);
}

qint64 SampleTableModel::idAt(int row) const
{
    const RowNode *node = table().row(row);
    return node ? SampleTable::idOf(*node) : 0;
}

const SampleTable &SampleTableModel::table() const
{
    return m_editor.table();
}

} // namespace workbench
