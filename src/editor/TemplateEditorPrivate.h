#pragma once

#include "editor/EditorHistory.h"
#include "editor/PreviewPane.h"
#include "editor/TableEditing.h"
#include "templates/paper/TemplatePrinting.h"

#include <ozm_widgets/AbstractTemplateEditor.h>

#include <QCoreApplication>

#include <memory>

class QDockWidget;
class QStackedWidget;
class QToolBar;

namespace ozm::editor {
class CodeEdit;
class CodeModel;
class CodePanel;
class EditorActions;
class EditorFiles;
class FindBar;
class RichTextView;
class ScriptPane;
class TextFormatting;
} // namespace ozm::editor

/// The parts of the window, and what goes on between them. The widgets belong to the window.
class AbstractTemplateEditor::Private : public QObject
{
    Q_DECLARE_TR_FUNCTIONS(AbstractTemplateEditor)

public:
    explicit Private(AbstractTemplateEditor *editor);
    ~Private() override;

    [[nodiscard]] QString content() const { return history->session().source(); }
    [[nodiscard]] bool isRich() const { return history->session().mode() == Mode::Rich; }
    [[nodiscard]] bool isModified() const { return history->isModified(); }

    // Views, whichever is shown.
    [[nodiscard]] QWidget *view() const;
    [[nodiscard]] QTextCursor cursor() const;
    void setCursor(const QTextCursor &cursor);
    [[nodiscard]] bool mayRemove(const QTextCursor &selection);
    void insertCode(const QString &code);
    void insertSource(const QString &source);
    void cut();
    void copy();
    void paste();
    void pastePlain();
    void selectAll();

    // Scripts.
    void newScript();
    void editScript();
    void applyScript(const QString &script);

    // Data.
    void refresh();
    [[nodiscard]] ozm::TemplateReport decode(const QString &content) const;
    [[nodiscard]] QString decodedForPaper() const;
    void goTo(const QString &content, qsizetype offset, const QString &part);

    // Insertion that asks.
    void askImage();
    void askLink();
    void askPdf();

    void find(bool replacing);
    void show(const QString &content);
    void setMode(Mode mode);
    void tell(const QString &text);
    void setReadOnly(bool on);
    void updateState();
    void updateTitle();

    AbstractTemplateEditor *const qptr;
    ozm::editor::EditorHistory *history;
    ozm::editor::CodeModel *codes;
    ozm::editor::RichTextView *rich;
    ozm::editor::CodeEdit *plain;
    ozm::editor::TextFormatting *format;
    ozm::editor::TableEditing table;
    ozm::editor::TemplatePrinting printing;
    ozm::editor::FindBar *findBar = nullptr;
    ozm::editor::CodePanel *codePanel = nullptr;
    ozm::editor::ScriptPane *scriptPane = nullptr;
    ozm::editor::PreviewPane *preview = nullptr;
    std::unique_ptr<ozm::editor::EditorFiles> files;
    std::unique_ptr<ozm::editor::EditorActions> actions;
    QStackedWidget *views = nullptr;
    QDockWidget *codeDock = nullptr;
    QDockWidget *scriptDock = nullptr;
    QDockWidget *previewDock = nullptr;
    bool isReadOnly = false;
    bool isShown = false;

private:
    void build();
    [[nodiscard]] QDockWidget *addDock(const char *name, const QString &title, QWidget *content,
                                       Qt::DockWidgetArea area);
    void connectParts();
    void showSession();
    [[nodiscard]] QTextCursor scriptAtCursor() const;
    [[nodiscard]] bool isScript(const QTextCursor &place) const;

    QTextCursor m_scriptPlace;
};
