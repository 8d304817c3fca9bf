#pragma once

#include <QAbstractListModel>
#include <QTreeView>

class QUndoStack;

namespace workbench {

class SampleEditor;

/// The states of a history, from the one before all steps on. Read-only; the history must outlive it.
class HistoryModel : public QAbstractListModel
{
    Q_OBJECT

public:
    explicit HistoryModel(const QUndoStack &history, QObject *parent = nullptr);

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;

private:
    void follow();
    void resize(int rows);

    const QUndoStack &m_history;
    int m_rows;
};

/**
 * The history of edits, the current state marked; a double click, or Enter, goes to another state.
 *
 * It goes there through the editor. The toolkit's own view of an undo stack moves the stack by itself, past
 * the records that have to be written first.
 */
class HistoryView : public QTreeView
{
    Q_OBJECT

public:
    explicit HistoryView(SampleEditor &editor, QWidget *parent = nullptr);

private:
    void showCurrent();

    SampleEditor &m_editor;
};

} // namespace workbench
