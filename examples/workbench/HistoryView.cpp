#include "HistoryView.h"

#include "SampleEditor.h"

using namespace Qt::StringLiterals;

namespace workbench {

HistoryView::HistoryView(SampleEditor &editor, QWidget *parent)
    : QListWidget(parent)
    , m_editor(editor)
{
    setObjectName(u"historyView"_s);
    setAccessibleName(tr("History of edits"));
    setToolTip(tr("Double-click a state to go there"));
    connect(&editor.history(), &QUndoStack::indexChanged, this, &HistoryView::rebuild);
    connect(this, &QListWidget::itemActivated, this,
            [this](QListWidgetItem *item) { m_editor.moveTo(row(item)); });
    rebuild();
}

void HistoryView::rebuild()
{
    const QUndoStack &history = m_editor.history();
    clear();
    addItem(history.count() == 0 ? tr("No edits yet") : tr("As opened"));
    for (int i = 0; i < history.count(); ++i)
        addItem(history.text(i));
    for (int i = 0; i < count(); ++i) {
        QFont font;
        font.setBold(i == history.index() && history.count() > 0);
        // What is undone can still be redone, so it stays, but steps back.
        font.setItalic(i > history.index());
        item(i)->setFont(font);
    }
    setCurrentRow(history.index());
}

} // namespace workbench
