#pragma once

#include <QTreeWidget>

class QTableView;

namespace workbench {

/// All about the current sample of a table, one column below the other, texts in full.
class SampleDetails : public QTreeWidget
{
    Q_OBJECT

public:
    explicit SampleDetails(QTableView *table, QWidget *parent = nullptr);

private:
    void refresh();

    QTableView *m_table;
};

} // namespace workbench
