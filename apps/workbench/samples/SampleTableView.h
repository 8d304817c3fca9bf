#pragma once

#include <QTableView>

namespace workbench {

class SampleTable;
class SampleTableModel;

/// The samples on screen. Columns that would be empty throughout are hidden, and come back when they are not.
class SampleTableView : public QTableView
{
    Q_OBJECT

public:
    /// @p model must show @p samples.
    SampleTableView(SampleTableModel *model, const SampleTable &samples, QWidget *parent = nullptr);

    /// To be called when samples have come or gone; not for each, which would take long for many.
    void updateColumns();

private:
    const SampleTable &m_samples;
};

} // namespace workbench
