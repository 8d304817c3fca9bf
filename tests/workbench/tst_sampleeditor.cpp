#include "AuditFault.h"
#include "SampleFixture.h"
#include "samples/SampleCommands.h"
#include "support/StrictTest.h"

#include <QSignalSpy>

using namespace Qt::StringLiterals;
using namespace ozm::test;
using namespace workbench;
using ozm::Error;
using ozm::ErrorCode;
using ozm::OperationLogItemData;
using ozm::OperationLogItemType;

namespace {

OperationLogItemData macroData()
{
    return {OperationLogItemType::Set, ozm::OperationLogItemSubject::Type::Label, {kComment}, u"x"_s};
}

/// The texts of the trail from @p first on.
QStringList trailFrom(const SampleFixture &fixture, qsizetype first)
{
    return fixture.trailTexts().mid(first);
}

} // namespace

class TestSampleEditor : public ozm::test::StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void editsAreKeptOutWithoutARecord_data()
    {
        QTest::addColumn<QString>("operation");
        for (const char *operation :
             {"edit", "add", "undo", "undo macro", "redo", "macro", "load", "save", "export"})
            QTest::newRow(operation) << QString::fromLatin1(operation);
    }
    void editsAreKeptOutWithoutARecord()
    {
        QFETCH(QString, operation);
        const QString large(200, u'x');
        SampleFixture fixture;
        QVERIFY(fixture.ok);
        SampleEditor &editor = *fixture.editor;
        const QString out = fixture.folder.filePath(u"out"_s);
        const QString other = fixture.folder.filePath(u"other.csv"_s);
        QVERIFY(writeFile(other, "Name,Mass\nX,1\n"));
        const QMap<QString, std::function<Error()>> operations{
            {u"edit"_s, [&] { return editor.setCell(fixture.idAt(0), kComment, large + u'y'); }},
            {u"add"_s,
             [&] {
                 return editor.addSample({{kName, u"T9"_s}, {kMass, u"1"_s}, {kComment, large}});
             }},
            {u"undo"_s, [&] { return editor.undo(); }},
            {u"undo macro"_s, [&] { return editor.undo(); }},
            {u"redo"_s, [&] { return editor.redo(); }},
            {u"macro"_s,
             [&] {
                 return editor.renameSamples({fixture.idAt(0), fixture.idAt(1)}, u"*"_s + large);
             }},
            {u"load"_s, [&] { return editor.load(other); }},
            {u"save"_s, [&] { return editor.save(out); }},
            {u"export"_s, [&] { return editor.exportTrail(out); }},
        };
        QVERIFY(!editor.setCell(fixture.idAt(0), kComment, large).hasError());
        if (operation == "undo macro"_L1)
            QVERIFY(!editor.renameSamples({fixture.idAt(0), fixture.idAt(1)}, u"*"_s + large).hasError());
        if (operation == "redo"_L1)
            QVERIFY(!editor.undo().hasError());
        const QString samples = fixture.samples();
        const QString history = fixture.history();
        const QStringList trail = fixture.trailTexts();
        const bool clean = editor.history().isClean();
        const qsizetype stored = fixture.stored().size();

        AuditFault fault(fixture.trailPath());
        QVERIFY(fault.isMade());
        const QSignalSpy trouble(&editor, &SampleEditor::trouble);
        const Error error = operations.value(operation)();
        QCOMPARE(error.errorCode(), ErrorCode::FileAccess);
        QVERIFY2(error.errorMessage().contains(AuditFault::message()), qUtf8Printable(error.errorMessage()));
        QCOMPARE(trouble.size(), 1);
        QVERIFY(fixture.samples() == samples);
        QVERIFY(fixture.history() == history);
        QVERIFY(fixture.trailTexts() == trail);
        QCOMPARE(editor.history().isClean(), clean);
        QVERIFY(!QFile::exists(out));

        fault.lift();
        QCOMPARE(fixture.stored().size(), stored);
        QVERIFY2(!operations.value(operation)().hasError(), "once the trouble is over, the work goes on");
        QVERIFY(fixture.stored().size() > stored);
    }

    void invalidEditsAreRefusedAndRecorded_data()
    {
        QTest::addColumn<QString>("column");
        QTest::addColumn<QString>("message"); // empty: taken
        QTest::addColumn<QStringList>("texts");
        const auto row = [](const char *name, const QString &column, const QString &message,
                            const QStringList &texts) { QTest::newRow(name) << column << message << texts; };
        row("charges", kCharge, {}, {u"1"_s, u"200"_s, u" "_s});
        row("no charges", kCharge, u"whole number from 1 to 200"_s,
            {u"0"_s, u"201"_s, u"-2"_s, u"+2"_s, u"2.0"_s, u"99999999999999999999"_s});
        row("masses", kMass, {}, {u" 148057.1 "_s, u"1.48e5"_s});
        row("no masses", kMass, u"positive number"_s,
            {u"0"_s, QString(), u"-1"_s, u"inf"_s, u"nan"_s, u"1,5"_s});
        row("names", kName, {}, {u"β 1-42, \"native\""_s, u"T1 "_s});
        row("name empty", kName, u"must not be empty"_s, {u"  "_s});
        row("name of another", kName, u"\"T2\" already"_s, {u" T2"_s});
        row("sequences", kSequence, {}, {u"peptideK"_s, QString()});
        row("no sequences", kSequence, u"letters only"_s, {u"PEP2"_s, u"PEP TIDE"_s, u"PEPβ"_s});
        row("comment with percent places", kComment, {}, {u"%1 %2"_s});
        row("charge with percent places", kCharge, u"not \"%1 %2\""_s, {u"%1 %2"_s});
    }
    void invalidEditsAreRefusedAndRecorded()
    {
        QFETCH(QString, column);
        QFETCH(QString, message);
        QFETCH(QStringList, texts);
        for (const QString &text : texts) {
            SampleFixture fixture;
            QVERIFY(fixture.ok);
            QVERIFY(!fixture.editor->setCell(fixture.idAt(1), kComment, u"to be redone"_s).hasError());
            QVERIFY(!fixture.editor->undo().hasError());
            const QString samples = fixture.samples();
            const QString history = fixture.history();

            const Error error = fixture.editor->setCell(fixture.idAt(0), column, text);
            const ozm::audit::Entry record = fixture.stored().constLast();
            QCOMPARE(Error(ErrorCode(record.outcomeCode), record.outcomeText), error);
            QCOMPARE(OperationLogItemData(record.record).attributes(), QStringList{column});
            QVERIFY2(error.hasError() != message.isEmpty(), qUtf8Printable(text));
            if (message.isEmpty())
                continue;
            QCOMPARE(error.errorCode(), ErrorCode::BadParameter);
            QVERIFY2(error.errorMessage().contains(message), qUtf8Printable(error.errorMessage()));
            QCOMPARE(fixture.samples(), samples);
            QVERIFY2(fixture.history() == history, "a refused edit must not cost what can be redone");
            QVERIFY(fixture.editor->history().canRedo());
        }
    }

    void invalidSampleIsNotAdded()
    {
        SampleFixture fixture;
        const QString samples = fixture.samples();
        const Error error = fixture.editor->addSample({{kName, u"T1"_s}, {kMass, u"1"_s}});
        QVERIFY(error.errorMessage().contains("already"_L1));
        QVERIFY(fixture.editor->addSample({{kName, u"T4"_s}}).errorMessage().contains("mass"_L1));
        QCOMPARE(fixture.samples(), samples);
        QVERIFY(!fixture.editor->history().canUndo());
        QCOMPARE(
            trailFrom(fixture, 2),
            QStringList{u"Add Label ID=Name: T4 [ID: 5] 'Name, Sequence, Charge, Mass, Comment': T4, , , , "
                        " ! The mass must be a positive number, not \"\"."_s});
    }

    void refusalThatCannotBeRecordedSaysSo()
    {
        SampleFixture fixture;
        const AuditFault fault(fixture.trailPath());
        const Error error = fixture.editor->setCell(fixture.idAt(0), kCharge, u"0"_s);
        QCOMPARE(error.errorCode(), ErrorCode::BadParameter);
        QCOMPARE(error.warnings().size(), 1);
        QVERIFY(error.warnings().constFirst().contains(AuditFault::message()));
    }

    void refusedMacroChangesNothing()
    {
        SampleFixture fixture;
        const QString samples = fixture.samples();
        // The first two are fine by themselves; the second takes the name that the first has just got.
        const Error error = fixture.editor->renameSamples({fixture.idAt(0), fixture.idAt(1)}, u"X"_s);
        QVERIFY(error.errorMessage().contains("\"X\" already"_L1));
        QCOMPARE(fixture.samples(), samples);
        QCOMPARE(fixture.editor->history().count(), 0);
        QCOMPARE(trailFrom(fixture, 1).size(), 1);
        QVERIFY(trailFrom(fixture, 1).constFirst().contains("from T2 to X ! "_L1));
    }

    void everyStepLeavesItsRecord()
    {
        SampleFixture fixture;
        SampleEditor &editor = *fixture.editor;
        QVERIFY(!editor.setCell(fixture.idAt(0), kCharge, u"3"_s).hasError());
        QVERIFY(!editor.undo().hasError());
        QCOMPARE(fixture.cell(0, kCharge), u"2"_s);
        QVERIFY(!editor.redo().hasError());
        QVERIFY(!editor.deleteSamples({fixture.idAt(1)}).hasError());
        QCOMPARE(fixture.trailTexts(),
                 (QStringList{u"Event File ID=Name: samples.csv 'Loaded samples' to 3"_s,
                              u"Set Label ID=Name: T1 [ID: 1] 'Charge' from 2 to 3"_s,
                              u"UNDO Set Label ID=Name: T1 [ID: 1] 'Charge' from 2 to 3"_s,
                              u"REDO Set Label ID=Name: T1 [ID: 1] 'Charge' from 2 to 3"_s,
                              u"Delete Label ID=Name: T2 [ID: 2] 'Name, Sequence, Charge, Mass, Comment': "
                              "T2, FTISR, 1, 622.3439, short"_s}));
        QCOMPARE(fixture.stored().constLast().user.id, u"jdoe"_s);
    }

    void macroIsOneStep()
    {
        SampleFixture fixture;
        SampleEditor &editor = *fixture.editor;
        QVERIFY(!editor.renameSamples({fixture.idAt(0), fixture.idAt(2)}, u"#: *"_s).hasError());
        QCOMPARE(fixture.cell(0, kName) + u'|' + fixture.cell(2, kName), u"1: T1|2: T3"_s);
        QCOMPARE(fixture.history(), u"1|Rename to #: *"_s);
        const QStringList macro{u"Set Label 'Name' to #: *"_s,
                                u"  Set Label ID=Name: T1 [ID: 1] 'Name' from T1 to 1: T1"_s,
                                u"  Set Label ID=Name: T3 [ID: 3] 'Name' from T3 to 2: T3"_s};
        QCOMPARE(trailFrom(fixture, 1), macro);

        QVERIFY(!editor.undo().hasError());
        QCOMPARE(fixture.cell(0, kName) + u'|' + fixture.cell(2, kName), u"T1|T3"_s);
        QVERIFY(!editor.redo().hasError());
        // Undone from the last one back, redone from the first one on.
        QCOMPARE(trailFrom(fixture, 4),
                 (QStringList{u"UNDO "_s + macro.at(2).trimmed(), u"UNDO "_s + macro.at(1).trimmed(),
                              u"REDO "_s + macro.at(1).trimmed(), u"REDO "_s + macro.at(2).trimmed()}));
    }

    void macroOfOneStandsForItself()
    {
        SampleFixture fixture;
        QVERIFY(!fixture.editor->renameSamples({fixture.idAt(0)}, u"*b"_s).hasError());
        QCOMPARE(trailFrom(fixture, 1),
                 QStringList{u"Set Label ID=Name: T1 [ID: 1] 'Name' from T1 to T1b"_s});
        QVERIFY(!fixture.editor->runMacro(macroData(), u"none"_s, {}).hasError());
        QCOMPARE(fixture.editor->history().count(), 1);
    }

    void editsOfOneCellMerge()
    {
        SampleFixture fixture;
        SampleEditor &editor = *fixture.editor;
        for (const auto &charge : {u"3"_s, u"4"_s})
            QVERIFY(!editor.setCell(fixture.idAt(0), kCharge, charge).hasError());
        QVERIFY(!editor.setCell(fixture.idAt(1), kCharge, u"4"_s).hasError());
        QVERIFY(!editor.setCell(fixture.idAt(1), kMass, u"4"_s).hasError());
        QCOMPARE(fixture.history(), u"3|Set Charge of T1|Set Charge of T2|Set Mass (Da) of T2"_s);
        QVERIFY2(trailFrom(fixture, 1).size() == 4, "the trail keeps both halves");

        QVERIFY(!editor.moveTo(0).hasError());
        QCOMPARE(fixture.cell(0, kCharge), u"2"_s);
        QVERIFY(fixture.trailTexts().constLast().endsWith(
            "UNDO Set Label ID=Name: T1 [ID: 1] 'Charge' from 2 to 4"_L1));
        QVERIFY(!editor.redo().hasError());
        QCOMPARE(fixture.cell(0, kCharge), u"4"_s);
    }

    void editsThatCancelOutLeaveNothingToUndo()
    {
        SampleFixture fixture;
        for (const auto &charge : {u"3"_s, u"2"_s})
            QVERIFY(!fixture.editor->setCell(fixture.idAt(0), kCharge, charge).hasError());
        QCOMPARE(fixture.cell(0, kCharge), u"2"_s);
        QCOMPARE(fixture.history(), u"0"_s);
        QCOMPARE(trailFrom(fixture, 1).size(), 2);
    }

    void deletedSamplesComeBackInPlace()
    {
        SampleFixture fixture;
        const QString samples = fixture.samples();
        QVERIFY(!fixture.editor->deleteSamples({fixture.idAt(0), fixture.idAt(2)}).hasError());
        QCOMPARE(fixture.editor->table().rowCount(), 1);
        const QString rest = fixture.samples();
        QVERIFY(!fixture.editor->undo().hasError());
        QCOMPARE(fixture.samples(), samples);
        QVERIFY(!fixture.editor->redo().hasError());
        QCOMPARE(fixture.samples(), rest);
        QVERIFY2(fixture.editor->deleteSamples({77, 78}).hasError(), "there are no such samples");
    }

    void moveToRecordsEachStep()
    {
        SampleFixture fixture;
        SampleEditor &editor = *fixture.editor;
        for (int row = 0; row < 3; ++row)
            QVERIFY(!editor.setCell(fixture.idAt(row), kComment, u"seen"_s).hasError());
        QVERIFY(!editor.moveTo(1).hasError());
        QCOMPARE(editor.history().index(), 1);
        QVERIFY(!editor.moveTo(99).hasError());
        QCOMPARE(editor.history().index(), 3);
        QCOMPARE(trailFrom(fixture, 4).filter(u"UNDO"_s).size(), 2);
        QCOMPARE(trailFrom(fixture, 4).filter(u"REDO"_s).size(), 2);

        const AuditFault fault(fixture.trailPath());
        QVERIFY(editor.moveTo(0).hasError());
        QCOMPARE(editor.history().index(), 3);
    }

    void loadForgetsTheHistory()
    {
        SampleFixture fixture;
        QVERIFY(!fixture.editor->setCell(fixture.idAt(0), kCharge, u"3"_s).hasError());
        QVERIFY(writeFile(fixture.csvPath(), "Name\nX\n"));
        const QString samples = fixture.samples();
        QVERIFY(fixture.editor->load(fixture.csvPath())
                    .errorMessage()
                    .contains("Line 1: The column \"Mass\""_L1));
        QCOMPARE(fixture.samples(), samples);
        QVERIFY(fixture.trailTexts().constLast().contains(" ! "_L1));

        QVERIFY(writeFile(fixture.csvPath(), "Name,Mass\nX,1\n"));
        QVERIFY(!fixture.editor->load(fixture.csvPath()).hasError());
        QCOMPARE(fixture.history(), u"0"_s);
        QCOMPARE(fixture.samples(), u"4|X|||1|"_s);
    }

    void earlierTrailIsContinued()
    {
        SampleFixture fixture;
        QVERIFY(!fixture.editor->renameSamples({fixture.idAt(0), fixture.idAt(2)}, u"#"_s).hasError());
        const QStringList trail = fixture.trailTexts();
        fixture.editor = std::make_unique<SampleEditor>(*fixture.store, u"other"_s);
        QVERIFY(!fixture.editor->start().hasError());
        QCOMPARE(fixture.trailTexts(), trail);
        QVERIFY(!fixture.editor->load(fixture.csvPath()).hasError());
        QCOMPARE(fixture.trailTexts().mid(0, trail.size()), trail);
        QCOMPARE(fixture.stored().constLast().user.id, u"other"_s);
    }
};

QTEST_GUILESS_MAIN(TestSampleEditor)
#include "tst_sampleeditor.moc"
