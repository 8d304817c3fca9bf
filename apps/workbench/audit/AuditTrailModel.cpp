#include "audit/AuditTrailModel.h"

#include "audit/AuditTrail.h"

#include <ozm_widgets/OZMStyle.h>

#include <QFont>
#include <QIcon>

using namespace Qt::StringLiterals;

namespace workbench {

namespace {

const AuditEntry *entryOf(const QModelIndex &index)
{
    return static_cast<const AuditEntry *>(index.constInternalPointer());
}

QString textOf(const AuditEntry &entry)
{
    return entry.isUnfinished() ? AuditTrailModel::tr("%1 (not finished)").arg(entry.text) : entry.text;
}

QString cellText(const AuditEntry &entry, int column)
{
    switch (column) {
    case AuditTrailModel::Time:
        return entry.record.dateTime().toString(u"yyyy-MM-dd HH:mm:ss"_s);
    case AuditTrailModel::User:
        return entry.record.user.id;
    case AuditTrailModel::Text:
        return textOf(entry);
    case AuditTrailModel::ErrorText:
        return entry.record.outcomeText;
    default:
        return {};
    }
}

/// Unusual entries differ in form, not in colour, so that every palette can show it.
QFont fontOf(const AuditEntry &entry)
{
    QFont font;
    font.setItalic(!entry.known || entry.isUnfinished());
    return font;
}

QVariant iconOf(const AuditEntry &entry, int column)
{
    if (column != AuditTrailModel::ErrorText || entry.record.outcomeCode == 0)
        return {};
    return OZMStyle::icon(u"dialog-warning"_s);
}

} // namespace

AuditTrailModel::AuditTrailModel(const AuditTrail &trail, QObject *parent)
    : QAbstractItemModel(parent)
    , m_trail(trail)
{
    connect(&trail, &AuditTrail::aboutToAppend, this,
            [this](int first, int last) { beginInsertRows({}, first, last); });
    connect(&trail, &AuditTrail::appended, this, [this] { endInsertRows(); });
    connect(&trail, &AuditTrail::aboutToReset, this, [this] { beginResetModel(); });
    connect(&trail, &AuditTrail::wasReset, this, [this] { endResetModel(); });
}

QModelIndex AuditTrailModel::index(int row, int column, const QModelIndex &parent) const
{
    if (!hasIndex(row, column, parent))
        return {};
    return createIndex(row, column, below(parent).at(static_cast<std::size_t>(row)));
}

QModelIndex AuditTrailModel::parent(const QModelIndex &child) const
{
    const AuditEntry *parent = child.isValid() ? entryOf(child)->parent : nullptr;
    return parent ? createIndex(parent->row, 0, parent) : QModelIndex();
}

int AuditTrailModel::rowCount(const QModelIndex &parent) const
{
    return parent.column() > 0 ? 0 : static_cast<int>(below(parent).size());
}

int AuditTrailModel::columnCount(const QModelIndex &) const
{
    return ColumnCount;
}

QVariant AuditTrailModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    switch (role) {
    case Qt::DisplayRole:
        return cellText(*entryOf(index), index.column()).simplified();
    case Qt::ToolTipRole:
        return cellText(*entryOf(index), index.column());
    case Qt::FontRole:
        return fontOf(*entryOf(index));
    case Qt::DecorationRole:
        return iconOf(*entryOf(index), index.column());
    default:
        return {};
    }
}

QVariant AuditTrailModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole || section < 0 || section >= ColumnCount)
        return QAbstractItemModel::headerData(section, orientation, role);
    return QStringList{tr("Time"), tr("User"), tr("Text"), tr("Error")}.at(section);
}

const std::vector<AuditEntry *> &AuditTrailModel::below(const QModelIndex &parent) const
{
    return parent.isValid() ? entryOf(parent)->children : m_trail.entries();
}

} // namespace workbench
