#include "window/HistoryView.h"

#include "samples/SampleEditor.h"

#include <QFont>
#include <QUndoStack>

using namespace Qt::StringLiterals;

namespace workbench {

HistoryModel::HistoryModel(const QUndoStack &history, QObject *parent)
    : QAbstractListModel(parent)
    , m_history(history)
    , m_rows(history.count() + 1)
{
    connect(&history, &QUndoStack::indexChanged, this, &HistoryModel::follow);
}

int HistoryModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_rows;
}

QVariant HistoryModel::data(const QModelIndex &index, int role) const
{
    const int row = index.row();
    if (role == Qt::DisplayRole || role == Qt::ToolTipRole) {
        if (row > 0)
            return m_history.text(row - 1);
        return m_history.count() == 0 ? tr("No edits yet") : tr("As opened");
    }
    if (role == Qt::FontRole) {
        QFont font;
        font.setBold(row == m_history.index() && m_history.count() > 0);
        // Undone steps can be redone, so they stay in the list, drawn fainter.
        font.setItalic(row > m_history.index());
        return font;
    }
    return {};
}

void HistoryModel::follow()
{
    resize(m_history.count() + 1);
    Q_EMIT dataChanged(index(0), index(m_rows - 1));
}

void HistoryModel::resize(int rows)
{
    if (rows > m_rows) {
        beginInsertRows({}, m_rows, rows - 1);
        m_rows = rows;
        endInsertRows();
    } else if (rows < m_rows) {
        beginRemoveRows({}, rows, m_rows - 1);
        m_rows = rows;
        endRemoveRows();
    }
}

HistoryView::HistoryView(SampleEditor &editor, QWidget *parent)
    : QTreeView(parent)
    , m_editor(editor)
{
    setObjectName(u"historyView"_s);
    setAccessibleName(tr("History of edits"));
    setToolTip(tr("Double-click a state to go there"));
    setHeaderHidden(true);
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setModel(new HistoryModel(editor.history(), this));
    connect(this, &QAbstractItemView::activated, this,
            [this](const QModelIndex &state) { m_editor.moveTo(state.row()); });
    // After the model, which is connected already.
    connect(&editor.history(), &QUndoStack::indexChanged, this, &HistoryView::showCurrent);
    showCurrent();
}

void HistoryView::showCurrent()
{
    setCurrentIndex(model()->index(m_editor.history().index(), 0));
}

} // namespace workbench
