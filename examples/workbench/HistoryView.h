#pragma once

#include <QListWidget>

namespace workbench {

class SampleEditor;

/**
 * The history of edits, the current state marked; a double click, or Enter, goes to another state.
 *
 * It goes there through the editor. The toolkit's own view of an undo stack moves the stack by itself, past
 * the records that have to be written first.
 */
class HistoryView : public QListWidget
{
    Q_OBJECT

public:
    explicit HistoryView(SampleEditor &editor, QWidget *parent = nullptr);

private:
    void rebuild();

    SampleEditor &m_editor;
};

} // namespace workbench
