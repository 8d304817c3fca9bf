#include "SampleFixture.h"
#include "samples/AddSampleDialog.h"
#include "support/StrictTest.h"
#include "window/MainWindow.h"

#include <ozm_audit_widgets/TrailView.h>
#include <ozm_widgets/OzmMessageBox.h>

#include <QAbstractItemModelTester>
#include <QAction>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QStackedWidget>
#include <QStatusBar>
#include <QTableView>
#include <QTimer>
#include <QToolBar>
#include <QTreeView>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace ozm::test;
using namespace workbench;
using ozm::audit::TrailModel;

namespace {

/// A window on three samples, and what a user finds in it.
struct WindowFixture : SampleFixture
{
    WindowFixture()
        : window(*editor, trailPath())
    {
        window.show();
    }

    template <typename T>
    [[nodiscard]] T *find(const QString &name) const
    {
        return window.findChild<T *>(name);
    }
    [[nodiscard]] QTableView *table() const { return find<QTableView>(u"sampleTable"_s); }
    [[nodiscard]] QAction *action(const QString &name) const { return find<QAction>(name); }
    [[nodiscard]] QModelIndex cellIndex(int row, int column) const
    {
        return table()->model()->index(row, column);
    }

    /// Types @p text into a cell, as a user does.
    [[nodiscard]] bool type(int row, int column, const QString &text) const
    {
        table()->setCurrentIndex(cellIndex(row, column));
        table()->edit(cellIndex(row, column));
        auto *line = table()->findChild<QLineEdit *>();
        if (!line)
            return false;
        line->selectAll();
        QTest::keyClicks(line, text);
        QTest::keyClick(line, Qt::Key_Return);
        // The editor goes at the event loop's next turn.
        return QTest::qWaitFor([this] { return !table()->findChild<QLineEdit *>(); });
    }

    [[nodiscard]] QString lastInTrail(TrailModel::Column column) const
    {
        const QAbstractItemModel *trail = find<QTableView>(u"trailTable"_s)->model();
        return trail->index(trail->rowCount() - 1, column).data().toString();
    }

    MainWindow window;
};

/// Works on the dialog that opens next, and closes it whatever happens, so that no test hangs.
void withNextDialog(const std::function<void(QDialog *)> &work)
{
    QTimer::singleShot(0, qApp, [work] {
        auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
        QVERIFY(dialog);
        work(dialog);
        dialog->close();
    });
}

} // namespace

class TestMainWindow : public ozm::test::StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void editsGoThroughTheView()
    {
        const WindowFixture fixture;
        const QAbstractItemModelTester samples(fixture.table()->model());
        const QAbstractItemModelTester trail(fixture.find<QTableView>(u"trailTable"_s)->model());
        QVERIFY(fixture.type(0, 2, u"3"_s));
        QCOMPARE(fixture.cell(0, kCharge), u"3"_s);
        QCOMPARE(fixture.cellIndex(0, 2).data().toString(), u"3"_s);
        QTRY_COMPARE(fixture.lastInTrail(TrailModel::What),
                     u"Set Label ID=Name: T1 [ID: 1] 'Charge' from 2 to 3"_s);
        QCOMPARE(fixture.lastInTrail(TrailModel::Who), u"jdoe"_s);
        QVERIFY(fixture.lastInTrail(TrailModel::Outcome).isEmpty());
        QVERIFY(fixture.window.isWindowModified());

        const qsizetype records = fixture.stored().size();
        QVERIFY(fixture.type(0, 2, u"3"_s));
        QVERIFY2(fixture.stored().size() == records, "a cell left as it was is no edit");
    }

    void undoAndRedoActions()
    {
        const WindowFixture fixture;
        QAction *undo = fixture.action(u"undoAction"_s);
        QAction *redo = fixture.action(u"redoAction"_s);
        QVERIFY(!undo->isEnabled() && !redo->isEnabled());
        QVERIFY(fixture.type(1, 4, u"long"_s));
        QVERIFY(undo->isEnabled() && !redo->isEnabled());
        QCOMPARE(undo->toolTip(), u"Undo: Set Comment of T2"_s);
        undo->trigger();
        QCOMPARE(fixture.cellIndex(1, 4).data().toString(), u"short"_s);
        QTRY_VERIFY(fixture.lastInTrail(TrailModel::What).startsWith("UNDO Set"_L1));
        QVERIFY(!undo->isEnabled() && redo->isEnabled());
        redo->trigger();
        QCOMPARE(fixture.cellIndex(1, 4).data().toString(), u"long"_s);
        QTRY_VERIFY(fixture.lastInTrail(TrailModel::What).startsWith("REDO Set"_L1));
    }

    void refusedEditIsShown()
    {
        const WindowFixture fixture;
        QVERIFY(fixture.type(0, 0, u"T2"_s));
        QCOMPARE(fixture.cellIndex(0, 0).data().toString(), u"T1"_s);
        const auto *message = fixture.find<ozm::OzmMessageBox>(u"ozmMessageBox"_s);
        QVERIFY(message);
        const QString text = u"Another sample is called \"T2\" already; names must be unique."_s;
        QCOMPARE(message->text(), text);
        QCOMPARE(fixture.window.statusBar()->currentMessage(), text);
        QTRY_COMPARE(fixture.lastInTrail(TrailModel::Outcome), text);
        QVERIFY(!fixture.window.isWindowModified());
    }

    void historyGoesThroughTheEditor()
    {
        const WindowFixture fixture;
        auto *history = fixture.find<QTreeView>(u"historyView"_s);
        const QAbstractItemModelTester tester(history->model());
        QCOMPARE(history->model()->index(0, 0).data().toString(), u"No edits yet"_s);
        QVERIFY(fixture.type(0, 2, u"3"_s));
        QVERIFY(fixture.type(1, 2, u"3"_s));
        QCOMPARE(history->model()->rowCount(), 3);
        QCOMPARE(history->currentIndex().row(), 2);
        QVERIFY(history->model()->index(2, 0).data(Qt::FontRole).value<QFont>().bold());

        const QPoint first = history->visualRect(history->model()->index(0, 0)).center();
        QTest::mouseClick(history->viewport(), Qt::LeftButton, {}, first);
        QVERIFY2(fixture.editor->history().index() == 2, "a click alone only selects");
        QTest::mouseDClick(history->viewport(), Qt::LeftButton, {}, first);
        QCOMPARE(fixture.editor->history().index(), 0);
        QCOMPARE(fixture.cell(0, kCharge), u"2"_s);
        QCOMPARE(fixture.trailTexts().filter(u"UNDO"_s).size(), 2);
    }

    void trailShowsMacrosAndLeadsToSamples()
    {
        const WindowFixture fixture;
        QVERIFY(!fixture.editor->renameSamples({fixture.idAt(0), fixture.idAt(1)}, u"R#"_s).hasError());
        auto *trail = fixture.find<ozm::audit::TrailView>(u"trailView"_s);
        const TrailModel &model = trail->model();
        QTRY_COMPARE(model.entryAt(model.rowCount() - 1).kind, ozm::audit::Kind::Commit);
        const QModelIndex step = model.index(model.rowCount() - 2, TrailModel::What);
        QVERIFY(step.data().toString().endsWith("from T2 to R2"_L1));
        QCOMPARE(step.data(TrailModel::GroupRole).toLongLong(), model.entryAt(model.rowCount() - 4).number);
        // The step is about the sample under its former name.
        fixture.editor->undo();
        trail->showEntry(model.entryAt(step.row()).number);
        trail->action(ozm::audit::TrailView::Action::ShowSubject)->trigger();
        QCOMPARE(fixture.table()->currentIndex().row(), 1);
    }

    void renameAsksForAName()
    {
        const WindowFixture fixture;
        QVERIFY(!fixture.action(u"renameAction"_s)->isEnabled());
        fixture.table()->selectAll();
        fixture.action(u"renameAction"_s)->trigger();
        auto *dialog = fixture.find<QInputDialog>(u"renameDialog"_s);
        QVERIFY(dialog);
        dialog->setTextValue(u"#-*"_s);
        dialog->accept();
        QCOMPARE(fixture.cellIndex(2, 0).data().toString(), u"3-T3"_s);
        QCOMPARE(fixture.editor->history().count(), 1);
    }

    void deleteTakesTheChosen()
    {
        const WindowFixture fixture;
        fixture.table()->selectRow(1);
        fixture.action(u"deleteAction"_s)->trigger();
        QCOMPARE(fixture.table()->model()->rowCount(), 2);
        QCOMPARE(fixture.find<QLabel>(u"sampleCount"_s)->text(), u"2 samples"_s);
    }

    void addDialogStaysOpenUntilTaken()
    {
        const WindowFixture fixture;
        bool worked = false;
        withNextDialog([&worked](QDialog *dialog) {
            dialog->findChild<QLineEdit *>(u"addName"_s)->setText(u"T4"_s);
            auto *add = dialog->findChild<QDialogButtonBox *>(u"addButtons"_s)->button(QDialogButtonBox::Ok);
            add->click();
            QVERIFY(dialog->isVisible());
            QVERIFY(dialog->findChild<QLabel *>(u"addReason"_s)->text().contains("positive number"_L1));
            dialog->findChild<QLineEdit *>(u"addMass"_s)->setText(u"12.5"_s);
            add->click();
            QVERIFY(!dialog->isVisible());
            worked = true;
        });
        fixture.action(u"addSampleAction"_s)->trigger();
        QVERIFY(worked);
        QCOMPARE(fixture.samples().section(u'\n', -1).section(u'|', 1), u"T4|||12.5|"_s);
        QVERIFY2(!fixture.find<ozm::OzmMessageBox>(u"ozmMessageBox"_s),
                 "the dialog has shown the reason itself");
    }

    void emptyTableSaysWhatToDo()
    {
        const WindowFixture fixture;
        const auto *pages = fixture.find<QStackedWidget>(u"pages"_s);
        QCOMPARE(pages->currentWidget(), fixture.table());
        QVERIFY(
            !fixture.editor->deleteSamples({fixture.idAt(0), fixture.idAt(1), fixture.idAt(2)}).hasError());
        QCOMPARE(pages->currentWidget()->objectName(), u"emptyPage"_s);
        fixture.action(u"undoAction"_s)->trigger();
        QCOMPARE(pages->currentWidget(), fixture.table());
    }

    void widgetsHaveNames()
    {
        const WindowFixture fixture;
        const auto *bar = fixture.find<QToolBar>(u"toolBar"_s);
        for (QAction *action : bar->actions()) {
            if (action->isSeparator())
                continue;
            QVERIFY(!action->objectName().isEmpty() && !action->icon().isNull());
            // All that the mouse can do, the keyboard can: by Tab, by a shortcut, from the menus.
            QVERIFY(bar->widgetForAction(action)->focusPolicy() & Qt::TabFocus);
            QVERIFY2(!action->shortcut().isEmpty(), qUtf8Printable(action->objectName()));
            QVERIFY(std::ranges::any_of(action->associatedObjects(), [](const QObject *place) {
                return qobject_cast<const QMenu *>(place);
            }));
        }
        QVERIFY2(!fixture.table()->tabKeyNavigation(), "Tab is caught in the table");
        const QAbstractItemModel *model = fixture.table()->model();
        for (int column = 0; column < model->columnCount(); ++column)
            QCOMPARE(model->headerData(column, Qt::Horizontal, Qt::TextAlignmentRole),
                     model->index(0, column).data(Qt::TextAlignmentRole));
        for (const QAbstractItemView *view : fixture.window.findChildren<QAbstractItemView *>())
            if (!qobject_cast<const QHeaderView *>(view))
                QVERIFY2(!view->accessibleName().isEmpty(), qUtf8Printable(view->objectName()));
    }
};

QTEST_MAIN(TestMainWindow)
#include "tst_mainwindow.moc"
