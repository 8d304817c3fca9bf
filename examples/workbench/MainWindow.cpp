#include "MainWindow.h"

#include "AddSampleDialog.h"
#include "AuditTrailModel.h"
#include "DataImport.h"
#include "HistoryView.h"
#include "SampleEditor.h"
#include "SampleTableModel.h"
#include "SampleTableView.h"

#include <QAction>
#include <QCloseEvent>
#include <QDir>
#include <QDockWidget>
#include <QFileDialog>
#include <QFileInfo>
#include <QInputDialog>
#include <QLabel>
#include <QMessageBox>
#include <QStackedWidget>
#include <QStatusBar>
#include <QStyle>
#include <QStyledItemDelegate>
#include <QToolBar>
#include <QTreeView>

#include <algorithm>
#include <array>
#include <utility>

using namespace Qt::StringLiterals;
using ozm::Error;

namespace workbench {

namespace {

constexpr std::array kTrailWidths{180, 75, 510};
constexpr int kHistoryWidth = 230;
constexpr int kTrailHeight = 270;
constexpr int kStatusMs = 15000;

/// Gives the rows of a tree the room that those of a table have.
class RoomyDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        return QStyledItemDelegate::sizeHint(option, index) + QSize(0, 4);
    }
};

QString csvFilter()
{
    return MainWindow::tr("Samples (*.csv)");
}

QLabel *emptyPage(QWidget *parent)
{
    auto *page = new QLabel(
        MainWindow::tr("No samples yet.\n\nOpen a CSV file, find MS data, drop data here, or add a sample."),
        parent);
    page->setObjectName(u"emptyPage"_s);
    page->setAlignment(Qt::AlignCenter);
    return page;
}

} // namespace

MainWindow::MainWindow(SampleEditor &editor, const QString &trailPath, QWidget *parent)
    : QMainWindow(parent)
    , m_editor(editor)
    , m_samples(new SampleTableModel(editor, this))
    , m_trail(new AuditTrailModel(editor.trail(), this))
    , m_import(new DataImport(
          editor, [this] { return QFileDialog::getExistingDirectory(this, tr("Find MS data")); }, this))
{
    setObjectName(u"mainWindow"_s);
    resize(1200, 760);
    createTable();
    createActions();
    createHistory();
    createTrail();
    createStatusBar(trailPath);
    follow();
    setFile({});
    refresh();
}

MainWindow::~MainWindow() = default;

QAction *MainWindow::makeAction(const char *name, const QString &text, int icon, const QString &tip,
                                const QKeySequence &shortcut)
{
    auto *action = new QAction(style()->standardIcon(static_cast<QStyle::StandardPixmap>(icon)), text, this);
    action->setObjectName(QString::fromLatin1(name));
    action->setToolTip(tip);
    action->setStatusTip(tip);
    action->setShortcut(shortcut);
    return action;
}

void MainWindow::createActions()
{
    QToolBar *bar = addToolBar(tr("Edit samples"));
    bar->setObjectName(u"toolBar"_s);
    bar->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);

    QAction *open = makeAction("openAction", tr("Open"), QStyle::SP_DialogOpenButton,
                               tr("Open samples from a CSV file"), QKeySequence::Open);
    m_save = makeAction("saveAction", tr("Save"), QStyle::SP_DialogSaveButton,
                        tr("Save the samples to a CSV file"), QKeySequence::Save);
    QAction *add = makeAction("addSampleAction", tr("Add"), QStyle::SP_FileDialogNewFolder,
                              tr("Add a sample"), QKeySequence::New);
    m_delete = makeAction("deleteAction", tr("Delete"), QStyle::SP_TrashIcon, tr("Delete the chosen samples"),
                          QKeySequence::Delete);
    m_rename = makeAction("renameAction", tr("Rename"), QStyle::SP_FileDialogDetailedView,
                          tr("Rename the chosen samples in one step"), QKeySequence(u"Ctrl+R"_s));
    m_undo = makeAction("undoAction", tr("Undo"), QStyle::SP_ArrowBack, {}, QKeySequence::Undo);
    m_redo = makeAction("redoAction", tr("Redo"), QStyle::SP_ArrowForward, {}, QKeySequence::Redo);
    QAction *exporting = makeAction("exportAction", tr("Export trail"), QStyle::SP_FileIcon,
                                    tr("Export the audit trail as JSON"), QKeySequence(u"Ctrl+E"_s));

    bar->addActions({open, m_save});
    bar->addSeparator();
    bar->addActions({createFindAction(), add, m_delete, m_rename});
    bar->addSeparator();
    bar->addActions({m_undo, m_redo});
    bar->addSeparator();
    bar->addAction(exporting);

    connect(open, &QAction::triggered, this, &MainWindow::askOpen);
    connect(m_save, &QAction::triggered, this, &MainWindow::askSave);
    connect(add, &QAction::triggered, this, [this] { AddSampleDialog(m_editor, this).exec(); });
    connect(m_delete, &QAction::triggered, this, &MainWindow::deleteSelected);
    connect(m_rename, &QAction::triggered, this, &MainWindow::askRename);
    connect(m_undo, &QAction::triggered, &m_editor, &SampleEditor::undo);
    connect(m_redo, &QAction::triggered, &m_editor, &SampleEditor::redo);
    connect(exporting, &QAction::triggered, this, &MainWindow::askExport);
}

QAction *MainWindow::createFindAction()
{
    QAction *find = makeAction("findDataAction", tr("Find MS data…"), QStyle::SP_FileDialogContentsView,
                               tr("Find the mass-spectrometry data in a folder, and add it as samples"),
                               QKeySequence::Find);
    connect(find, &QAction::triggered, m_import, &DataImport::ask);
    connect(m_import, &DataImport::runningChanged, find, &QAction::setDisabled);
    return find;
}

void MainWindow::createTable()
{
    m_table = new SampleTableView(m_samples, m_editor.table(), this);
    m_pages = new QStackedWidget(this);
    m_pages->setObjectName(u"pages"_s);
    m_pages->addWidget(emptyPage(m_pages));
    m_pages->addWidget(m_table);
    setCentralWidget(m_pages);
    m_import->acceptDropsOn(m_pages);
}

void MainWindow::createHistory()
{
    auto *dock = new QDockWidget(tr("History"), this);
    dock->setObjectName(u"historyDock"_s);
    auto *view = new HistoryView(m_editor, dock);
    view->setItemDelegate(new RoomyDelegate(view));
    dock->setWidget(view);
    addDockWidget(Qt::RightDockWidgetArea, dock);
    resizeDocks({dock}, {kHistoryWidth}, Qt::Horizontal);
}

void MainWindow::createTrail()
{
    m_trailView = new QTreeView(this);
    m_trailView->setObjectName(u"trailView"_s);
    m_trailView->setAccessibleName(tr("Audit trail"));
    m_trailView->setModel(m_trail);
    m_trailView->setAlternatingRowColors(true);
    m_trailView->setUniformRowHeights(true);
    m_trailView->setItemDelegate(new RoomyDelegate(m_trailView));
    for (int column = 0; column < static_cast<int>(kTrailWidths.size()); ++column)
        m_trailView->setColumnWidth(column, kTrailWidths.at(static_cast<std::size_t>(column)));
    m_trailView->expandAll();

    auto *dock = new QDockWidget(tr("Audit trail"), this);
    dock->setObjectName(u"trailDock"_s);
    dock->setWidget(m_trailView);
    addDockWidget(Qt::BottomDockWidgetArea, dock);
    resizeDocks({dock}, {kTrailHeight}, Qt::Vertical);
}

void MainWindow::createStatusBar(const QString &trailPath)
{
    m_count = new QLabel(this);
    m_count->setObjectName(u"sampleCount"_s);
    auto *trail = new QLabel(tr("Recorded in %1").arg(QFileInfo(trailPath).fileName()), this);
    trail->setObjectName(u"trailFile"_s);
    trail->setToolTip(QDir::toNativeSeparators(trailPath));
    statusBar()->setObjectName(u"statusBar"_s);
    statusBar()->addPermanentWidget(m_import->progress());
    m_import->progress()->hide();
    statusBar()->addPermanentWidget(m_count);
    statusBar()->addPermanentWidget(trail);
}

void MainWindow::follow()
{
    connect(&m_editor, &SampleEditor::trouble, this, &MainWindow::showTrouble);
    connect(m_import, &DataImport::reported, this, &MainWindow::showImport);
    connect(m_import, &DataImport::added, m_table, &QTableView::scrollToBottom);
    connect(&m_editor.history(), &QUndoStack::indexChanged, this, &MainWindow::refresh);
    connect(&m_editor.history(), &QUndoStack::cleanChanged, this, &MainWindow::refresh);
    connect(&m_editor.table(), &SampleTable::wasReset, this, &MainWindow::refresh);
    connect(m_table->selectionModel(), &QItemSelectionModel::selectionChanged, this, &MainWindow::refresh);
    // New entries are what people look for, with what is below them.
    connect(m_trail, &QAbstractItemModel::rowsInserted, this,
            [this](const QModelIndex &, int first, int last) {
                for (int row = first; row <= last; ++row)
                    m_trailView->expandRecursively(m_trail->index(row, 0));
                m_trailView->scrollToBottom();
            });
    connect(m_trail, &QAbstractItemModel::modelReset, this, [this] {
        m_trailView->expandAll();
        m_trailView->scrollToBottom();
    });
}

void MainWindow::open(const QString &path)
{
    if (!m_editor.load(path).hasError())
        setFile(path);
}

void MainWindow::askOpen()
{
    if (!mayDiscard())
        return;
    const QString path = QFileDialog::getOpenFileName(this, tr("Open samples"), m_file, csvFilter());
    if (!path.isEmpty())
        open(path);
}

bool MainWindow::askSave()
{
    const QString path = QFileDialog::getSaveFileName(this, tr("Save samples"), m_file, csvFilter());
    if (path.isEmpty() || m_editor.save(path).hasError())
        return false;
    setFile(path);
    statusBar()->showMessage(tr("Saved to %1").arg(QDir::toNativeSeparators(path)), kStatusMs);
    return true;
}

void MainWindow::askExport()
{
    const QString path =
        QFileDialog::getSaveFileName(this, tr("Export audit trail"), u"audit.json"_s, tr("JSON (*.json)"));
    if (!path.isEmpty() && !m_editor.exportTrail(path).hasError())
        statusBar()->showMessage(tr("Exported to %1").arg(QDir::toNativeSeparators(path)), kStatusMs);
}

void MainWindow::askRename()
{
    const QList<qint64> ids = selectedIds();
    auto *dialog = new QInputDialog(this);
    dialog->setObjectName(u"renameDialog"_s);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowTitle(tr("Rename samples"));
    dialog->setLabelText(
        tr("New name of the %1 chosen samples.\n* stands for the old name, # for a number.").arg(ids.size()));
    dialog->setTextValue(u"* #"_s);
    connect(dialog, &QInputDialog::textValueSelected, this,
            [this, ids](const QString &pattern) { m_editor.renameSamples(ids, pattern); });
    dialog->open();
}

void MainWindow::deleteSelected()
{
    m_editor.deleteSamples(selectedIds());
}

void MainWindow::showTrouble(const Error &error)
{
    const QStringList texts = QStringList{error.errorMessage()} + error.warnings();
    const QString text = texts.join(u'\n').trimmed();
    statusBar()->showMessage(text.section(u'\n', 0, 0), kStatusMs);
    // A dialog with its own place for the reason is in front of a message.
    if (!m_showMessages || findChild<AddSampleDialog *>())
        return;
    showMessage(error.hasError() ? tr("Not done") : tr("Please note"), text);
}

void MainWindow::showImport(const QString &summary, const QStringList &refusals)
{
    statusBar()->showMessage(refusals.isEmpty() ? summary : summary + u' ' + refusals.constFirst(),
                             kStatusMs);
    // One reason fits into the status bar.
    if (m_showMessages && refusals.size() > 1)
        showMessage(tr("Please note"), summary + u'\n' + refusals.join(u'\n'));
}

void MainWindow::showMessage(const QString &title, const QString &text)
{
    if (auto *shown = findChild<QMessageBox *>(u"troubleMessage"_s)) {
        shown->setText(text);
        return;
    }
    auto *message = new QMessageBox(QMessageBox::Warning, title, text, QMessageBox::Ok, this);
    message->setObjectName(u"troubleMessage"_s);
    message->setAttribute(Qt::WA_DeleteOnClose);
    message->open();
}

void MainWindow::refresh()
{
    const QUndoStack &history = m_editor.history();
    m_undo->setEnabled(history.canUndo());
    m_undo->setToolTip(history.canUndo() ? tr("Undo: %1").arg(history.undoText()) : tr("Nothing to undo"));
    m_redo->setEnabled(history.canRedo());
    m_redo->setToolTip(history.canRedo() ? tr("Redo: %1").arg(history.redoText()) : tr("Nothing to redo"));

    const bool selected = m_table->selectionModel()->hasSelection();
    const int samples = m_editor.table().rowCount();
    m_delete->setEnabled(selected);
    m_rename->setEnabled(selected);
    m_save->setEnabled(samples > 0);
    m_pages->setCurrentIndex(samples > 0 ? 1 : 0);
    m_count->setText(samples == 1 ? tr("1 sample") : tr("%1 samples").arg(samples));
    setWindowModified(!history.isClean());
    m_table->updateColumns();
}

void MainWindow::setFile(const QString &path)
{
    m_file = path;
    setWindowTitle(path.isEmpty() ? tr("Workbench[*]")
                                  : tr("%1[*] - Workbench").arg(QFileInfo(path).fileName()));
}

bool MainWindow::mayDiscard()
{
    if (m_editor.history().isClean())
        return true;
    const auto answer =
        QMessageBox::question(this, tr("Unsaved samples"), tr("The samples have changed. Save them first?"),
                              QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel);
    if (answer == QMessageBox::Save)
        return askSave();
    return answer == QMessageBox::Discard;
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    event->setAccepted(mayDiscard());
}

QList<qint64> MainWindow::selectedIds() const
{
    // From the top down, however they were chosen: numbered names follow this order.
    QModelIndexList rows = m_table->selectionModel()->selectedRows();
    std::ranges::sort(rows, {}, &QModelIndex::row);
    QList<qint64> ids;
    for (const QModelIndex &row : std::as_const(rows))
        ids.append(m_samples->idAt(row.row()));
    return ids;
}

} // namespace workbench
