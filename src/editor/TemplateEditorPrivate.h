#pragma once

#include "editor/EditorActions.h"
#include "editor/EditorFiles.h"
#include "editor/EditorHistory.h"
#include "editor/EditorInstructions.h"
#include "editor/EditorQuestions.h"
#include "editor/EditorScripts.h"
#include "editor/EditorViews.h"
#include "editor/PreviewPane.h"
#include "editor/TableEditing.h"
#include "templates/paper/TemplatePrinting.h"

#include <ozm_widgets/AbstractTemplateEditor.h>

#include <QCoreApplication>

#include <memory>
#include <utility>

namespace ozm::editor {
class CodePanel;
class FindBar;
class ScriptPane;
class TextFormatting;
} // namespace ozm::editor

/// Puts the parts of the window together, and passes on what one of them has to say to the others. The
/// widgets belong to the window.
class AbstractTemplateEditor::Private : public QObject
{
    Q_DECLARE_TR_FUNCTIONS(AbstractTemplateEditor)

public:
    explicit Private(AbstractTemplateEditor *editor);
    ~Private() override;

    [[nodiscard]] QString content() const;
    [[nodiscard]] Mode mode() const;
    [[nodiscard]] bool isModified() const;
    [[nodiscard]] bool isReadOnly() const { return m_views.isReadOnly(); }
    [[nodiscard]] ozm::editor::EditorFiles &files() { return m_files; }

    /// Shows another template, as if it had just been opened.
    void show(const QString &content);
    void setMode(Mode newMode);
    void setReadOnly(bool on);
    void refresh();
    /// Fills the window with data, unless that was done before.
    void fill();
    /// True once.
    [[nodiscard]] bool isFirstShowing() { return !std::exchange(m_wasShown, true); }
    /// Shows the instructions and codes of the template in the language of now.
    void retranslate();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void buildCenter();
    /// Makes the docks narrower where they take too much of the window from the text.
    void giveRoomToText();
    void buildDocks();
    [[nodiscard]] QDockWidget *addDock(const char *name, const QString &title, QWidget *content,
                                       Qt::DockWidgetArea area);
    void connectParts();
    /// The name that is proposed for the report.
    [[nodiscard]] QString name() const;
    [[nodiscard]] QList<RowNode *> rows() const;
    /// The row that the preview shows; null for all as a group, or for none.
    [[nodiscard]] const RowNode *previewRow() const;
    [[nodiscard]] ozm::TemplateReport decode(const QString &content) const;
    void showSession();
    void goToEdit(const QTextCursor &cursor);
    void goTo(const QString &content, qsizetype offset, const QString &part);
    void insertCode(const QString &code);
    void tell(const QString &text);
    void updateState();
    void updateTitle();
    void updateModified();

    AbstractTemplateEditor *const qptr;
    ozm::editor::EditorHistory *m_history;
    ozm::editor::CodeModel *m_codes;
    ozm::editor::EditorViews m_views;
    ozm::editor::TextFormatting *m_format;
    ozm::editor::TableEditing m_table;
    ozm::editor::TemplatePrinting m_printing;
    ozm::editor::EditorFiles m_files;
    ozm::editor::EditorQuestions m_questions;
    std::unique_ptr<ozm::editor::EditorScripts> m_scripts;
    std::unique_ptr<ozm::editor::EditorInstructions> m_instructions;
    std::unique_ptr<ozm::editor::EditorActions> m_actions;
    ozm::editor::FindBar *m_findBar = nullptr;
    ozm::editor::CodePanel *m_codePanel = nullptr;
    ozm::editor::ScriptPane *m_scriptPane = nullptr;
    ozm::editor::PreviewPane *m_preview = nullptr;
    QDockWidget *m_codeDock = nullptr;
    QDockWidget *m_scriptDock = nullptr;
    QDockWidget *m_previewDock = nullptr;
    bool m_isFilled = false;
    bool m_wasShown = false;
    bool m_wasModified = false; ///< As it was told last.
    QString m_toldPath;
};
