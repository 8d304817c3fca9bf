#include "audit/TrailView.h"

#include "audit/AuditTrailModel.h"
#include "samples/RoomyDelegate.h"

#include <array>

using namespace Qt::StringLiterals;

namespace workbench {

namespace {

constexpr std::array kWidths{180, 75, 510};

} // namespace

TrailView::TrailView(AuditTrailModel *model, QWidget *parent)
    : QTreeView(parent)
{
    setObjectName(u"trailView"_s);
    setAccessibleName(tr("Audit trail"));
    setModel(model);
    setAlternatingRowColors(true);
    setUniformRowHeights(true);
    setItemDelegate(new RoomyDelegate(this));
    for (int column = 0; column < static_cast<int>(kWidths.size()); ++column)
        setColumnWidth(column, kWidths.at(static_cast<std::size_t>(column)));
    expandAll();
    connect(model, &QAbstractItemModel::rowsInserted, this,
            [this](const QModelIndex &, int first, int last) { showNew(first, last); });
    connect(model, &QAbstractItemModel::modelReset, this, [this] {
        expandAll();
        scrollToBottom();
    });
}

void TrailView::showNew(int first, int last)
{
    for (int row = first; row <= last; ++row)
        expandRecursively(model()->index(row, 0));
    scrollToBottom();
}

} // namespace workbench
