#include "editor/EditorScripts.h"

#include "editor/EditorViews.h"
#include "editor/ScriptPane.h"

#include <QDockWidget>

namespace ozm::editor {

EditorScripts::EditorScripts(EditorViews &views, ScriptPane *pane, QDockWidget *dock)
    : m_views(views)
    , m_pane(pane)
    , m_dock(dock)
{
    connect(pane, &ScriptPane::applied, this, &EditorScripts::apply);
    connect(pane, &ScriptPane::newRequested, this, &EditorScripts::startNew);
}

void EditorScripts::startNew()
{
    m_place = QTextCursor();
    m_dock->show();
    m_pane->edit({}, true);
}

void EditorScripts::editAtCursor()
{
    const QTextCursor place = m_views.current().scriptAtCursor();
    if (place.isNull()) {
        Q_EMIT told(tr("The cursor is not in a script."));
        return;
    }
    m_place = place;
    m_dock->show();
    m_pane->edit(m_views.current().partSource(place), false);
}

void EditorScripts::run()
{
    m_dock->show();
    m_pane->run();
}

void EditorScripts::apply(const QString &script)
{
    if (m_views.isReadOnly())
        return;
    EditorView &view = m_views.current();
    if (view.isScript(m_place)) {
        // Selected again afterwards, as replacing it leaves nothing selected.
        QTextCursor end = m_place;
        end.setPosition(m_place.selectionEnd());
        const int before = m_place.selectionStart();
        const int after = int(m_place.document()->characterCount()) - end.position();
        view.setPartSource(m_place, script);
        m_place.setPosition(before);
        m_place.setPosition(int(m_place.document()->characterCount()) - after, QTextCursor::KeepAnchor);
    } else {
        view.insertSource(script);
        m_place = view.insertedBeforeCursor(script);
    }
    Q_EMIT told(tr("The script is in the template."));
}

} // namespace ozm::editor
