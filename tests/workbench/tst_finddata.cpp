#include "AuditFault.h"
#include "SampleFixture.h"
#include "core_ms/SampleTree.h"
#include "data/DataImport.h"
#include "data/DataSamples.h"
#include "support/StrictTest.h"
#include "support/WithoutRights.h"
#include "window/MainWindow.h"

#include <ozm_widgets/OzmMessageBox.h>

#include <QAction>
#include <QDropEvent>
#include <QMimeData>
#include <QSignalSpy>
#include <QStatusBar>
#include <QTableView>
#include <QToolButton>
#include <QUrl>

using namespace Qt::StringLiterals;
using namespace ozm::test;
using namespace workbench;
using ozm::msreader::MsSample;

namespace {

// A search of a handful of files, with sanitizers on a busy machine.
constexpr int kSearchMs = 30000;

const QStringList kStudy{u"Day 1.d/AcqData/msscan.bin"_s, u"Sub/Day 1.mzML"_s, u"Sub/notes.txt"_s,
                         u"empty.d/"_s};

/// A window on three samples beside a folder with data.
struct FindFixture : SampleFixture
{
    FindFixture()
        : window(*editor, trailPath())
        , reports(&window.dataImport(), &DataImport::reported)
    {
        tree.make(kStudy);
        window.dataImport().setFolderQuestion([this] { return tree.path(); });
        window.show();
    }

    template <typename T>
    [[nodiscard]] T *find(const QString &name) const
    {
        return window.findChild<T *>(name);
    }
    void trigger(const QString &action) const { find<QAction>(action)->trigger(); }
    [[nodiscard]] bool searched() { return !reports.isEmpty() || reports.wait(kSearchMs); }
    [[nodiscard]] QString summary() const { return reports.constLast().constFirst().toString(); }
    [[nodiscard]] QStringList refusals() const { return reports.constLast().at(1).toStringList(); }
    [[nodiscard]] QString status() const { return window.statusBar()->currentMessage(); }
    [[nodiscard]] bool isShown(const QString &column) const
    {
        const int section = static_cast<int>(SampleTable::columns().indexOf(column));
        return !find<QTableView>(u"sampleTable"_s)->isColumnHidden(section);
    }

    /// As the system does it: whoever is under the pointer is asked, and then told.
    void drop(const QList<QUrl> &urls) const
    {
        QMimeData data;
        data.setUrls(urls);
        QWidget *target = find<QTableView>(u"sampleTable"_s)->viewport();
        QDragEnterEvent enter({5, 5}, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(target, &enter);
        QVERIFY2(enter.isAccepted(), "the table does not take files");
        QCOMPARE(enter.dropAction(), Qt::CopyAction);
        QDropEvent event({5, 5}, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(target, &event);
    }
    [[nodiscard]] QUrl url(const QString &name) const { return QUrl::fromLocalFile(tree.path(name)); }

    SampleTree tree;
    MainWindow window;
    QSignalSpy reports;
};

} // namespace

class TestFindData : public ozm::test::StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void findAddsWhatIsThere()
    {
        FindFixture fixture;
        QVERIFY(writeFile(fixture.tree.path(u"Day 1.d/AcqData/msscan.bin"_s), QByteArray(1500, 'x')));
        QVERIFY(!fixture.isShown(u"Format"_s));
        const auto *progress = fixture.find<QWidget>(u"dataProgress"_s);
        QVERIFY(!progress->isVisible());
        fixture.trigger(u"findDataAction"_s);
        QVERIFY(progress->isVisible());
        QVERIFY(!fixture.find<QAction>(u"findDataAction"_s)->isEnabled());

        QVERIFY(fixture.searched());
        QCOMPARE(
            fixture.samples().section(u'\n', 3),
            u"4|Day 1|||||AgilentAcqData|Agilent|folder|1500|%1/Day 1.d\n"
            "5|Day 1 (2)|||||Mzml|Open data format mzml|file|0|%1/Sub/Day 1.mzML"_s.arg(fixture.tree.path()));
        QCOMPARE(fixture.status(), u"2 samples with data were added."_s);
        QVERIFY(fixture.isShown(u"Format"_s) && fixture.isShown(kSequence));
        const QAbstractItemModel *model = fixture.find<QTableView>(u"sampleTable"_s)->model();
        QCOMPARE(model->index(3, 8).data().toString(), QLocale().formattedDataSize(1500));
        QVERIFY(model->index(3, 8).data(Qt::TextAlignmentRole).toInt() & Qt::AlignRight);
        QVERIFY(!progress->isVisible());
        QVERIFY(fixture.find<QAction>(u"findDataAction"_s)->isEnabled());
    }

    void findIsOneStep()
    {
        FindFixture fixture;
        const QString before = fixture.samples();
        fixture.trigger(u"findDataAction"_s);
        QVERIFY(fixture.searched());
        const QString after = fixture.samples();
        QCOMPARE(fixture.history(), u"1|Add data of 2 samples"_s);
        const QStringList trail = fixture.trailTexts();
        QVERIFY(trail.at(trail.size() - 3).contains(fixture.tree.path()));
        QVERIFY(trail.at(trail.size() - 2).startsWith("  Add Label"_L1));
        QVERIFY(trail.constLast().contains(u"Mzml"_s) && trail.constLast().contains(u"Sub/Day 1.mzML"_s));

        fixture.trigger(u"undoAction"_s);
        QCOMPARE(fixture.samples(), before);
        QVERIFY(!fixture.isShown(u"Format"_s));
        QCOMPARE(fixture.trailTexts().filter(u"UNDO Add"_s).size(), 2);
        fixture.trigger(u"redoAction"_s);
        QCOMPARE(fixture.samples(), after);
        QVERIFY(fixture.isShown(u"Format"_s));

        QVERIFY(
            !fixture.editor->deleteSamples({fixture.idAt(0), fixture.idAt(1), fixture.idAt(2)}).hasError());
        QVERIFY2(!fixture.isShown(kSequence), "no peptides, no sequences");
    }

    void findAgainAddsNothing()
    {
        FindFixture fixture;
        fixture.trigger(u"findDataAction"_s);
        QVERIFY(fixture.searched());
        const qsizetype records = fixture.stored().size();
        fixture.reports.clear();
        fixture.trigger(u"findDataAction"_s);
        QVERIFY(fixture.searched());
        QCOMPARE(fixture.editor->table().rowCount(), 5);
        QCOMPARE(fixture.stored().size(), records);
        QVERIFY(fixture.summary().contains(u"2 are in the table already"_s));
    }

    void canceledFindAddsNothing()
    {
        FindFixture fixture;
        const QString before = fixture.samples();
        const qsizetype records = fixture.stored().size();
        fixture.trigger(u"findDataAction"_s);
        // However quick the search is, its end is told only after this.
        fixture.find<QToolButton>(u"cancelDataSearch"_s)->click();
        QVERIFY(fixture.searched());
        QCOMPARE(fixture.status(), u"The search was canceled; nothing was added."_s);
        QCOMPARE(fixture.samples(), before);
        QCOMPARE(fixture.stored().size(), records);
        QVERIFY(!fixture.find<QWidget>(u"dataProgress"_s)->isVisible());
    }

    void openingOtherSamplesEndsTheFind()
    {
        FindFixture fixture;
        fixture.trigger(u"findDataAction"_s);
        fixture.window.open(fixture.csvPath());
        QVERIFY(fixture.searched());
        QCOMPARE(fixture.editor->table().rowCount(), 3);
    }

    void closingEndsTheFind()
    {
        // A find that outlives its window reports to freed memory: the next test, or a sanitizer, crashes.
        auto fixture = std::make_unique<FindFixture>();
        fixture->trigger(u"findDataAction"_s);
        fixture.reset();
        fixture = std::make_unique<FindFixture>();
        fixture->drop({fixture->url(u"Day 1.d"_s)});
        QVERIFY(fixture->window.dataImport().isRunning());
        fixture.reset();
        QCoreApplication::processEvents();
    }

    void lostTrailKeepsDataOut()
    {
        FindFixture fixture;
        const AuditFault fault(fixture.trailPath());
        fixture.trigger(u"findDataAction"_s);
        QVERIFY(QTest::qWaitFor([&fixture] { return !fixture.status().isEmpty(); }, kSearchMs));
        QVERIFY2(fixture.status().contains(AuditFault::message()), qUtf8Printable(fixture.status()));
        QCOMPARE(fixture.editor->table().rowCount(), 3);
        QCOMPARE(fixture.editor->history().count(), 0);
    }

    void unreadableFoldersAreReported()
    {
#ifdef Q_OS_LINUX
        FindFixture fixture;
        for (const auto &name : {u"A"_s, u"B"_s}) {
            fixture.tree.make({name + u"/secret.mzml"_s});
            ozm::test::setMode(fixture.tree.path(name), 0);
        }
        ozm::test::setMode(fixture.tree.path(), 0755);
        {
            const ozm::test::WithoutRights rights;
            fixture.trigger(u"findDataAction"_s);
        }
        QVERIFY(fixture.searched());
        for (const auto &name : {u"A"_s, u"B"_s})
            ozm::test::setMode(fixture.tree.path(name), 0755);
        QCOMPARE(fixture.editor->table().rowCount(), 5);
        QCOMPARE(fixture.refusals().size(), 2);
        QVERIFY(fixture.refusals().constFirst().contains(fixture.tree.path(u"A"_s)));
        const auto *message = fixture.find<ozm::OzmMessageBox>(u"ozmMessageBox"_s);
        QVERIFY(message);
        QVERIFY(message->text().contains(fixture.tree.path(u"B"_s)));
#endif
    }

    void missingFolderIsReported()
    {
        FindFixture fixture;
        fixture.window.dataImport().setFolderQuestion([&fixture] { return fixture.tree.path(u"gone"_s); });
        fixture.trigger(u"findDataAction"_s);
        QVERIFY(fixture.searched());
        QVERIFY(fixture.status().startsWith("Nothing was added."_L1));
        QVERIFY2(fixture.status().contains("gone"_L1), qUtf8Printable(fixture.status()));
    }

    void dropTakesWhatIsData()
    {
        FindFixture fixture;
        fixture.drop({fixture.url(u"Sub/notes.txt"_s), fixture.url(u"Day 1.d"_s), fixture.url(u"empty.d"_s),
                      fixture.url(u"Sub/Day 1.mzML"_s)});
        QVERIFY(fixture.searched());
        QCOMPARE(fixture.editor->table().rowCount(), 5);
        QCOMPARE(fixture.cell(3, kName), u"Day 1"_s);
        QVERIFY2(fixture.cell(3, u"Size"_s) == u"0"_s, "a dropped folder is measured, too");
        QCOMPARE(fixture.history(), u"1|Add data of 2 samples"_s);
        QCOMPARE(fixture.refusals().size(), 2);
        QCOMPARE(fixture.status(), u"2 samples with data were added. \"notes.txt\": The name has none of the "
                                   "extensions of mass-spectrometry data."_s);
        QVERIFY(fixture.refusals().constLast().startsWith("\"empty.d\": The folder holds neither"_L1));
    }

    void dropOfNothingLocal()
    {
        FindFixture fixture;
        fixture.drop({QUrl(u"https://example.org/a.mzml"_s)});
        QCOMPARE(fixture.editor->table().rowCount(), 3);
        QVERIFY2(fixture.status().contains("not on a disk of this computer"_L1),
                 qUtf8Printable(fixture.status()));
    }

    void foundCellsCannotBeTyped()
    {
        FindFixture fixture;
        fixture.trigger(u"findDataAction"_s);
        QVERIFY(fixture.searched());
        const QAbstractItemModel *model = fixture.find<QTableView>(u"sampleTable"_s)->model();
        for (int column = 0; column < model->columnCount(); ++column)
            QCOMPARE(model->flags(model->index(3, column)).testFlag(Qt::ItemIsEditable), column < 5);
        fixture.window.setMessagesShown(false);
        QVERIFY(fixture.editor->setCell(fixture.idAt(3), u"Path"_s, u"/elsewhere"_s).hasError());
        QVERIFY(!fixture.editor->setCell(fixture.idAt(3), kMass, {}).hasError());
        QVERIFY2(fixture.editor->setCell(fixture.idAt(0), kMass, {}).hasError(), "a peptide has a mass");
    }

    void namesOfSamples_data()
    {
        QTest::addColumn<QStringList>("paths");
        QTest::addColumn<QStringList>("names");
        QTest::newRow("extension") << QStringList{u"/a/Run 5.d"_s} << QStringList{u"Run 5"_s};
        QTest::newRow("dots inside") << QStringList{u"/a/v1.2.mzML"_s} << QStringList{u"v1.2"_s};
        QTest::newRow("twofold") << QStringList{u"/a/Region.Data.Cut"_s} << QStringList{u"Region"_s};
        QTest::newRow("extension only") << QStringList{u"/a/.mgf"_s} << QStringList{u".mgf"_s};
        QTest::newRow("blanks") << QStringList{u"/a/ x .mgf"_s, u"/a/ .mgf"_s}
                                << QStringList{u"x"_s, u".mgf"_s};
        QTest::newRow("taken by a peptide") << QStringList{u"/a/T1.raw"_s} << QStringList{u"T1 (2)"_s};
        QTest::newRow("same name") << QStringList{u"/a/x.raw"_s, u"/b/x.raw"_s, u"/c/x (2).raw"_s,
                                                  u"/d/x.raw"_s}
                                   << QStringList{u"x"_s, u"x (2)"_s, u"x (2) (2)"_s, u"x (3)"_s};
        QTest::newRow("same path") << QStringList{u"/a/x.raw"_s, u"/a/x.raw"_s} << QStringList{u"x"_s};
    }
    void namesOfSamples()
    {
        QFETCH(QStringList, paths);
        const SampleFixture fixture;
        QList<MsSample> found;
        for (const QString &path : paths)
            found.append({path, u"Thermo"_s, u"Thermo"_s, ozm::EntryKind::File, 1, {}});
        QVERIFY(!fixture.editor->addData(found, u"/a"_s).hasError());
        QStringList names;
        for (int row = 3; row < fixture.editor->table().rowCount(); ++row)
            names.append(fixture.cell(row, kName));
        QTEST(names, "names");
    }
};

QTEST_MAIN(TestFindData)
#include "tst_finddata.moc"
