#include "samples/SampleDetails.h"

#include "samples/RoomyDelegate.h"

#include <QHeaderView>
#include <QTableView>

using namespace Qt::StringLiterals;

namespace workbench {

SampleDetails::SampleDetails(QTableView *table, QWidget *parent)
    : QTreeWidget(parent)
    , m_table(table)
{
    setObjectName(u"sampleDetails"_s);
    setAccessibleName(tr("Details of the sample"));
    setHeaderLabels({tr("Column"), tr("Value")});
    setRootIsDecorated(false);
    setItemDelegate(new RoomyDelegate(this));
    header()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    connect(table->selectionModel(), &QItemSelectionModel::currentRowChanged, this, &SampleDetails::refresh);
    connect(table->model(), &QAbstractItemModel::dataChanged, this, &SampleDetails::refresh);
    connect(table->model(), &QAbstractItemModel::rowsRemoved, this, &SampleDetails::refresh);
    connect(table->model(), &QAbstractItemModel::modelReset, this, &SampleDetails::refresh);
    refresh();
}

void SampleDetails::refresh()
{
    clear();
    const QModelIndex current = m_table->currentIndex();
    if (!current.isValid())
        return;
    for (int column = 0; column < m_table->model()->columnCount(); ++column) {
        const QString value = current.siblingAtColumn(column).data().toString();
        if (value.isEmpty())
            continue;
        const QString name = m_table->model()->headerData(column, Qt::Horizontal).toString();
        auto *item = new QTreeWidgetItem(this, {name, value});
        item->setToolTip(1, value);
    }
}

} // namespace workbench
