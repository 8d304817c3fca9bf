#pragma once

#include <ozm_widgets/AbstractTemplateEditor.h>

#include <QHash>
#include <QObject>

#include <array>
#include <functional>
#include <vector>

class QAction;
class QDockWidget;
class QMenu;
class QToolBar;

namespace ozm::editor {

class CodeModel;
class CodePanel;
class EditorFiles;
class EditorHistory;
class EditorInstructions;
class EditorQuestions;
class EditorScripts;
class EditorViews;
class FindBar;
class TableEditing;
class TemplatePrinting;
class TextFormatting;

/// The parts of the window that its actions work on.
struct EditorParts
{
    AbstractTemplateEditor &window;
    EditorFiles &files;
    EditorHistory &history;
    EditorViews &views;
    EditorScripts &scripts;
    EditorInstructions &instructions;
    EditorQuestions &questions;
    TemplatePrinting &printing;
    TextFormatting &format;
    TableEditing &table;
    FindBar &findBar;
    CodeModel &codes;
    CodePanel &codePanel;
    QDockWidget *codeDock;
    std::array<QDockWidget *, 3> docks;
    std::function<QString()> decoded; ///< The filled template.
};

/// All that a user can do in the window, from one table: its menus, its tool bars, its keys.
class EditorActions : public QObject
{
    Q_OBJECT

public:
    explicit EditorActions(const EditorParts &parts);

    /// By object name; there must be such an action.
    [[nodiscard]] QAction *action(const char *name) const;

    /// Enables the actions that can be used now, and checks those that are in effect.
    void update();

private:
    void makeActions();
    void makeMenus();
    void makeToolBars();
    void addViewEntries(QMenu *menu);
    void fillCodeMenu(QMenu *menu);
    void addStyleMenu();
    void check(const char *name, bool on) const;

    const EditorParts m_parts;
    QHash<QByteArray, QAction *> m_actions;
    std::vector<QAction *> m_inOrder; ///< Of their table.
    QMenu *m_styles = nullptr;
    QToolBar *m_formatBar = nullptr;
};

} // namespace ozm::editor
