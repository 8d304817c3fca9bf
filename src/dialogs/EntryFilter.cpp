#include "dialogs/EntryFilter.h"

#include <QFileDialog>
#include <QFileSystemModel>
#include <QKeyEvent>
#include <QListView>
#include <QShortcut>
#include <QTreeView>

using namespace Qt::StringLiterals;

namespace ozm {

EntryFilter::EntryFilter(QFileDialog &dialog, QWidget *parent)
    : QLineEdit(parent)
    , m_list(dialog.findChild<QListView *>(u"listView"_s))
    , m_table(dialog.findChild<QTreeView *>(u"treeView"_s))
{
    setObjectName(u"entryFilter"_s);
    setPlaceholderText(tr("Filter by name"));
    setAccessibleName(placeholderText());
    setToolTip(tr("Shows only entries whose names contain this text (%1)")
                   .arg(QKeySequence(QKeySequence::Find).toString(QKeySequence::NativeText)));
    setClearButtonEnabled(true);
    setEnabled(m_list && m_table);
    if (!isEnabled())
        return;
    connect(this, &QLineEdit::textChanged, this, &EntryFilter::apply);
    connect(m_list->model(), &QAbstractItemModel::rowsInserted, this,
            [this](const QModelIndex &folder, int first, int last) {
                if (!text().isEmpty() && folder == m_list->rootIndex())
                    hideRows(first, last);
            });
    connect(m_list->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &EntryFilter::deselectHidden);
    connect(new QShortcut(QKeySequence::Find, &dialog), &QShortcut::activated, this,
            [this] { setFocus(Qt::ShortcutFocusReason); });
}

void EntryFilter::keyPressEvent(QKeyEvent *event)
{
    const int key = event->key();
    if (key == Qt::Key_Escape && !text().isEmpty()) {
        clear();
    } else if (key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Down) {
        // Enter would open what is highlighted.
        QAbstractItemView *shown = m_list->isVisible() ? static_cast<QAbstractItemView *>(m_list) : m_table;
        shown->setFocus(Qt::OtherFocusReason);
    } else {
        QLineEdit::keyPressEvent(event);
    }
}

void EntryFilter::apply()
{
    hideRows(0, m_list->model()->rowCount(m_list->rootIndex()) - 1);
    deselectHidden(m_list->selectionModel()->selection());
}

void EntryFilter::hideRows(int first, int last)
{
    const QModelIndex folder = m_list->rootIndex();
    for (int row = first; row <= last; ++row) {
        const QString name =
            folder.model()->index(row, 0, folder).data(QFileSystemModel::FileNameRole).toString();
        const bool isHidden = !name.contains(text(), Qt::CaseInsensitive);
        if (m_list->isRowHidden(row) != isHidden)
            m_list->setRowHidden(row, isHidden);
        if (m_table->isRowHidden(row, folder) != isHidden)
            m_table->setRowHidden(row, folder, isHidden);
    }
}

void EntryFilter::deselectHidden(const QItemSelection &selected)
{
    if (text().isEmpty())
        return;
    QItemSelection hidden;
    for (const QModelIndex &index : selected.indexes())
        if (index.column() == 0 && index.parent() == m_list->rootIndex() && m_list->isRowHidden(index.row()))
            hidden.select(index, index);
    if (!hidden.isEmpty())
        m_list->selectionModel()->select(hidden, QItemSelectionModel::Deselect | QItemSelectionModel::Rows);
}

} // namespace ozm
