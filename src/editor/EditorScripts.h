#pragma once

#include <QObject>
#include <QTextCursor>

class QDockWidget;

namespace ozm::editor {

class EditorViews;
class ScriptPane;

/// Brings scripts from the template into the pane in which they are written, and back to their places.
class EditorScripts : public QObject
{
    Q_OBJECT

public:
    EditorScripts(EditorViews &views, ScriptPane *pane, QDockWidget *dock);

    void startNew();
    void editAtCursor();
    void run();

Q_SIGNALS:
    void told(const QString &text);

private:
    void apply(const QString &script);

    EditorViews &m_views;
    ScriptPane *m_pane;
    QDockWidget *m_dock;
    QTextCursor m_place; ///< Null for a script that is not in the template yet.
};

} // namespace ozm::editor
