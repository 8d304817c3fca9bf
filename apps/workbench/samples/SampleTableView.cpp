#include "samples/SampleTableView.h"

#include "data/DataColumns.h"
#include "samples/RoomyDelegate.h"
#include "samples/SampleTable.h"
#include "samples/SampleTableModel.h"

#include <ozm_common_core_mini/ColumnNames.h>

#include <QHeaderView>
#include <QStyledItemDelegate>

#include <array>

using namespace Qt::StringLiterals;

namespace workbench {

namespace {

// Wide enough for what the columns hold in practice; the comment takes what is left.
constexpr std::array kTableWidths{150, 250, 70, 110, 100, 135, 180, 60, 75, 210};

/// Leaves the ends of a path to be read: the disk and the name say more than what is between.
class PathDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        option->textElideMode = Qt::ElideMiddle;
    }
};

int sectionOf(const QString &column)
{
    return static_cast<int>(SampleTable::columns().indexOf(column));
}

} // namespace

SampleTableView::SampleTableView(SampleTableModel *model, const SampleTable &samples, QWidget *parent)
    : QTableView(parent)
    , m_samples(samples)
{
    setObjectName(u"sampleTable"_s);
    setAccessibleName(tr("Samples"));
    setModel(model);
    setAlternatingRowColors(true);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setWordWrap(false);
    // The arrow keys lead from cell to cell; Tab leads on, to what else there is in the window.
    setTabKeyNavigation(false);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 8);
    horizontalHeader()->setStretchLastSection(true);
    horizontalHeader()->setHighlightSections(false);
    for (int column = 0; column < static_cast<int>(kTableWidths.size()); ++column) {
        const int width = forFontOf(*this, kTableWidths.at(static_cast<std::size_t>(column)));
        setColumnWidth(column, qMax(width, horizontalHeader()->sectionSizeHint(column)));
    }
    setItemDelegateForColumn(sectionOf(kPath), new PathDelegate(this));
    horizontalHeader()->moveSection(sectionOf(kComment), sectionOf(kPath));
}

void SampleTableView::updateColumns()
{
    const int withData = m_samples.dataCount();
    const bool onlyData = withData > 0 && withData == m_samples.rowCount();
    for (const QString &column : SampleTable::dataColumns())
        setColumnHidden(sectionOf(column), withData == 0);
    for (const QString &column : {kSequence, kCharge, kMass})
        setColumnHidden(sectionOf(column), onlyData);
}

} // namespace workbench
