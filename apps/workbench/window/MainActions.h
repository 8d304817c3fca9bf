#pragma once

#include <QObject>

class QAction;
class QMainWindow;
class QMenu;
class QToolBar;
class QUndoStack;

namespace workbench {

/**
 * The actions of the window, and the tool bar and the menus that offer them. To add an action: a member here, and a
 * row in the table of the source.
 */
class MainActions : public QObject
{
    Q_OBJECT

public:
    explicit MainActions(QMainWindow *window);

    /// Enables the actions that can be used now.
    void update(const QUndoStack &history, bool hasSamples, bool hasSelection) const;

    QAction *open = nullptr;
    QAction *save = nullptr;
    QAction *openData = nullptr;
    QAction *findData = nullptr;
    QAction *addSample = nullptr;
    QAction *deleteSamples = nullptr;
    QAction *rename = nullptr;
    QAction *undo = nullptr;
    QAction *redo = nullptr;
    QAction *listData = nullptr;
    QAction *exportTrail = nullptr;
    QAction *report = nullptr;
    QAction *editTemplate = nullptr;
    QAction *style = nullptr;
    QAction *firstSteps = nullptr;

    /// For the parts of the window that can be closed, so that keys bring them back.
    QMenu *view = nullptr;

private:
    void fill(QToolBar *bar);
};

} // namespace workbench
