#pragma once

#include <QLineEdit>

class QFileDialog;
class QItemSelection;
class QListView;
class QTreeView;

namespace ozm {

/**
 * Leaves in the list of a file dialog the entries whose names contain what is typed here.
 *
 * Hides rows of the views, so that the model stays the toolkit's own. An entry that is hidden is not selected.
 */
class EntryFilter : public QLineEdit
{
    Q_OBJECT

public:
    EntryFilter(QFileDialog &dialog, QWidget *parent);

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    void apply();
    void hideRows(int first, int last);
    void deselectHidden(const QItemSelection &selected);

    // Null where the toolkit names them otherwise; the filter is then disabled.
    QListView *const m_list;
    QTreeView *const m_table;
};

} // namespace ozm
