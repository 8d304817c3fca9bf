#include "window/FirstStepsSession.h"

#include "audit/TrailStore.h"
#include "data/DataImport.h"
#include "data/FirstStepsData.h"
#include "samples/RoomyDelegate.h"
#include "samples/SampleEditor.h"
#include "window/FileQuestions.h"
#include "window/FirstStepsPage.h"
#include "window/MainWindow.h"

#include <ozm_common_core_mini/ColumnNames.h>
#include <ozm_widgets/OZMStyle.h>

#include <QAction>
#include <QDir>
#include <QDockWidget>
#include <QPointer>
#include <QScreen>
#include <QTableView>
#include <QThreadPool>

#include <array>

using namespace Qt::StringLiterals;
using ozm::Error;
using ozm::ErrorCode;

namespace workbench {

namespace {

// Page, table, details and history stand beside each other.
constexpr QSize kFirstStepsWindow(1440, 860);

} // namespace

struct FirstStepsSession::Act
{
    const char *name;
    const char *title;
    const char *text;
    const char *button;
    const char *code;
    void (FirstStepsSession::*run)(int step);
};

std::span<const FirstStepsSession::Act> FirstStepsSession::acts()
{
    static constexpr std::array kActs{
        Act{"undo", QT_TR_NOOP("Undo, and a trail of it"),
            QT_TR_NOOP(
                "Each step is in the audit trail before it is made: edits, several in one, undo, and what "
                "was refused."),
            QT_TR_NOOP("Undo a step"), "ozm::UndoStack, ozm::audit::Logger, ozm::audit::TrailView",
            &FirstStepsSession::undoStep},
        Act{"find", QT_TR_NOOP("Data of instruments"),
            QT_TR_NOOP(
                "Files and folders of many vendors are told apart in a handful of system calls, on a thread "
                "of their own."),
            QT_TR_NOOP("Find the data in a folder"), "ozm::msreader::MsDataSearch",
            &FirstStepsSession::findData},
        Act{"choose", QT_TR_NOOP("Files and dialogs"),
            QT_TR_NOOP(
                "One dialog picks data files and raw folders together, and says beforehand what each holds."),
            QT_TR_NOOP("Choose data…"), "ozm::IFileAccessor, SpectrumFileDialog",
            &FirstStepsSession::chooseData},
        Act{"ask", QT_TR_NOOP("Messages from any thread"),
            QT_TR_NOOP("A thread that has a question asks it in one line, and waits for the answer."),
            QT_TR_NOOP("Ask from another thread"), "OZMStyle::question()", &FirstStepsSession::askFromThread},
        Act{"report", QT_TR_NOOP("Reports from templates"),
            QT_TR_NOOP(
                "Texts with codes such as [Name] and pieces of JavaScript, filled with the chosen samples. "
                "\"Edit report template…\" opens the editor for them."),
            QT_TR_NOOP("Preview a report"), "TECWrapper, AbstractTemplateEditor",
            &FirstStepsSession::previewReport},
    };
    return kActs;
}

FirstStepsSession::FirstStepsSession()
    : m_folder(QDir::temp().filePath(u"workbench-first-steps-XXXXXX"_s))
{}

FirstStepsSession::~FirstStepsSession()
{
    // A thread that waits for an answer holds on to nothing of this.
    m_window.reset();
}

ozm::Result<std::unique_ptr<FirstStepsSession>> FirstStepsSession::make(const QString &user)
{
    std::unique_ptr<FirstStepsSession> session(new FirstStepsSession);
    if (Error error = session->open(user); error.hasError())
        return error;
    if (Error error = session->edit(); error.hasError())
        return error;
    session->createWindow();
    return session;
}

Error FirstStepsSession::open(const QString &user)
{
    if (!m_folder.isValid())
        return Error(ErrorCode::FileAccess,
                     tr("A folder for the sample data could not be made: %1").arg(m_folder.errorString()))
            .ecatch(OZM_HERE);
    if (Error error = writeFirstStepsData(m_folder.path()); error.hasError())
        return error;
    auto store = openTrail({}, m_folder.path(), user);
    if (!store)
        return store.error();
    m_store = std::move(store).value();
    m_editor = std::make_unique<SampleEditor>(*m_store, user);
    Error error = m_editor->start();
    return error.hasError() ? error : m_editor->load(m_folder.filePath(u"samples.csv"_s));
}

Error FirstStepsSession::edit()
{
    const auto id = [this](int row) { return SampleTable::idOf(*m_editor->table().row(row)); };
    const std::array steps{
        std::function([&] { return m_editor->setCell(id(3), kCharge, u"3"_s); }),
        std::function([&] { return m_editor->setCell(id(3), kComment, tr("CDR-H2, isomers of Asp seen")); }),
        std::function([&] {
            return m_editor->renameSamples({id(0), id(1), id(2)}, tr("* (week 0)"));
        }),
        std::function([&] { return m_editor->setCell(id(4), kComment, tr("Co-elutes with HC-T23")); }),
        std::function([&] { return m_editor->setCell(id(5), kCharge, u"3"_s); }),
        std::function([&] { return m_editor->undo(); }),
        // The samples are those of a file again, so closing asks for nothing.
        std::function([&] { return m_editor->save(m_folder.filePath(u"samples.csv"_s)); }),
    };
    for (const auto &step : steps)
        if (Error error = step(); error.hasError())
            return error;
    // To be refused, and to be in the trail for it.
    const Error refusal = m_editor->setCell(id(6), kCharge, u"0"_s);
    return refusal.errorCode() == ErrorCode::BadParameter ? Error() : refusal;
}

void FirstStepsSession::createWindow()
{
    m_window = std::make_unique<MainWindow>(*m_editor, m_folder.filePath(u"trail.sqlite"_s));
    m_window->setWindowTitle(tr("First steps[*] - Workbench"));
    std::vector<FirstStep> steps;
    for (const Act &act : acts())
        steps.push_back({QString::fromLatin1(act.name), tr(act.title), tr(act.text), tr(act.button),
                         QString::fromLatin1(act.code)});
    m_page = new FirstStepsPage(steps, m_window.get());
    // Beside table and trail, so that all steps are seen at once.
    if (m_window->isRightToLeft())
        m_window->setCorner(Qt::BottomRightCorner, Qt::RightDockWidgetArea);
    else
        m_window->setCorner(Qt::BottomLeftCorner, Qt::LeftDockWidgetArea);
    m_window->addDock(u"firstStepsDock"_s, tr("First steps"), m_page, Qt::LeftDockWidgetArea);
    const QSize size(forFontOf(*m_window, kFirstStepsWindow.width()),
                     forFontOf(*m_window, kFirstStepsWindow.height()));
    m_window->resize(size.boundedTo(m_window->screen()->availableSize()));
    m_page->setFocus();
    m_window->findChild<QTableView *>(u"sampleTable"_s)->selectRow(0);
    connect(m_page, &FirstStepsPage::asked, this, &FirstStepsSession::run);
    connect(&m_window->dataImport(), &DataImport::reported, this, &FirstStepsSession::tellOfImport);
}

void FirstStepsSession::run(int step)
{
    const Act &act = acts()[static_cast<std::size_t>(step)];
    (this->*act.run)(step);
}

void FirstStepsSession::undoStep(int step)
{
    const QUndoStack &history = m_editor->history();
    const bool isRedo = !history.canUndo();
    const QString text = isRedo ? history.redoText() : history.undoText();
    const Error error = isRedo ? m_editor->redo() : m_editor->undo();
    for (const QString &name : {u"historyDock"_s, u"trailDock"_s})
        m_window->findChild<QDockWidget *>(name)->show();
    const QString done = isRedo ? tr("Redone: %1. The last entry of the trail says so.")
                                : tr("Undone: %1. The last entry of the trail says so.");
    m_page->setOutcome(step, error.hasError() ? error.errorMessage() : done.arg(text));
}

void FirstStepsSession::findData(int step)
{
    m_importing = step;
    m_window->dataImport().search(dataFolder());
}

void FirstStepsSession::chooseData(int step)
{
    const QStringList paths = files::askData(m_window.get(), dataFolder() + u"/Peptide mapping"_s);
    if (paths.isEmpty()) {
        m_page->setOutcome(step, tr("Nothing was chosen."));
        return;
    }
    m_importing = step;
    m_window->dataImport().inspect(paths);
}

void FirstStepsSession::tellOfImport(const QString &summary)
{
    if (m_importing >= 0)
        m_page->setOutcome(std::exchange(m_importing, -1), summary);
}

void FirstStepsSession::askFromThread(int step)
{
    m_page->setBusy(step, true);
    QThreadPool::globalInstance()->start([page = QPointer(m_page), window = QPointer(m_window.get()), step] {
        const auto answer = OZMStyle::question(window, ozm::OzmMessageBoxSignal::FirstOfApplication,
                                               tr("Another thread asks"), tr("Shall the measurement go on?"),
                                               QMessageBox::Yes | QMessageBox::No, QMessageBox::Yes);
        const QString text = answer == QMessageBox::Yes ? tr("The thread was told to go on.")
                                                        : tr("The thread was told to stop.");
        QMetaObject::invokeMethod(
            qApp,
            [page, step, text] {
                if (!page)
                    return;
                page->setBusy(step, false);
                page->setOutcome(step, text);
            },
            Qt::QueuedConnection);
    });
}

void FirstStepsSession::previewReport(int step)
{
    auto *table = m_window->findChild<QTableView *>(u"sampleTable"_s);
    if (!table->selectionModel()->hasSelection())
        table->selectRow(0);
    m_window->findChild<QAction *>(u"reportAction"_s)->trigger();
    m_page->setOutcome(step, tr("It can be saved as PDF and as HTML."));
}

} // namespace workbench
