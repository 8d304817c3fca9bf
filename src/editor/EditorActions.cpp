#include "editor/EditorActions.h"

#include "editor/CodeEdit.h"
#include "editor/CodeModel.h"
#include "editor/CodePanel.h"
#include "editor/EditorFiles.h"
#include "editor/EditorHistory.h"
#include "editor/EditorInstructions.h"
#include "editor/EditorQuestions.h"
#include "editor/EditorScripts.h"
#include "editor/EditorViews.h"
#include "editor/FindBar.h"
#include "editor/RichTextView.h"
#include "editor/TableEditing.h"
#include "editor/TextFormatting.h"
#include "templates/paper/TemplatePrinting.h"

#include <ozm_widgets/OZMStyle.h>

#include <QAction>
#include <QActionGroup>
#include <QApplication>
#include <QClipboard>
#include <QDockWidget>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QToolBar>

#include <algorithm>
#include <array>
#include <utility>

using namespace Qt::StringLiterals;

namespace ozm::editor {

namespace {

using Parts = EditorParts;
using Side = TableEditing::Side;

enum class Menu
{
    File,
    Edit,
    Insert,
    Format,
    Table,
    View
};

struct MenuRow
{
    Menu menu;
    const char *name;
    const char *title;
};

constexpr std::array kMenus{
    MenuRow{Menu::File, "fileMenu", QT_TRANSLATE_NOOP("ozm::editor::EditorActions", "&File")},
    MenuRow{Menu::Edit, "editMenu", QT_TRANSLATE_NOOP("ozm::editor::EditorActions", "&Edit")},
    MenuRow{Menu::Insert, "insertMenu", QT_TRANSLATE_NOOP("ozm::editor::EditorActions", "&Insert")},
    MenuRow{Menu::Format, "formatMenu", QT_TRANSLATE_NOOP("ozm::editor::EditorActions", "F&ormat")},
    MenuRow{Menu::Table, "tableMenu", QT_TRANSLATE_NOOP("ozm::editor::EditorActions", "&Table")},
    MenuRow{Menu::View, "viewMenu", QT_TRANSLATE_NOOP("ozm::editor::EditorActions", "&View")},
};

enum Flag : unsigned
{
    None = 0,
    Edits = 1,     ///< Not for a template that is read only.
    Rich = 2,      ///< For formatted text only.
    InTable = 4,   ///< Only where the cursor stands in a table.
    Checked = 8,   ///< Shows whether it is in effect.
    OnBar = 16,    ///< In the first tool bar.
    OnFormat = 32, ///< In the tool bar of formats.
    OnView = 64,   ///< In the context menu of the views.
    Starts = 128   ///< Begins a group.
};

struct ActionRow
{
    const char *name;
    Menu menu;
    const char *icon;
    const char *text;
    const char *key;
    void (*run)(const Parts &parts, bool checked);
    unsigned flags;
};

void pastePlain(const Parts &parts)
{
    const QMimeData *data = QApplication::clipboard()->mimeData();
    if (data && data->hasText())
        parts.views.current().insertPlain(data->text());
}

void editAtCursor(const Parts &parts)
{
    if (!parts.instructions.editAtCursor())
        parts.scripts.editAtCursor();
}

// Keys that the platform has a say in are in kPlatformKeys.
constexpr std::array kActions{
    ActionRow{"newAction", Menu::File, "document-new",
              QT_TRANSLATE_NOOP("ozm::editor::EditorActions", "&New"), "",
              [](const Parts &p, bool) { p.files.askNew(); }, OnBar},
    ActionRow{"openAction", Menu::File, "document-open",
              QT_TRANSLATE_NOOP("ozm::editor::EditorActions", "&Open…"), "",
              [](const Parts &p, bool) { p.files.askOpen(); }, OnBar},
    ActionRow{"saveAction", Menu::File, "document-save",
              QT_TRANSLATE_NOOP("ozm::editor::EditorActions", "&Save"), "",
              [](const Parts &p, bool) { p.files.save(); }, OnBar},
    ActionRow{"saveAsAction", Menu::File, "document-save-as",
              QT_TRANSLATE_NOOP("ozm::editor::EditorActions", "Save &as…"), "Ctrl+Shift+S",
              [](const Parts &p, bool) { p.files.askSaveAs(); }, None},
    ActionRow{"compareSavedAction", Menu::File, "",
              QT_TRANSLATE_NOOP("ozm::editor::EditorActions", "Compar&e with saved…"), "",
              [](const Parts &p, bool) { p.files.compareWithSaved(); }, Starts},
    ActionRow{"compareAction", Menu::File, "",
              QT_TRANSLATE_NOOP("ozm::editor::EditorActions", "Compare wi&th…"), "",
              [](const Parts &p, bool) { p.files.askCompare(); }, None},
    ActionRow{"pageSetupAction", Menu::File, "",
              QT_TRANSLATE_NOOP("ozm::editor::EditorActions", "Page set&up…"), "",
              [](const Parts &p, bool) {
                  p.printing.askPage(&p.window);
                  p.window.refresh();
              },
              Starts},
    ActionRow{"templatePageAction", Menu::File, "",
              QT_TRANSLATE_NOOP("ozm::editor::EditorActions", "Page set-up of the te&mplate…"), "",
              [](const Parts &p, bool) { p.instructions.askPage(); }, Edits},
    ActionRow{"printPreviewAction", Menu::File, "document-print-preview",
              QT_TRANSLATE_NOOP("ozm::editor::EditorActions", "Print pre&view…"), "",
              [](const Parts &p, bool) { p.printing.preview(&p.window, p.decoded()); }, None},
    ActionRow{"printAction", Menu::File, "document-print",
              QT_TRANSLATE_NOOP("ozm::editor::EditorActions", "&Print…"), "",
              [](const Parts &p, bool) { p.printing.print(&p.window, p.decoded()); }, OnBar | Starts},
    ActionRow{"pdfAction", Menu::File, "document-pdf",
              QT_TRANSLATE_NOOP("ozm::editor::EditorActions", "Save as P&DF…"), "Ctrl+Shift+D",
              [](const Parts &p, bool) { p.questions.askPdf(); }, OnBar},
    ActionRow{"closeAction", Menu::File, "window-close",
              QT_TRANSLATE_NOOP("ozm::editor::EditorActions", "&Close"), "",
              [](const Parts &p, bool) { p.window.close(); }, Starts},

    ActionRow{"undoAction", Menu::Edit, "edit-undo", QT_TRANSLATE_NOOP("ozm::editor::EditorActions", "&Undo"),
              "", [](const Parts &p, bool) { p.history.undo(); }, Edits | OnBar | OnView | Starts},
    ActionRow{"redoAction", Menu::Edit, "edit-redo", QT_TRANSLATE_NOOP("ozm::editor::EditorActions", "&Redo"),
              "", [](const Parts &p, bool) { p.history.redo(); }, Edits | OnBar | OnView},
    ActionRow{"cutAction", Menu::Edit, "edit-cut", QT_TRANSLATE_NOOP("ozm::editor::EditorActions", "Cu&t"),
              "", [](const Parts &p, bool) { p.views.current().cut(); }, Edits | OnView | Starts},
    ActionRow{"copyAction", Menu::Edit, "edit-copy", QT_TRANSLATE_NOOP("ozm::editor::EditorActions", "&Copy"),
              "", [](const Parts &p, bool) { p.views.current().copy(); }, OnView},
    ActionRow{"pasteAction", Menu::Edit, "edit-paste",
              QT_TRANSLATE_NOOP("ozm::editor::EditorActions", "&Paste"), "",
              [](const Parts &p, bool) { p.views.current().paste(); }, Edits | OnView},
    ActionRow{"pastePlainAction", Menu::Edit, "",
              QT_TRANSLATE_NOOP("ozm::editor::EditorActions", "Paste as p&lain text"), "Ctrl+Shift+V",
              [](const Parts &p, bool) { pastePlain(p); }, Edits | OnView},
    ActionRow{"selectAllAction", Menu::Edit, "edit-select-all",
              QT_TRANSLATE_NOOP("ozm::editor::EditorActions", "Select &all"), "",
              [](const Parts &p, bool) { p.views.current().selectAll(); }, OnView},
    ActionRow{"findAction", Menu::Edit, "edit-find",
              QT_TRANSLATE_NOOP("ozm::editor::EditorActions", "&Find…"), "",
              [](const Parts &p, bool) { p.findBar.open(false); }, OnBar | Starts},
    ActionRow{"replaceAction", Menu::Edit, "edit-find-replace",
              QT_TRANSLATE_NOOP("ozm::editor::EditorActions", "R&eplace…"), "Ctrl+H",
              [](const Parts &p, bool) { p.findBar.open(true); }, Edits},
    ActionRow{"findNextAction", Menu::Edit, "go-down",
              QT_TRANSLATE_NOOP("ozm::editor::EditorActions", "Find &next"), "F3",
              [](const Parts &p, bool) { p.findBar.findNext(); }, None},
    ActionRow{"findPreviousAction", Menu::Edit, "go-up",
              QT_TRANSLATE_NOOP("ozm::editor::EditorActions", "Find pre&vious"), "Shift+F3",
              [](const Parts &p, bool) { p.findBar.findPrevious(); }, None},

    ActionRow{"insertCodeAction", Menu::Insert, "insert-code",
              QT_TRANSLATE_NOOP("ozm::editor::EditorActions", "&Code from the list…"), "Ctrl+Shift+C",
              [](const Parts &p, bool) {
                  p.codeDock->show();
                  p.codePanel.search();
              },
              Edits | OnBar | Starts},
    ActionRow{"newScriptAction", Menu::Insert, "script",
              QT_TRANSLATE_NOOP("ozm::editor::EditorActions", "&Script…"), "Ctrl+Shift+J",
              [](const Parts &p, bool) { p.scripts.startNew(); }, Edits | OnBar},
    ActionRow{"editScriptAction", Menu::Insert, "edit-rename",
              QT_TRANSLATE_NOOP("ozm::editor::EditorActions", "&Edit what is at the cursor"), "Ctrl+E",
              [](const Parts &p, bool) { editAtCursor(p); }, OnView | Starts},
    ActionRow{"repeatAction", Menu::Insert, "view-list",
              QT_TRANSLATE_NOOP("ozm::editor::EditorActions", "&Repeat for each row…"), "Ctrl+Shift+R",
              [](const Parts &p, bool) { p.instructions.askRepeat(); }, Edits | OnBar | OnView | Starts},
    ActionRow{"conditionAction", Menu::Insert, "view-filter",
              QT_TRANSLATE_NOOP("ozm::editor::EditorActions", "Co&ndition…"), "Ctrl+Shift+K",
              [](const Parts &p, bool) { p.instructions.askCondition(); }, Edits | OnBar | OnView},
    ActionRow{"otherPartAction", Menu::Insert, "view-filter-other",
              QT_TRANSLATE_NOOP("ozm::editor::EditorActions", "Other &part of the section"), "Ctrl+Shift+E",
              [](const Parts &p, bool) { p.instructions.addOtherPart(); }, Edits | OnBar | OnView},
    ActionRow{"codeFormatAction", Menu::Insert, "settings",
              QT_TRANSLATE_NOOP("ozm::editor::EditorActions", "&Format of a code…"), "Ctrl+Shift+M",
              [](const Parts &p, bool) { p.instructions.askFormat(); }, Edits | OnBar | OnView},
    ActionRow{"insertImageAction", Menu::Insert, "insert-image",
              QT_TRANSLATE_NOOP("ozm::editor::EditorActions", "&Image…"), "Ctrl+Shift+I",
              [](const Parts &p, bool) { p.questions.askImage(); }, Edits | OnBar | Starts},
    ActionRow{"insertLinkAction", Menu::Insert, "insert-link",
              QT_TRANSLATE_NOOP("ozm::editor::EditorActions", "&Link…"), "Ctrl+K",
              [](const Parts &p, bool) { p.questions.askLink(); }, Edits | OnBar},
    ActionRow{"contentsAction", Menu::Insert, "",
              QT_TRANSLATE_NOOP("ozm::editor::EditorActions", "Ta&ble of contents…"), "",
              [](const Parts &p, bool) { p.instructions.askContents(); }, Edits},
    ActionRow{"insertTableAction", Menu::Insert, "insert-table",
              QT_TRANSLATE_NOOP("ozm::editor::EditorActions", "&Table…"), "Ctrl+Shift+T",
              [](const Parts &p, bool) { p.table.askInsert(); }, Edits | Rich | OnBar},

    ActionRow{"boldAction", Menu::Format, "format-text-bold",
              QT_TRANSLATE_NOOP("ozm::editor::EditorActions", "&Bold"), "Ctrl+B",
              [](const Parts &p, bool on) { p.format.setBold(on); },
              Edits | Rich | Checked | OnFormat | Starts},
    ActionRow{"italicAction", Menu::Format, "format-text-italic",
              QT_TRANSLATE_NOOP("ozm::editor::EditorActions", "&Italic"), "Ctrl+I",
              [](const Parts &p, bool on) { p.format.setItalic(on); }, Edits | Rich | Checked | OnFormat},
    ActionRow{"underlineAction", Menu::Format, "format-text-underline",
              QT_TRANSLATE_NOOP("ozm::editor::EditorActions", "&Underline"), "Ctrl+U",
              [](const Parts &p, bool on) { p.format.setUnderline(on); }, Edits | Rich | Checked | OnFormat},
    ActionRow{"strikeAction", Menu::Format, "format-text-strikethrough",
              QT_TRANSLATE_NOOP("ozm::editor::EditorActions", "Stri&ke through"), "",
              [](const Parts &p, bool on) { p.format.setStrikeOut(on); }, Edits | Rich | Checked | OnFormat},
    ActionRow{
        "superscriptAction", Menu::Format, "",
        QT_TRANSLATE_NOOP("ozm::editor::EditorActions", "Su&perscript"), "Ctrl+.",
        [](const Parts &p, bool on) { p.format.setVerticalAlignment(QTextCharFormat::AlignSuperScript, on); },
        Edits | Rich | Checked},
    ActionRow{
        "subscriptAction", Menu::Format, "", QT_TRANSLATE_NOOP("ozm::editor::EditorActions", "&Subscript"),
        "Ctrl+,",
        [](const Parts &p, bool on) { p.format.setVerticalAlignment(QTextCharFormat::AlignSubScript, on); },
        Edits | Rich | Checked},
    ActionRow{"textColorAction", Menu::Format, "format-text-color",
              QT_TRANSLATE_NOOP("ozm::editor::EditorActions", "&Colour of the text…"), "",
              [](const Parts &p, bool) { p.format.askTextColor(); }, Edits | Rich | OnFormat | Starts},
    ActionRow{"highlightAction", Menu::Format, "format-text-highlight",
              QT_TRANSLATE_NOOP("ozm::editor::EditorActions", "Colour be&hind the text…"), "",
              [](const Parts &p, bool) { p.format.askHighlight(); }, Edits | Rich | OnFormat},
    ActionRow{"clearFormatAction", Menu::Format, "edit-clear",
              QT_TRANSLATE_NOOP("ozm::editor::EditorActions", "Cle&ar formats"), "Ctrl+Space",
              [](const Parts &p, bool) { p.format.clearFormat(); }, Edits | Rich},
    ActionRow{"textAction", Menu::Format, "", QT_TRANSLATE_NOOP("ozm::editor::EditorActions", "Te&xt"),
              "Ctrl+Alt+0", [](const Parts &p, bool) { p.format.setHeading(0); }, Edits | Rich | Starts},
    ActionRow{"heading1Action", Menu::Format, "",
              QT_TRANSLATE_NOOP("ozm::editor::EditorActions", "Heading &1"), "Ctrl+Alt+1",
              [](const Parts &p, bool) { p.format.setHeading(1); }, Edits | Rich},
    ActionRow{"heading2Action", Menu::Format, "",
              QT_TRANSLATE_NOOP("ozm::editor::EditorActions", "Heading &2"), "Ctrl+Alt+2",
              [](const Parts &p, bool) { p.format.setHeading(2); }, Edits | Rich},
    ActionRow{"heading3Action", Menu::Format, "",
              QT_TRANSLATE_NOOP("ozm::editor::EditorActions", "Heading &3"), "Ctrl+Alt+3",
              [](const Parts &p, bool) { p.format.setHeading(3); }, Edits | Rich},
    ActionRow{"alignLeftAction", Menu::Format, "format-justify-left",
              QT_TRANSLATE_NOOP("ozm::editor::EditorActions", "Align le&ft"), "Ctrl+L",
              [](const Parts &p, bool) { p.format.setAlignment(Qt::AlignLeft); },
              Edits | Rich | Checked | OnFormat | Starts},
    ActionRow{"alignCenterAction", Menu::Format, "format-justify-center",
              QT_TRANSLATE_NOOP("ozm::editor::EditorActions", "Ce&ntre"), "Ctrl+Alt+C",
              [](const Parts &p, bool) { p.format.setAlignment(Qt::AlignHCenter); },
              Edits | Rich | Checked | OnFormat},
    ActionRow{"alignRightAction", Menu::Format, "format-justify-right",
              QT_TRANSLATE_NOOP("ozm::editor::EditorActions", "Align &right"), "Ctrl+R",
              [](const Parts &p, bool) { p.format.setAlignment(Qt::AlignRight); },
              Edits | Rich | Checked | OnFormat},
    ActionRow{"justifyAction", Menu::Format, "format-justify-fill",
              QT_TRANSLATE_NOOP("ozm::editor::EditorActions", "&Justify"), "Ctrl+J",
              [](const Parts &p, bool) { p.format.setAlignment(Qt::AlignJustify); },
              Edits | Rich | Checked | OnFormat},
    ActionRow{"bulletListAction", Menu::Format, "format-list-unordered",
              QT_TRANSLATE_NOOP("ozm::editor::EditorActions", "&List"), "Ctrl+Shift+8",
              [](const Parts &p, bool) { p.format.toggleList(QTextListFormat::ListDisc); },
              Edits | Rich | Checked | OnFormat | Starts},
    ActionRow{"numberListAction", Menu::Format, "format-list-ordered",
              QT_TRANSLATE_NOOP("ozm::editor::EditorActions", "Nu&mbered list"), "Ctrl+Shift+7",
              [](const Parts &p, bool) { p.format.toggleList(QTextListFormat::ListDecimal); },
              Edits | Rich | Checked | OnFormat},
    ActionRow{"indentLessAction", Menu::Format, "format-indent-less",
              QT_TRANSLATE_NOOP("ozm::editor::EditorActions", "In&dent less"), "Ctrl+[",
              [](const Parts &p, bool) { p.format.indent(-1); }, Edits | Rich | OnFormat},
    ActionRow{"indentMoreAction", Menu::Format, "format-indent-more",
              QT_TRANSLATE_NOOP("ozm::editor::EditorActions", "Ind&ent more"), "Ctrl+]",
              [](const Parts &p, bool) { p.format.indent(1); }, Edits | Rich | OnFormat},

    ActionRow{"rowAboveAction", Menu::Table, "table-row-insert",
              QT_TRANSLATE_NOOP("ozm::editor::EditorActions", "Insert row &above"), "",
              [](const Parts &p, bool) { p.table.insertRow(Side::Before); },
              Edits | Rich | InTable | OnView | Starts},
    ActionRow{"rowBelowAction", Menu::Table, "table-row-insert",
              QT_TRANSLATE_NOOP("ozm::editor::EditorActions", "Insert row &below"), "Ctrl+Alt+Down",
              [](const Parts &p, bool) { p.table.insertRow(Side::After); }, Edits | Rich | InTable | OnView},
    ActionRow{"columnBeforeAction", Menu::Table, "table-column-insert",
              QT_TRANSLATE_NOOP("ozm::editor::EditorActions", "Insert column be&fore"), "",
              [](const Parts &p, bool) { p.table.insertColumn(Side::Before); },
              Edits | Rich | InTable | OnView},
    ActionRow{"columnAfterAction", Menu::Table, "table-column-insert",
              QT_TRANSLATE_NOOP("ozm::editor::EditorActions", "Insert column af&ter"), "Ctrl+Alt+Right",
              [](const Parts &p, bool) { p.table.insertColumn(Side::After); },
              Edits | Rich | InTable | OnView},
    ActionRow{"deleteRowAction", Menu::Table, "table-row-delete",
              QT_TRANSLATE_NOOP("ozm::editor::EditorActions", "Delete &rows"), "",
              [](const Parts &p, bool) { p.table.removeRows(); }, Edits | Rich | InTable | OnView | Starts},
    ActionRow{"deleteColumnAction", Menu::Table, "table-column-delete",
              QT_TRANSLATE_NOOP("ozm::editor::EditorActions", "Delete &columns"), "",
              [](const Parts &p, bool) { p.table.removeColumns(); }, Edits | Rich | InTable | OnView},
    ActionRow{"columnWidthAction", Menu::Table, "",
              QT_TRANSLATE_NOOP("ozm::editor::EditorActions", "Column &width…"), "",
              [](const Parts &p, bool) { p.table.askColumnWidth(); },
              Edits | Rich | InTable | OnView | Starts},
    ActionRow{"headingRowsAction", Menu::Table, "",
              QT_TRANSLATE_NOOP("ozm::editor::EditorActions", "&Heading on each page"), "",
              [](const Parts &p, bool on) { p.table.setHeading(on); },
              Edits | Rich | InTable | OnView | Checked},
    ActionRow{"mergeCellsAction", Menu::Table, "table-cells-merge",
              QT_TRANSLATE_NOOP("ozm::editor::EditorActions", "&Merge cells"), "",
              [](const Parts &p, bool) { p.table.mergeCells(); }, Edits | Rich | InTable | OnView | Starts},
    ActionRow{"splitCellAction", Menu::Table, "table-cells-split",
              QT_TRANSLATE_NOOP("ozm::editor::EditorActions", "&Split cell"), "",
              [](const Parts &p, bool) { p.table.splitCell(); }, Edits | Rich | InTable | OnView},

    ActionRow{"richModeAction", Menu::View, "format-font",
              QT_TRANSLATE_NOOP("ozm::editor::EditorActions", "&Formatted text"), "Ctrl+Shift+F",
              [](const Parts &p, bool) { p.window.setMode(AbstractTemplateEditor::Mode::Rich); },
              Checked | OnBar | Starts},
    ActionRow{"plainModeAction", Menu::View, "view-source",
              QT_TRANSLATE_NOOP("ozm::editor::EditorActions", "&Source"), "Ctrl+Shift+U",
              [](const Parts &p, bool) { p.window.setMode(AbstractTemplateEditor::Mode::Plain); },
              Checked | OnBar},
    ActionRow{"zoomInAction", Menu::View, "zoom-in",
              QT_TRANSLATE_NOOP("ozm::editor::EditorActions", "Zoom &in"), "",
              [](const Parts &p, bool) { p.views.zoomIn(); }, Starts},
    ActionRow{"zoomOutAction", Menu::View, "zoom-out",
              QT_TRANSLATE_NOOP("ozm::editor::EditorActions", "Zoom &out"), "",
              [](const Parts &p, bool) { p.views.zoomOut(); }, None},
    ActionRow{"normalSizeAction", Menu::View, "zoom-original",
              QT_TRANSLATE_NOOP("ozm::editor::EditorActions", "&Normal size"), "Ctrl+0",
              [](const Parts &p, bool) { p.views.setZoom(1); }, None},
    ActionRow{"refreshAction", Menu::View, "view-refresh",
              QT_TRANSLATE_NOOP("ozm::editor::EditorActions", "&Refresh preview"), "F5",
              [](const Parts &p, bool) { p.window.refresh(); }, Starts},
    ActionRow{"runScriptAction", Menu::View, "run",
              QT_TRANSLATE_NOOP("ozm::editor::EditorActions", "R&un the script"), "Ctrl+Return",
              [](const Parts &p, bool) { p.scripts.run(); }, None},
};

struct PlatformKey
{
    const char *name;
    QKeySequence::StandardKey key;
};

constexpr std::array kPlatformKeys{
    PlatformKey{"newAction", QKeySequence::New},
    PlatformKey{"openAction", QKeySequence::Open},
    PlatformKey{"saveAction", QKeySequence::Save},
    PlatformKey{"printAction", QKeySequence::Print},
    PlatformKey{"closeAction", QKeySequence::Close},
    PlatformKey{"undoAction", QKeySequence::Undo},
    PlatformKey{"redoAction", QKeySequence::Redo},
    PlatformKey{"cutAction", QKeySequence::Cut},
    PlatformKey{"copyAction", QKeySequence::Copy},
    PlatformKey{"pasteAction", QKeySequence::Paste},
    PlatformKey{"zoomInAction", QKeySequence::ZoomIn},
    PlatformKey{"zoomOutAction", QKeySequence::ZoomOut},
    PlatformKey{"findAction", QKeySequence::Find},
    PlatformKey{"selectAllAction", QKeySequence::SelectAll},
};

QAction *makeAction(const ActionRow &row, QObject *parent)
{
    auto *action = new QAction(EditorActions::tr(row.text), parent);
    action->setObjectName(QString::fromLatin1(row.name));
    action->setCheckable(row.flags & Checked);
    if (*row.icon)
        action->setIcon(OZMStyle::icon(QString::fromLatin1(row.icon)));
    if (*row.key)
        action->setShortcut(QKeySequence(QString::fromLatin1(row.key)));
    return action;
}

/// The key is nowhere else to be seen on a tool bar.
void addKeyToTip(QAction *action)
{
    const QString key = action->shortcut().toString(QKeySequence::NativeText);
    const QString text = action->toolTip();
    action->setToolTip(key.isEmpty() ? text : u"%1 (%2)"_s.arg(text, key));
}

template <typename Menu>
void addTo(Menu *menu, const ActionRow &row, QAction *action)
{
    if ((row.flags & Starts) && !menu->actions().isEmpty())
        menu->addSeparator();
    menu->addAction(action);
}

} // namespace

EditorActions::EditorActions(const EditorParts &parts)
    : m_parts(parts)
{
    makeActions();
    makeMenus();
    makeToolBars();
}

void EditorActions::makeActions()
{
    for (const ActionRow &row : kActions) {
        QAction *action = makeAction(row, &m_parts.window);
        m_actions.insert(row.name, action);
        m_inOrder.push_back(action);
        connect(action, &QAction::triggered, this, [this, run = row.run](bool checked) {
            run(m_parts, checked);
            update();
        });
    }
    for (const PlatformKey &row : kPlatformKeys)
        action(row.name)->setShortcuts(row.key);
    for (QAction *action : std::as_const(m_actions))
        addKeyToTip(action);
    auto *modes = new QActionGroup(this);
    modes->addAction(action("richModeAction"));
    modes->addAction(action("plainModeAction"));
}

void EditorActions::makeMenus()
{
    for (const MenuRow &menuRow : kMenus) {
        QMenu *menu = m_parts.window.menuBar()->addMenu(tr(menuRow.title));
        menu->setObjectName(QString::fromLatin1(menuRow.name));
        for (const ActionRow &row : kActions)
            if (row.menu == menuRow.menu)
                addTo(menu, row, action(row.name));
        if (menuRow.menu == Menu::View)
            addViewEntries(menu);
    }
    auto *recent = new QMenu(EditorActions::tr("Recent &files"), &m_parts.window);
    recent->setObjectName(u"recentMenu"_s);
    m_parts.window.findChild<QMenu *>(u"fileMenu"_s)->insertMenu(action("saveAction"), recent);
    connect(m_parts.window.findChild<QMenu *>(u"fileMenu"_s), &QMenu::aboutToShow, this,
            [this, recent] { m_parts.files.fillRecentMenu(recent); });
    auto *codes = new QMenu(EditorActions::tr("C&ode"), &m_parts.window);
    codes->setObjectName(u"codeMenu"_s);
    codes->setIcon(OZMStyle::icon(u"insert-code"_s));
    m_parts.window.findChild<QMenu *>(u"insertMenu"_s)->insertMenu(action("newScriptAction"), codes);
    connect(codes, &QMenu::aboutToShow, this, [this, codes] { fillCodeMenu(codes); });
    addStyleMenu();
    for (QWidget *view : std::initializer_list<QWidget *>{m_parts.views.rich(), m_parts.views.plain()}) {
        view->setContextMenuPolicy(Qt::ActionsContextMenu);
        for (const ActionRow &row : kActions)
            if (row.flags & OnView)
                view->addAction(action(row.name));
    }
}

void EditorActions::addViewEntries(QMenu *menu)
{
    menu->addSeparator();
    for (const QDockWidget *dock : m_parts.docks)
        menu->addAction(dock->toggleViewAction());
}

/// Of the styles that have no action of their own.
void EditorActions::addStyleMenu()
{
    m_styles = new QMenu(EditorActions::tr("Paragraph st&yle"), &m_parts.window);
    m_styles->setObjectName(u"styleMenu"_s);
    m_parts.window.findChild<QMenu *>(u"formatMenu"_s)->insertMenu(action("textAction"), m_styles);
    connect(m_styles, &QMenu::aboutToShow, this, [this] {
        m_styles->clear();
        for (const ParagraphStyle &style : m_parts.format.styles())
            m_styles->addAction(style.name, this,
                                [this, name = style.className] { m_parts.format.setStyle(name); });
    });
}

void EditorActions::fillCodeMenu(QMenu *menu)
{
    menu->clear();
    menu->setToolTipsVisible(true);
    for (int row = 0; row < m_parts.codes.rowCount(); ++row) {
        const QString code = m_parts.codes.codeAt(row);
        QAction *action = menu->addAction(m_parts.codes.item(row)->text().replace(u'&', "&&"_L1));
        action->setObjectName(u"codeAction"_s + code);
        action->setToolTip(m_parts.codes.toolTip(code));
        action->setDisabled(m_parts.views.isReadOnly());
        connect(action, &QAction::triggered, this, [this, code] {
            m_parts.views.current().insertSource(code);
            m_parts.views.current().widget()->setFocus();
        });
    }
    menu->setDisabled(menu->isEmpty());
}

void EditorActions::makeToolBars()
{
    QToolBar *bar = m_parts.window.addToolBar(EditorActions::tr("Template"));
    bar->setObjectName(u"mainToolBar"_s);
    m_parts.window.addToolBarBreak();
    QToolBar *format = m_formatBar = m_parts.window.addToolBar(EditorActions::tr("Format"));
    format->setObjectName(u"formatToolBar"_s);
    m_parts.format.addChoices(format);
    for (const ActionRow &row : kActions) {
        if (row.flags & OnBar)
            addTo(bar, row, action(row.name));
        if (row.flags & OnFormat)
            addTo(format, row, action(row.name));
    }
}

QAction *EditorActions::action(const char *name) const
{
    QAction *action = m_actions.value(name);
    Q_ASSERT_X(action, "EditorActions", name);
    return action;
}

void EditorActions::check(const char *name, bool on) const
{
    action(name)->setChecked(on);
}

void EditorActions::update()
{
    const bool rich = m_parts.history.session().mode() == AbstractTemplateEditor::Mode::Rich;
    const bool inTable = rich && m_parts.table.isInTable();
    const std::array possible{
        std::pair{"undoAction"_L1, m_parts.history.stack().canUndo()},
        std::pair{"redoAction"_L1, m_parts.history.stack().canRedo()},
        std::pair{"mergeCellsAction"_L1, inTable && m_parts.table.canMerge()},
        std::pair{"splitCellAction"_L1, inTable && m_parts.table.canSplit()},
        std::pair{"compareSavedAction"_L1, !m_parts.files.path().isEmpty()},
    };
    // Once each: buttons of actions that are switched off and on again are painted, too.
    for (size_t index = 0; index < kActions.size(); ++index) {
        const ActionRow &row = kActions.at(index);
        const auto own = std::ranges::find(possible, QLatin1StringView(row.name),
                                           [](const auto &pair) { return pair.first; });
        m_inOrder.at(index)->setEnabled(
            (!(row.flags & Edits) || !m_parts.views.isReadOnly()) && (!(row.flags & Rich) || rich) &&
            (!(row.flags & InTable) || inTable) && (own == possible.end() || own->second));
    }
    check("richModeAction", rich);
    check("plainModeAction", !rich);
    check("headingRowsAction", inTable && m_parts.table.isInHeading());
    m_formatBar->setEnabled(rich && !m_parts.views.isReadOnly());
    m_styles->setEnabled(m_formatBar->isEnabled());
    if (!rich)
        return;
    const QTextCharFormat format = m_parts.format.format();
    check("boldAction", format.fontWeight() >= QFont::DemiBold);
    check("italicAction", format.fontItalic());
    check("underlineAction", format.fontUnderline());
    check("strikeAction", format.fontStrikeOut());
    check("superscriptAction", format.verticalAlignment() == QTextCharFormat::AlignSuperScript);
    check("subscriptAction", format.verticalAlignment() == QTextCharFormat::AlignSubScript);
    const Qt::Alignment alignment = m_parts.format.alignment();
    check("alignCenterAction", alignment == Qt::AlignHCenter);
    check("alignRightAction", alignment == Qt::AlignRight);
    check("justifyAction", alignment == Qt::AlignJustify);
    check("alignLeftAction", alignment == Qt::AlignLeft || alignment == Qt::Alignment());
    const QTextListFormat::Style list = m_parts.format.listStyle();
    check("bulletListAction", list == QTextListFormat::ListDisc);
    check("numberListAction", list == QTextListFormat::ListDecimal);
}

} // namespace ozm::editor
