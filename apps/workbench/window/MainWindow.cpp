#include "window/MainWindow.h"

#include "audit/DemonstrationAuthenticator.h"
#include "data/DataImport.h"
#include "reports/ReportDialog.h"
#include "reports/WorkbenchTemplateEditor.h"
#include "samples/AddSampleDialog.h"
#include "samples/RoomyDelegate.h"
#include "samples/SampleDetails.h"
#include "samples/SampleEditor.h"
#include "samples/SampleTableModel.h"
#include "samples/SampleTableView.h"
#include "window/FileQuestions.h"
#include "window/HistoryView.h"
#include "window/MainActions.h"
#include "window/StyleDialog.h"

#include <ozm_audit_widgets/SigningSession.h>
#include <ozm_audit_widgets/TrailView.h>
#include <ozm_common_core_mini/ColumnNames.h>
#include <ozm_widgets/BlackSplitterHandle.h>
#include <ozm_widgets/FileCrawlerDialog.h>
#include <ozm_widgets/OZMDockWidgetTitleBar.h>
#include <ozm_widgets/OZMStyle.h>
#include <ozm_widgets/OzmMessageBox.h>

#include <QAction>
#include <QCloseEvent>
#include <QDir>
#include <QDockWidget>
#include <QFileInfo>
#include <QInputDialog>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QMenu>
#include <QScreen>
#include <QStackedWidget>
#include <QStandardPaths>
#include <QStatusBar>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;
using ozm::Error;

namespace workbench {

namespace {

constexpr int kHistoryWidth = 230;
constexpr int kTrailHeight = 340;
constexpr int kDetailsWidth = 240;
constexpr int kLeastTableWidth = 240;
constexpr int kStatusMs = 15000;

/// A text of the status bar. The toolkit leaves the same few pixels between such texts, however large letters are.
class StatusText : public QLabel
{
public:
    StatusText(const QString &name, const QString &text, QWidget *parent)
        : QLabel(text, parent)
    {
        setObjectName(name);
        keepApart();
    }

protected:
    void changeEvent(QEvent *event) override
    {
        QLabel::changeEvent(event);
        if (event->type() == QEvent::FontChange)
            keepApart();
    }

private:
    void keepApart()
    {
        const int room = fontMetrics().horizontalAdvance(u'x');
        setContentsMargins(room, 0, room, 0);
    }
};

QLabel *emptyPage(QWidget *parent)
{
    auto *page = new QLabel(
        MainWindow::tr("No samples yet.\n\nOpen a CSV file, find MS data, drop data here, or add a sample."),
        parent);
    page->setObjectName(u"emptyPage"_s);
    page->setAlignment(Qt::AlignCenter);
    page->setWordWrap(true);
    return page;
}

} // namespace

MainWindow::MainWindow(SampleEditor &editor, const QString &trailPath, QWidget *parent)
    : QMainWindow(parent)
    , m_editor(editor)
    , m_samples(new SampleTableModel(editor, this))
    , m_actions(new MainActions(this))
    , m_import(new DataImport(
          editor, [this] { return files::askDataFolder(this); }, this))
{
    setObjectName(u"mainWindow"_s);
    resize(QSize(forFontOf(*this, 1200), forFontOf(*this, 760)).boundedTo(screen()->availableSize()));
    createTable();
    connectActions();
    createDocks();
    createStatusBar(trailPath);
    follow();
    setFile({});
    refresh();
}

MainWindow::~MainWindow() = default;

void MainWindow::connectActions()
{
    connect(m_actions->open, &QAction::triggered, this, &MainWindow::askOpen);
    connect(m_actions->save, &QAction::triggered, this, &MainWindow::askSave);
    connect(m_actions->findData, &QAction::triggered, m_import, &DataImport::ask);
    connect(m_import, &DataImport::runningChanged, m_actions->findData, &QAction::setDisabled);
    connect(m_actions->openData, &QAction::triggered, this,
            [this] { m_import->inspect(files::askData(this)); });
    connect(m_import, &DataImport::runningChanged, m_actions->openData, &QAction::setDisabled);
    connect(m_actions->listData, &QAction::triggered, this,
            [this] { FileCrawlerDialog::generateMSDataPathsCsv(this); });
    connect(m_actions->addSample, &QAction::triggered, this,
            [this] { AddSampleDialog(m_editor, this).exec(); });
    connect(m_actions->deleteSamples, &QAction::triggered, this, &MainWindow::deleteSelected);
    connect(m_actions->rename, &QAction::triggered, this, &MainWindow::askRename);
    connect(m_actions->undo, &QAction::triggered, &m_editor, &SampleEditor::undo);
    connect(m_actions->redo, &QAction::triggered, &m_editor, &SampleEditor::redo);
    connect(m_actions->exportTrail, &QAction::triggered, this, &MainWindow::askExport);
    connect(m_actions->report, &QAction::triggered, this, &MainWindow::showReport);
    connect(m_actions->editTemplate, &QAction::triggered, this, &MainWindow::editTemplate);
    connect(m_actions->style, &QAction::triggered, this, [this] { StyleDialog(this).exec(); });
    connect(m_actions->firstSteps, &QAction::triggered, this, &MainWindow::firstStepsAsked);
}

void MainWindow::createTable()
{
    m_table = new SampleTableView(m_samples, m_editor.table(), this);
    m_pages = new QStackedWidget(this);
    m_pages->setObjectName(u"pages"_s);
    m_pages->addWidget(emptyPage(m_pages));
    m_pages->addWidget(m_table);
    m_pages->setMinimumWidth(forFontOf(*this, kLeastTableWidth));

    auto *splitter = new ozm::BlackSplitter(Qt::Horizontal, this);
    splitter->setObjectName(u"splitter"_s);
    splitter->addWidget(m_pages);
    splitter->addWidget(new SampleDetails(m_table, splitter));
    splitter->setCollapsible(0, false);
    splitter->setStretchFactor(0, 1);
    const int details = forFontOf(*this, kDetailsWidth);
    splitter->setSizes({width() - details, details});
    setCentralWidget(splitter);
    m_import->acceptDropsOn(m_pages);
}

QDockWidget *MainWindow::addDock(const QString &name, const QString &title, QWidget *content,
                                 Qt::DockWidgetArea area)
{
    auto *dock = new QDockWidget(title, this);
    dock->setObjectName(name);
    dock->setTitleBarWidget(new OZMDockWidgetTitleBar(dock));
    dock->setWidget(content);
    // The toolkit mirrors what is in the window, but not its sides.
    if (isRightToLeft() && (area & (Qt::LeftDockWidgetArea | Qt::RightDockWidgetArea)))
        area = area == Qt::RightDockWidgetArea ? Qt::LeftDockWidgetArea : Qt::RightDockWidgetArea;
    addDockWidget(area, dock);
    m_actions->view->addAction(dock->toggleViewAction());
    return dock;
}

void MainWindow::createDocks()
{
    auto *history = new HistoryView(m_editor, this);
    history->setItemDelegate(new RoomyDelegate(history));
    resizeDocks({addDock(u"historyDock"_s, tr("History"), history, Qt::RightDockWidgetArea)},
                {forFontOf(*this, kHistoryWidth)}, Qt::Horizontal);
    m_trail = createTrail();
    resizeDocks({addDock(u"trailDock"_s, tr("Audit trail"), m_trail, Qt::BottomDockWidgetArea)},
                {kTrailHeight}, Qt::Vertical);
}

ozm::audit::TrailView *MainWindow::createTrail()
{
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    m_signers = std::make_unique<DemonstrationAuthenticator>(folder + u"/demonstration-signers.txt"_s);
    ozm::audit::Logger &logger = m_editor.logger();
    auto *trail = new ozm::audit::TrailView(logger.store(), this);
    trail->setLogger(&logger, {m_editor.user()});
    trail->setSigningSession(
        new ozm::audit::SigningSession(logger, *m_signers, ozm::audit::SigningSession::usualIdle(), trail));
    trail->setSubjectHook([this](const QString &, const QString &key) { selectSample(key); });
    return trail;
}

void MainWindow::selectSample(const QString &subjectKey)
{
    const QString name = QJsonDocument::fromJson(subjectKey.toUtf8()).object().value(kName).toString();
    for (int row = 0; row < m_editor.table().rowCount(); ++row) {
        if (m_editor.table().row(row)->getDataAt(kName).toString() == name) {
            // By an index: selectRow() finds no column in a table that is written from right to left.
            m_table->setCurrentIndex(m_table->model()->index(row, 0));
            m_table->setFocus();
            return;
        }
    }
    statusBar()->showMessage(tr("The table has no sample \"%1\" now.").arg(name), kStatusMs);
}

void MainWindow::createStatusBar(const QString &trailPath)
{
    m_count = new StatusText(u"sampleCount"_s, {}, this);
    auto *trail =
        new StatusText(u"trailFile"_s, tr("Recorded in %1").arg(QFileInfo(trailPath).fileName()), this);
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
}

void MainWindow::open(const QString &path)
{
    if (!m_editor.load(path).hasError())
        setFile(path);
}

void MainWindow::askOpen()
{
    // Nothing here is given up for samples that open elsewhere.
    if (!m_opener && !mayDiscard())
        return;
    const QString path = files::askSamples(this, m_file);
    if (path.isEmpty())
        return;
    if (m_opener)
        m_opener(path);
    else
        open(path);
}

bool MainWindow::askSave()
{
    const auto location = files::askSaveSamples(this, m_file);
    if (location.isCanceled())
        return false;
    const Error error = files::save(this, location, [this](const QString &path) {
        Error failure = m_editor.save(path);
        if (!failure.hasError())
            setFile(path);
        return failure;
    });
    if (error.hasError())
        return false;
    statusBar()->showMessage(tr("Saved to %1").arg(QDir::toNativeSeparators(location.toString())), kStatusMs);
    return true;
}

void MainWindow::askExport()
{
    const auto location = files::askExportTrail(this);
    if (location.isCanceled())
        return;
    const Error error =
        files::save(this, location, [this](const QString &path) { return m_editor.exportTrail(path); });
    if (!error.hasError()) {
        statusBar()->showMessage(tr("Exported to %1").arg(QDir::toNativeSeparators(location.toString())),
                                 kStatusMs);
    }
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

std::vector<RowNode> MainWindow::reportedRows() const
{
    const QList<qint64> ids = selectedIds();
    std::vector<RowNode> rows;
    for (int index = 0; index < m_editor.table().rowCount(); ++index) {
        const RowNode &row = *m_editor.table().row(index);
        if (ids.isEmpty() || ids.contains(SampleTable::idOf(row)))
            rows.push_back(row);
    }
    return rows;
}

ReportContext MainWindow::reportContext(const std::vector<RowNode> &rows) const
{
    const QString source = m_file.isEmpty() ? tr("the open table") : QFileInfo(m_file).fileName();
    ReportContext context(m_editor.user(), source, rows);
    context.trailOf = [&store = m_editor.logger().store()](const RowNode &row) {
        return ReportTrail::of(store, row);
    };
    return context;
}

void MainWindow::showReport()
{
    std::vector<RowNode> rows = reportedRows();
    const ReportContext context = reportContext(rows);
    ReportDialog(std::move(rows), context, this).exec();
}

void MainWindow::editTemplate()
{
    std::vector<RowNode> rows = reportedRows();
    const ReportContext context = reportContext(rows);
    // Without a parent, so that it may stand behind this window.
    (new WorkbenchTemplateEditor(std::move(rows), context))->show();
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
    if (auto *shown = findChild<ozm::OzmMessageBox *>()) {
        shown->setText(text);
        return;
    }
    OZMStyle::openWarning(this, ozm::OzmMessageBoxSignal::Unspecified, title, text, this, {});
}

void MainWindow::refresh()
{
    const QUndoStack &history = m_editor.history();
    const int samples = m_editor.table().rowCount();
    m_actions->update(history, samples > 0, m_table->selectionModel()->hasSelection());
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
        OZMStyle::question(this, ozm::OzmMessageBoxSignal::UnsavedChanges, tr("Unsaved samples"),
                           tr("The samples have changed. Save them first?"),
                           QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, QMessageBox::Save);
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
