#include "window/MainActions.h"

#include <ozm_widgets/OZMStyle.h>

#include <QAction>
#include <QKeySequence>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>
#include <QUndoStack>

#include <array>

using namespace Qt::StringLiterals;

namespace workbench {

namespace {

enum class Group
{
    File,
    Samples,
    History,
    View,
    Tools,
    Help
};

struct ActionRow
{
    QAction *MainActions::*action;
    Group group;
    const char *name;
    const char *icon;
    const char *text;
    const char *tip;
    QKeySequence::StandardKey key;
    const char *ownKey = "";
};

constexpr std::array kActions{
    ActionRow{&MainActions::open, Group::File, "openAction", "document-open",
              QT_TRANSLATE_NOOP("workbench::MainActions", "Open"),
              QT_TRANSLATE_NOOP("workbench::MainActions", "Open samples from a CSV file"),
              QKeySequence::Open},
    ActionRow{&MainActions::save, Group::File, "saveAction", "document-save",
              QT_TRANSLATE_NOOP("workbench::MainActions", "Save"),
              QT_TRANSLATE_NOOP("workbench::MainActions", "Save the samples to a CSV file"),
              QKeySequence::Save},
    ActionRow{&MainActions::openData, Group::Samples, "openDataAction", "spectrum",
              QT_TRANSLATE_NOOP("workbench::MainActions", "Open MS data…"),
              QT_TRANSLATE_NOOP("workbench::MainActions",
                                "Choose mass-spectrometry data, files and folders, and add it as samples"),
              QKeySequence::UnknownKey, "Ctrl+Shift+O"},
    ActionRow{&MainActions::findData, Group::Samples, "findDataAction", "folder-data",
              QT_TRANSLATE_NOOP("workbench::MainActions", "Find MS data…"),
              QT_TRANSLATE_NOOP("workbench::MainActions",
                                "Find the mass-spectrometry data in a folder, and add it as samples"),
              QKeySequence::Find},
    ActionRow{&MainActions::addSample, Group::Samples, "addSampleAction", "list-add",
              QT_TRANSLATE_NOOP("workbench::MainActions", "Add"),
              QT_TRANSLATE_NOOP("workbench::MainActions", "Add a sample"), QKeySequence::New},
    ActionRow{&MainActions::deleteSamples, Group::Samples, "deleteAction", "edit-delete",
              QT_TRANSLATE_NOOP("workbench::MainActions", "Delete"),
              QT_TRANSLATE_NOOP("workbench::MainActions", "Delete the chosen samples"), QKeySequence::Delete},
    ActionRow{&MainActions::rename, Group::Samples, "renameAction", "edit-rename",
              QT_TRANSLATE_NOOP("workbench::MainActions", "Rename"),
              QT_TRANSLATE_NOOP("workbench::MainActions", "Rename the chosen samples in one step"),
              QKeySequence::UnknownKey, "Ctrl+R"},
    ActionRow{&MainActions::undo, Group::History, "undoAction", "edit-undo",
              QT_TRANSLATE_NOOP("workbench::MainActions", "Undo"), "", QKeySequence::Undo},
    ActionRow{&MainActions::redo, Group::History, "redoAction", "edit-redo",
              QT_TRANSLATE_NOOP("workbench::MainActions", "Redo"), "", QKeySequence::Redo},
    ActionRow{&MainActions::listData, Group::Tools, "listDataAction", "view-list",
              QT_TRANSLATE_NOOP("workbench::MainActions", "List MS data…"),
              QT_TRANSLATE_NOOP("workbench::MainActions",
                                "Save a CSV file that lists the mass-spectrometry data in a folder"),
              QKeySequence::UnknownKey, "Ctrl+L"},
    ActionRow{&MainActions::exportTrail, Group::Tools, "exportAction", "document-export",
              QT_TRANSLATE_NOOP("workbench::MainActions", "Export trail"),
              QT_TRANSLATE_NOOP("workbench::MainActions", "Export the audit trail as JSON or CSV"),
              QKeySequence::UnknownKey, "Ctrl+E"},
    ActionRow{&MainActions::report, Group::Tools, "reportAction", "document-print-preview",
              QT_TRANSLATE_NOOP("workbench::MainActions", "Report…"),
              QT_TRANSLATE_NOOP("workbench::MainActions",
                                "Make a report on the chosen samples, or on all when none is chosen"),
              QKeySequence::Print},
    ActionRow{&MainActions::editTemplate, Group::Tools, "editTemplateAction", "report",
              QT_TRANSLATE_NOOP("workbench::MainActions", "Edit report template…"),
              QT_TRANSLATE_NOOP("workbench::MainActions",
                                "Write the template of a report, with the chosen samples as its preview"),
              QKeySequence::UnknownKey, "Ctrl+T"},
    ActionRow{&MainActions::style, Group::Tools, "styleAction", "view-style",
              QT_TRANSLATE_NOOP("workbench::MainActions", "Style"),
              QT_TRANSLATE_NOOP("workbench::MainActions", "Look at icons and messages, in light and dark"),
              QKeySequence::UnknownKey, "Ctrl+Shift+L"},
    ActionRow{&MainActions::firstSteps, Group::Help, "firstStepsAction", "dialog-information",
              QT_TRANSLATE_NOOP("workbench::MainActions", "First steps"),
              QT_TRANSLATE_NOOP("workbench::MainActions",
                                "Open a window on made-up samples that leads through what can be done"),
              QKeySequence::HelpContents},
};

struct MenuRow
{
    Group group;
    const char *name;
    const char *title;
};

constexpr std::array kMenus{
    MenuRow{Group::File, "fileMenu", QT_TRANSLATE_NOOP("workbench::MainActions", "&File")},
    MenuRow{Group::History, "editMenu", QT_TRANSLATE_NOOP("workbench::MainActions", "&Edit")},
    MenuRow{Group::Samples, "samplesMenu", QT_TRANSLATE_NOOP("workbench::MainActions", "&Samples")},
    MenuRow{Group::View, "viewMenu", QT_TRANSLATE_NOOP("workbench::MainActions", "&View")},
    MenuRow{Group::Tools, "toolsMenu", QT_TRANSLATE_NOOP("workbench::MainActions", "&Tools")},
    MenuRow{Group::Help, "helpMenu", QT_TRANSLATE_NOOP("workbench::MainActions", "&Help")},
};

QAction *makeAction(const ActionRow &row, QObject *parent)
{
    auto *action =
        new QAction(OZMStyle::icon(QString::fromLatin1(row.icon)), MainActions::tr(row.text), parent);
    action->setObjectName(QString::fromLatin1(row.name));
    if (*row.tip) {
        action->setToolTip(MainActions::tr(row.tip));
        action->setStatusTip(MainActions::tr(row.tip));
    }
    if (row.key != QKeySequence::UnknownKey)
        action->setShortcut(row.key);
    else
        action->setShortcut(QKeySequence(QString::fromLatin1(row.ownKey)));
    return action;
}

} // namespace

MainActions::MainActions(QMainWindow *window)
    : QObject(window)
{
    for (const ActionRow &row : kActions)
        this->*row.action = makeAction(row, window);
    QToolBar *bar = window->addToolBar(tr("Edit samples"));
    bar->setObjectName(u"toolBar"_s);
    bar->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    fill(bar);
    for (const MenuRow &row : kMenus) {
        QMenu *menu = window->menuBar()->addMenu(tr(row.title));
        menu->setObjectName(QString::fromLatin1(row.name));
        for (const ActionRow &action : kActions)
            if (action.group == row.group)
                menu->addAction(this->*action.action);
        if (row.group == Group::View) {
            view = menu;
            menu->addAction(bar->toggleViewAction());
        }
    }
}

void MainActions::fill(QToolBar *bar)
{
    Group group = kActions.front().group;
    for (const ActionRow &row : kActions) {
        // Help is not for every day.
        if (row.group == Group::Help)
            continue;
        if (row.group != group)
            bar->addSeparator();
        group = row.group;
        bar->addAction(this->*row.action);
        // The toolkit leaves tool bars to the mouse.
        bar->widgetForAction(this->*row.action)->setFocusPolicy(Qt::TabFocus);
    }
}

void MainActions::update(const QUndoStack &history, bool hasSamples, bool hasSelection) const
{
    undo->setEnabled(history.canUndo());
    undo->setToolTip(history.canUndo() ? tr("Undo: %1").arg(history.undoText()) : tr("Nothing to undo"));
    redo->setEnabled(history.canRedo());
    redo->setToolTip(history.canRedo() ? tr("Redo: %1").arg(history.redoText()) : tr("Nothing to redo"));
    deleteSamples->setEnabled(hasSelection);
    rename->setEnabled(hasSelection);
    save->setEnabled(hasSamples);
    report->setEnabled(hasSamples);
}

} // namespace workbench
