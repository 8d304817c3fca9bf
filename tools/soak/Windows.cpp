// The windows of a session beside that of its samples.

#include "Dialogs.h"
#include "Session.h"
#include "data/DataImport.h"
#include "reports/WorkbenchTemplateEditor.h"
#include "samples/SampleEditor.h"
#include "window/FirstStepsSession.h"
#include "window/MainWindow.h"

#include <ozm_audit_widgets/TrailModel.h>
#include <ozm_audit_widgets/TrailView.h>
#include <ozm_widgets/OZMStyle.h>
#include <ozm_widgets/SpectrumFileDialog.h>

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTableView>
#include <QTextEdit>
#include <QtTest>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace soak {

namespace {

constexpr int kSearchMs = 60000;

const QString kLetterText =
    u"<ozm_template version=\"1.0\"><h1>Certificate for [Name]</h1><p>Mass "
    "<script>templateEditorCore.number(inputParameters[\"[Mass]\"], 4)</script> Da, [Sequence].</p>"
    "<table border=\"1\"><tr><td>Samples</td><td>[SampleCount]</td></tr></table>"
    "<p><script>let sum = 0;\nsum += total;\nsum</script></p></ozm_template>"_s;

} // namespace

void Session::showReport()
{
    selectSome(1 + below(3));
    m_dialogs.prepare([this](QDialog *dialog) {
        auto *choice = dialog->findChild<QComboBox *>(u"template"_s);
        if (!choice)
            return;
        for (int i = below(3); i >= 0; --i)
            choice->setCurrentIndex(below(choice->count()));
        if (below(2) == 0) {
            m_file = m_folder.filePath(below(2) == 0 ? u"report.html"_s : u"report.pdf"_s);
            dialog->findChild<QPushButton *>(u"save"_s)->click();
        }
    });
    trigger("reportAction");
}

void Session::editTemplate()
{
    trigger("editTemplateAction");
    const QWidgetList windows = QApplication::topLevelWidgets();
    const auto found = std::ranges::find_if(windows, [](const QWidget *window) {
        return window->isVisible() && qobject_cast<const workbench::WorkbenchTemplateEditor *>(window);
    });
    if (found == windows.end())
        return;
    auto *editor = qobject_cast<workbench::WorkbenchTemplateEditor *>(*found);
    (void)editor->setSourceText(kLetterText);
    auto *rich = editor->findChild<QTextEdit *>(u"richView"_s);
    rich->moveCursor(QTextCursor::End);
    for (int i = below(5); i >= 0; --i) {
        QTest::keyClicks(rich, word(8) + u' ');
        (void)editor->grab();
    }
    rich->insertPlainText(u" [Name] "_s);
    rich->undo();
    editor->setMode(AbstractTemplateEditor::Mode::Plain);
    QTest::qWait(20);
    (void)editor->grab();
    if (below(2) == 0)
        editor->setMode(AbstractTemplateEditor::Mode::Rich);
    (void)editor->sourceText();
    m_dialogs.prepare([](QDialog *dialog) {
        auto *box = dialog->findChild<QDialogButtonBox *>();
        if (auto *discard = box ? box->button(QDialogButtonBox::Discard) : nullptr)
            discard->click();
    });
    // It goes when it is closed, whatever the answer was.
    if (!editor->close())
        delete editor;
}

void Session::listData()
{
    m_file = m_folder.filePath(u"paths.csv"_s);
    m_dialogs.prepare([this](QDialog *dialog) {
        auto *path = dialog->findChild<QLineEdit *>(u"crawlPathLine"_s);
        if (!path)
            return;
        path->setText(m_folder.filePath(u"data"_s));
        dialog->findChild<QCheckBox *>(u"enableRecursiveSearch"_s)->setChecked(below(2) == 0);
        if (below(4) > 0)
            dialog->accept();
    });
    action("listDataAction").trigger();
}

void Session::chooseData()
{
    SpectrumFileDialog dialog(m_window.get());
    dialog.setDirectory(m_folder.filePath(u"data"_s));
    dialog.setNameFilters({u"MS data (*.mzml *.raw *.wiff *.d)"_s, u"All files (*)"_s});
    m_dialogs.prepare([this](QDialog *shown) {
        auto *files = qobject_cast<QFileDialog *>(shown);
        if (!files)
            return;
        files->setViewMode(below(2) == 0 ? QFileDialog::Detail : QFileDialog::List);
        files->setDirectory(m_folder.filePath(u"data/Sub"_s));
        QTest::qWait(10);
        (void)files->grab();
    });
    dialog.exec();
}

void Session::useTrail()
{
    using Trail = ozm::audit::TrailView;
    auto *trail = m_window->findChild<Trail *>(u"trailView"_s);
    auto *search = trail->findChild<QLineEdit *>(u"trailSearch"_s);
    auto *list = trail->findChild<QTableView *>(u"trailTable"_s);
    if (list->model()->rowCount() > 0)
        list->setCurrentIndex(list->model()->index(below(list->model()->rowCount()), 1));
    switch (below(4)) {
    case 0:
        search->setText(word(1));
        QTest::qWait(30);
        search->clear();
        break;
    case 1:
        trail->findChild<QComboBox *>(u"trailPreset"_s)->setCurrentIndex(below(3));
        QTest::qWait(30);
        trail->findChild<QComboBox *>(u"trailPreset"_s)->setCurrentIndex(0);
        break;
    case 2: {
        // Each opens a dialog, which is closed.
        constexpr std::array kActs{Trail::Action::Sign,   Trail::Action::Review,     Trail::Action::History,
                                   Trail::Action::Verify, Trail::Action::SaveFilter, Trail::Action::GoTo};
        trail->action(kActs.at(static_cast<std::size_t>(below(static_cast<int>(kActs.size())))))->trigger();
        break;
    }
    default:
        m_dialogs.prepare([this](QDialog *dialog) {
            auto *files = qobject_cast<QFileDialog *>(dialog);
            if (!files)
                return;
            files->selectFile(m_folder.filePath(u"shown %1.csv"_s.arg(entries())));
            files->setResult(QDialog::Accepted);
            QMetaObject::invokeMethod(files, "accept");
        });
        trail->action(Trail::Action::SaveCsv)->trigger();
    }
    QTest::qWait(10);
}

void Session::showStyles()
{
    trigger("styleAction");
}

void Session::takeFirstSteps()
{
    auto steps = workbench::FirstStepsSession::make(u"soak"_s);
    if (!steps)
        return;
    steps.value()->window().show();
    QTest::qWait(20);
    (void)steps.value()->window().grab();
    (void)steps.value()->editor().undo();
    steps.value()->window().dataImport().search(steps.value()->dataFolder());
    // Now and then it is closed in the middle of the search.
    if (below(3) > 0)
        (void)QTest::qWaitFor([&steps] { return !steps.value()->window().dataImport().isRunning(); },
                              kSearchMs);
}

void Session::changeColours()
{
    QApplication::setPalette(
        OZMStyle::palette(below(2) == 0 ? OZMStyle::Scheme::Light : OZMStyle::Scheme::Dark));
    QTest::qWait(0);
    (void)m_window->grab();
}

void Session::reopenWindow()
{
    m_dialogs.prepare([](QDialog *dialog) {
        auto *box = qobject_cast<QMessageBox *>(dialog);
        if (auto *discard = box ? box->button(QMessageBox::Discard) : nullptr)
            discard->click();
    });
    m_window->close();
    m_window.reset();
    m_editor.reset();
    m_store.reset();
    makeWindow();
}

} // namespace soak
