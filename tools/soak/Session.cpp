#include "Session.h"

#include "Dialogs.h"
#include "audit/TrailStore.h"
#include "data/DataImport.h"
#include "samples/SampleEditor.h"
#include "samples/SampleRules.h"
#include "window/MainWindow.h"

#include <ozm_common_core_mini/ColumnNames.h>
#include <ozm_widgets/AbstractTemplateEditor.h>
#include <ozm_widgets/OZMStyle.h>
#include <ozm_widgets/TemplateFilling.h>

#include <QAction>
#include <QDialogButtonBox>
#include <QInputDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QThread>
#include <QtTest>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace soak {

namespace {

constexpr int kWaitMs = 60000;
constexpr int kMostSamples = 60;
constexpr auto kBoxSignal = ozm::OzmMessageBoxSignal(1);

const QStringList kTemplates{
    u"[Name]: [Sequence], [Charge]+"_s,
    u"<p><script>templateEditorCore.number(inputParameters[\"[Mass]\"], 4)</script></p>"_s,
    u"<script>let sum = 0; for (let i = 0; i < 1000; ++i) sum += i; sum</script> [Nope]"_s,
    u"<script>\nnull.x</script> and [Comment]"_s,
    u"<script>let all = []; for (let i = 0; i < 2000; ++i) all.push({name: \"[Name]\" + i}); all.length</script>"_s,
    u"<ul><li><!--ozm:repeat-row of=\"Samples\"-->[Name]</li></ul>"_s,
};

bool writeText(const QString &path, const QByteArray &text)
{
    QFile file(path);
    return QDir().mkpath(QFileInfo(path).path()) && file.open(QIODevice::WriteOnly) &&
           file.write(text) == text.size();
}

} // namespace

Session::Session(unsigned seed, Dialogs &dialogs, QString &file)
    : m_random(seed)
    , m_dialogs(dialogs)
    , m_file(file)
{
    makeFiles();
    makeWindow();
}

Session::~Session() = default;

void Session::makeFiles()
{
    QByteArray csv = "Name,Sequence,Charge,Mass,Comment\n";
    const int count = 3 + below(20);
    for (int row = 1; row <= count; ++row)
        csv += "T" + QByteArray::number(row) + ",PEPTIDEK,2," + QByteArray::number(900 + row) + ",\n";
    for (const auto &[name, text] :
         {std::pair{u"samples.csv"_s, csv},
          std::pair{u"other.csv"_s, QByteArray("Name,Sequence,Charge,Mass,Comment\n"
                                               "A1,FTISR,1,622.3439,short\n")},
          std::pair{u"data/Run.d/AcqData/msscan.bin"_s, QByteArray(1500, 'x')},
          std::pair{u"data/Sub/Day 1.mzML"_s, QByteArray()},
          std::pair{u"data/Sub/notes.txt"_s, QByteArray()}}) {
        if (!writeText(m_folder.filePath(name), text))
            m_error = ozm::Error(ozm::ErrorCode::FileAccess, m_folder.filePath(name));
    }
}

void Session::makeWindow()
{
    auto opened = workbench::openTrail({}, m_folder.path(), {});
    if (!opened) {
        m_error = opened.error();
        return;
    }
    m_store = std::move(opened).value();
    m_editor = std::make_unique<workbench::SampleEditor>(*m_store, u"soak"_s);
    if (m_error = m_editor->start(); m_error.hasError())
        return;
    m_window = std::make_unique<workbench::MainWindow>(*m_editor, m_folder.filePath(u"trail.sqlite"_s));
    m_window->show();
    m_window->open(m_folder.filePath(u"samples.csv"_s));
    m_window->dataImport().setFolderQuestion([this] { return m_folder.filePath(u"data"_s); });
}

qint64 Session::entries() const
{
    return m_editor ? static_cast<qint64>(m_editor->trail().entries().size()) : 0;
}

const std::vector<Session::Action> &Session::actions()
{
    static const std::vector<Action> all{
        {"edit a cell", 30, &Session::editCell},
        {"edit that is refused", 8, &Session::refusedEdit},
        {"add a sample", 8, &Session::addSample},
        {"delete samples", 5, &Session::deleteSamples},
        {"rename samples", 6, &Session::renameSamples},
        {"undo", 20, &Session::undo},
        {"redo", 14, &Session::redo},
        {"go through the history", 3, &Session::goThroughHistory},
        {"open", 2, &Session::open},
        {"save", 4, &Session::save},
        {"export the trail", 1, &Session::exportTrail},
        {"fill templates", 10, &Session::fillTemplates},
        {"find data", 3, &Session::findData},
        {"boxes from threads", 5, &Session::boxesFromThreads},
        {"report", 5, &Session::showReport},
        {"template editor", 3, &Session::editTemplate},
        {"list data", 2, &Session::listData},
        {"choose data", 2, &Session::chooseData},
        {"trail view", 6, &Session::useTrail},
        {"styles", 1, &Session::showStyles},
        {"first steps", 1, &Session::takeFirstSteps},
        {"change colours", 1, &Session::changeColours},
        {"reopen the window", 1, &Session::reopenWindow},
    };
    return all;
}

QString Session::choose(const QString &only)
{
    const auto weightOf = [&only](const Action &action) {
        return only.isEmpty() || only == QLatin1StringView(action.name) ? action.weight : 0;
    };
    int sum = 0;
    for (const Action &each : actions())
        sum += weightOf(each);
    int left = below(sum);
    for (const Action &each : actions()) {
        m_next = &each;
        left -= weightOf(each);
        if (left < 0)
            break;
    }
    return QString::fromLatin1(m_next->name);
}

bool Session::has(const QString &action)
{
    return std::ranges::any_of(
        actions(), [&action](const Action &each) { return action == QLatin1StringView(each.name); });
}

void Session::act()
{
    (this->*m_next->run)();
    m_dialogs.forget();
    m_file.clear();
}

QString Session::check()
{
    const QString before = samples();
    const int index = m_editor->history().index();
    if (m_editor->moveTo(0).hasError() || m_editor->moveTo(m_editor->history().count()).hasError() ||
        m_editor->moveTo(index).hasError())
        return u"the history cannot be gone through"_s;
    if (samples() != before)
        return u"undoing and redoing all gives other samples:\n"_s + before + u"\nand\n"_s + samples();
    const auto verified = m_store->verify();
    if (!verified)
        return u"the trail cannot be verified: "_s + verified.error().errorMessage();
    return verified.value().isWhole() ? QString() : u"the trail is damaged"_s;
}

int Session::below(int bound)
{
    // Not a distribution, whose results differ from library to library.
    return bound > 0 ? static_cast<int>(m_random() % static_cast<unsigned>(bound)) : 0;
}

QString Session::word(int letters)
{
    QString text;
    for (int i = 0; i < letters; ++i)
        text += u"ACDEFGHIKLMNPQRSTVWY"[below(20)];
    return text;
}

QTableView &Session::table() const
{
    return *m_window->findChild<QTableView *>(u"sampleTable"_s);
}

QAction &Session::action(const char *name) const
{
    return *m_window->findChild<QAction *>(QString::fromLatin1(name));
}

QString Session::samples() const
{
    QString text;
    const workbench::SampleTable &all = m_editor->table();
    for (int row = 0; row < all.rowCount(); ++row) {
        for (const QString &column : workbench::SampleTable::columns())
            text += workbench::rules::toText(all.row(row)->getDataAt(column)) + u'|';
        text += u'\n';
    }
    return text;
}

void Session::trigger(const char *name, const QString &file)
{
    m_file = file.isEmpty() ? file : m_folder.filePath(file);
    action(name).trigger();
}

void Session::type(int row, int column, const QString &text)
{
    QTableView &view = table();
    const QModelIndex cell = view.model()->index(row, column);
    if (!cell.isValid())
        return;
    view.setCurrentIndex(cell);
    view.edit(cell);
    auto *line = view.findChild<QLineEdit *>();
    if (!line)
        return;
    line->selectAll();
    QTest::keyClicks(line, text);
    QTest::keyClick(line, Qt::Key_Return);
    // The editor goes at the event loop's next turn.
    (void)QTest::qWaitFor([&view] { return !view.findChild<QLineEdit *>(); });
}

void Session::selectSome(int count)
{
    table().clearSelection();
    const int rows = m_editor->table().rowCount();
    for (int i = 0; i < count && rows > 0; ++i) {
        table().selectionModel()->select(table().model()->index(below(rows), 0),
                                         QItemSelectionModel::Select | QItemSelectionModel::Rows);
    }
}

void Session::editCell()
{
    const int row = below(m_editor->table().rowCount());
    switch (below(5)) {
    case 0:
        return type(row, 0, word(6));
    case 1:
        return type(row, 1, word(3 + below(20)));
    case 2:
        return type(row, 2, QString::number(1 + below(9)));
    case 3:
        return type(row, 3, QString::number(400 + below(4000)));
    default:
        return type(row, 4, word(below(40)));
    }
}

void Session::refusedEdit()
{
    const int row = below(m_editor->table().rowCount());
    switch (below(3)) {
    case 0:
        return type(row, 0, table().model()->index(0, 0).data().toString());
    case 1:
        return type(row, 2, u"many"_s);
    default:
        return type(row, 3, u"-1"_s);
    }
}

void Session::addSample()
{
    if (m_editor->table().rowCount() >= kMostSamples)
        return open();
    m_dialogs.prepare([this](QDialog *dialog) {
        auto *add = dialog->findChild<QDialogButtonBox *>(u"addButtons"_s)->button(QDialogButtonBox::Ok);
        dialog->findChild<QLineEdit *>(u"addName"_s)->setText(word(7));
        // Refused at first, without a mass.
        add->click();
        dialog->findChild<QLineEdit *>(u"addMass"_s)->setText(QString::number(100 + below(900)));
        if (below(4) > 0)
            add->click();
    });
    trigger("addSampleAction");
}

void Session::deleteSamples()
{
    selectSome(1 + below(2));
    trigger("deleteAction");
}

void Session::renameSamples()
{
    selectSome(2 + below(5));
    m_dialogs.prepare([this](QDialog *dialog) {
        auto *input = qobject_cast<QInputDialog *>(dialog);
        if (!input)
            return;
        // The first pattern gives names that are there already, if more than one is chosen.
        input->setTextValue(below(4) == 0 ? u"T1"_s : word(4) + u"#"_s);
        input->accept();
    });
    trigger("renameAction");
    QTest::qWait(0);
}

void Session::undo()
{
    trigger("undoAction");
}

void Session::redo()
{
    trigger("redoAction");
}

void Session::goThroughHistory()
{
    (void)m_editor->moveTo(below(m_editor->history().count() + 1));
}

void Session::open()
{
    m_window->open(m_folder.filePath(below(2) == 0 ? u"samples.csv"_s : u"other.csv"_s));
}

void Session::save()
{
    // Every other time somewhere else; a prompt offers to open the file.
    trigger("saveAction", below(5) == 0 ? u"missing/x.csv"_s : u"saved %1.csv"_s.arg(below(3)));
}

void Session::exportTrail()
{
    trigger("exportAction", below(2) == 0 ? u"trail.json"_s : u"trail.csv"_s);
}

void Session::fillTemplates()
{
    QList<RowNode *> rows;
    std::vector<RowNode> copies;
    copies.reserve(static_cast<std::size_t>(m_editor->table().rowCount()));
    for (int row = 0; row < m_editor->table().rowCount(); ++row)
        copies.push_back(*m_editor->table().row(row));
    for (RowNode &row : copies)
        rows.append(&row);
    if (rows.isEmpty())
        return;
    const QString &content = kTemplates.at(below(static_cast<int>(kTemplates.size())));
    ozm::ReportData data{{rows.at(below(static_cast<int>(rows.size())))}, {}};
    data.lists.insert(u"Samples"_s, rows);
    (void)ozm::fillTemplate(content, data);
    (void)AbstractTemplateEditor::decodeTECReport(content, rows, {});
}

void Session::findData()
{
    if (m_editor->table().rowCount() >= kMostSamples)
        return open();
    workbench::DataImport &import = m_window->dataImport();
    trigger("findDataAction");
    // Now and then, other samples are opened meanwhile.
    if (below(5) == 0)
        open();
    (void)QTest::qWaitFor([&import] { return !import.isRunning(); }, kWaitMs);
}

void Session::boxesFromThreads()
{
    std::vector<std::unique_ptr<QThread>> threads;
    const int count = 1 + below(4);
    threads.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) {
        threads.emplace_back(QThread::create([window = m_window.get(), i] {
            (void)OZMStyle::question(window, kBoxSignal, u"Soak"_s, u"Question %1?"_s.arg(i));
            (void)OZMStyle::warning(window, kBoxSignal, u"Warning"_s);
        }));
    }
    for (const auto &thread : threads)
        thread->start();
    for (const auto &thread : threads) {
        (void)QTest::qWaitFor([&thread] { return thread->isFinished(); }, kWaitMs);
        thread->wait();
    }
}

} // namespace soak
