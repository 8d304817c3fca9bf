#include "samples/SampleTable.h"

#include "data/DataColumns.h"

#include <ozm_common_core_mini/ColumnNames.h>

using ozm::Error;
using ozm::ErrorCode;

namespace workbench {

namespace {

QStringList allColumns()
{
    return QStringList{kId} + SampleTable::columns();
}

} // namespace

SampleTable::SampleTable(QObject *parent)
    : QObject(parent)
    , m_root(std::make_unique<RowNode>(allColumns()))
{}

SampleTable::~SampleTable() = default;

const QStringList &SampleTable::columns()
{
    static const QStringList columns = annotationColumns() + dataColumns();
    return columns;
}

const QStringList &SampleTable::annotationColumns()
{
    static const QStringList columns{kName, kSequence, kCharge, kMass, kComment};
    return columns;
}

const QStringList &SampleTable::dataColumns()
{
    static const QStringList columns{kFormat, kDescription, kKind, kSize, kPath};
    return columns;
}

const QStringList &SampleTable::columnsOf(const RowNode &row)
{
    return hasData(row) ? columns() : annotationColumns();
}

bool SampleTable::hasData(const RowNode &row)
{
    return !row.getDataAt(kFormat).toString().isEmpty();
}

RowNode SampleTable::emptyRow()
{
    return RowNode(allColumns());
}

qint64 SampleTable::idOf(const RowNode &row)
{
    return row.getDataAt(kId).toLongLong();
}

int SampleTable::rowCount() const
{
    return m_root->childCount();
}

const RowNode *SampleTable::row(int index) const
{
    return m_root->child(index);
}

const RowNode *SampleTable::rowOf(qint64 id) const
{
    return m_rows.value(id);
}

int SampleTable::indexOf(qint64 id) const
{
    return m_root->indexOf(m_rows.value(id));
}

Error SampleTable::checkName(const QString &name, qint64 id) const
{
    const auto owner = m_names.constFind(name);
    if (owner == m_names.constEnd() || *owner == id)
        return {};
    return Error(ErrorCode::BadParameter,
                 tr("Another sample is called \"%1\" already; names must be unique.").arg(name))
        .ecatch(OZM_HERE);
}

std::unique_ptr<SampleTable> SampleTable::copy() const
{
    auto copy = std::make_unique<SampleTable>();
    for (int index = 0; index < rowCount(); ++index)
        copy->add(index, std::make_unique<RowNode>(*row(index)));
    copy->m_nextId = m_nextId;
    return copy;
}

void SampleTable::set(qint64 id, const QString &column, const QVariant &value)
{
    RowNode *row = m_rows.value(id);
    Q_ASSERT(row);
    if (column == kName) {
        m_names.remove(row->getDataAt(kName).toString());
        m_names.insert(value.toString(), id);
    }
    row->setDataAt(column, value);
    Q_EMIT changed(m_root->indexOf(row), column);
}

void SampleTable::insert(int index, const RowNode &row)
{
    Q_EMIT aboutToInsert(index);
    add(index, std::make_unique<RowNode>(row));
    Q_EMIT inserted();
}

void SampleTable::remove(qint64 id)
{
    const int index = indexOf(id);
    Q_ASSERT(index >= 0);
    Q_EMIT aboutToRemove(index);
    m_names.remove(row(index)->getDataAt(kName).toString());
    m_dataCount -= hasData(*row(index)) ? 1 : 0;
    m_rows.remove(id);
    m_root->takeChild(index).reset();
    Q_EMIT removed();
}

void SampleTable::replaceAll(const std::vector<RowNode> &rows)
{
    Q_EMIT aboutToReset();
    m_root = std::make_unique<RowNode>(allColumns());
    m_rows.clear();
    m_names.clear();
    m_dataCount = 0;
    for (const RowNode &row : rows) {
        auto added = std::make_unique<RowNode>(row);
        added->setDataAt(kId, takeId());
        add(rowCount(), std::move(added));
    }
    Q_EMIT wasReset();
}

void SampleTable::add(int index, std::unique_ptr<RowNode> row)
{
    RowNode *added = m_root->insertChild(index, std::move(row));
    m_rows.insert(idOf(*added), added);
    m_names.insert(added->getDataAt(kName).toString(), idOf(*added));
    m_dataCount += hasData(*added) ? 1 : 0;
}

} // namespace workbench
