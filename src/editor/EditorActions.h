#pragma once

#include <ozm_widgets/AbstractTemplateEditor.h>

#include <QHash>
#include <QObject>

class QAction;
class QMenu;

namespace ozm::editor {

/// Everything that can be done in the window, from one table: its menus, its tool bars, its keys.
class EditorActions : public QObject
{
    Q_OBJECT

public:
    explicit EditorActions(AbstractTemplateEditor::Private &editor);

    /// By object name; there must be such an action.
    [[nodiscard]] QAction *action(const char *name) const;

    /// Which of them can be used now, and which are in effect.
    void update();

private:
    void makeActions();
    void makeMenus();
    void makeToolBars();
    void addViewEntries(QMenu *menu);
    void fillCodeMenu(QMenu *menu);
    void check(const char *name, bool on) const;

    AbstractTemplateEditor::Private &m_editor;
    QHash<QByteArray, QAction *> m_actions;
};

} // namespace ozm::editor
