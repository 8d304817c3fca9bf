#include "UndoStackTest.h"

#include <QSignalSpy>

using namespace Qt::StringLiterals;
using namespace ozm::test;
using ozm::ErrorCode;
using ozm::OperationLogItemData;
using ozm::OperationLogItemPrivate;
using ozm::UndoStack;
using Context = ozm::OperationLogItemUndoContext;

class TestUndoStack : public UndoStackTest
{
    Q_OBJECT

private Q_SLOTS:
    void stepsAreLogged()
    {
        QVERIFY(!m_stack->push(nullptr).hasError());
        auto *a = command({.name = u"a"_s});
        QVERIFY(!m_stack->push(a).hasError());
        QCOMPARE(m_stack->recentLogItem().toStrongRef()->id(), 1);
        QCOMPARE(a->recentLogItem(), m_stack->recentLogItem());
        m_stack->undo();
        QCOMPARE(a->recentLogItem().toStrongRef()->id(), 2);
        m_stack->redo();
        QVERIFY2(m_stack->recentLogItem().toStrongRef()->id() == 1, "only a push changes the stack's");
        QCOMPARE(journal(),
                 QStringList({u"redo a"_s, u"log New alone a in -"_s, u"undo a"_s, u"log Undo alone a in -"_s,
                              u"redo a"_s, u"log Redo alone a in -"_s}));
    }

    void unlogged_data()
    {
        QTest::addColumn<bool>("logData");
        QTest::addColumn<bool>("auditTrail");
        QTest::addColumn<bool>("logger");
        QTest::newRow("no valid log data") << false << true << true;
        QTest::newRow("audit trail off") << true << false << true;
        QTest::newRow("no logger") << true << true << false;
    }
    void unlogged()
    {
        QFETCH(bool, logData);
        QFETCH(bool, auditTrail);
        QFETCH(bool, logger);
        if (!logger)
            m_stack->setLogging(nullptr);
        auto *a = command({.name = u"a"_s, .failsUndo = true, .logged = logData, .auditTrail = auditTrail});
        QVERIFY(!m_stack->push(a).hasError());
        QVERIFY(!a->recentLogItem());
        QVERIFY(!m_stack->recentLogItem());
        if (logData)
            expectWarning(u"Error in \"Undo\" command: OperationLogItemData{"_s);
        m_stack->undo();
        QCOMPARE(journal(), QStringList({u"redo a"_s, u"undo a"_s}));
    }

    void failedPushLeavesNoTrace()
    {
        QVERIFY(!push({.name = u"a"_s}).hasError());
        m_journal.clear();
        expectWarning(u"Error in \"New\" command:"_s);
        const ozm::Error error = push({.name = u"b"_s, .failsRedo = true});
        QCOMPARE(error.errorCode(), ErrorCode::Failed);
        QCOMPARE(error.errorMessage(), u"redo b"_s);
        QCOMPARE(m_stack->count(), 1);
        QCOMPARE(m_stack->index(), 1);
        QCOMPARE(journal(), QStringList({u"redo b"_s, u"log New alone b in -"_s, u"dies b"_s}));
    }

    void failedPushStaysInItsMacro()
    {
        beginMacro(u"m"_s);
        expectWarning(u"Error in \"New\" command:"_s);
        QVERIFY(push({.name = u"b"_s, .failsRedo = true}).hasError());
        QVERIFY(m_stack->endMacro());
        QCOMPARE(m_stack->count(), 1);
        QCOMPARE(m_stack->command(0)->childCount(), 1);
    }

    void failuresOfTheLogger()
    {
        m_logger->fails = true;
        expectWarning(u"Error in logging \"New\" command: OperationLogItemData{Set Project 'a' to 1}"_s);
        QVERIFY2(!push({.name = u"a"_s}).hasError(), "the step itself stands");
        QVERIFY(!m_stack->recentLogItem());

        expectWarning(
            u"Error in logging begin of macro command: OperationLogItemData{Set Project 'm' to 1}"_s);
        beginMacro(u"m"_s);
        m_journal.clear();
        m_logger->fails = false;
        QVERIFY(!push({.name = u"b"_s}).hasError());
        QCOMPARE(journal(), QStringList({u"before b"_s, u"redo b"_s, u"log New alone b in -"_s}));
        expectWarning(u"No macro command to end"_s);
        QVERIFY(!m_stack->endMacro());

        beginMacro(u"n"_s, false);
        m_logger->fails = true;
        QVERIFY2(!m_stack->endMacro(), "what the logger's commit says");
    }

    void macroTexts()
    {
        m_stack->beginMacro(recordOf(u"m"_s), {});
        m_stack->endMacro();
        beginMacro(u"n"_s);
        m_stack->endMacro();
        QCOMPARE(m_stack->text(0), u"Set Project 'm' to 1"_s);
        QCOMPARE(m_stack->text(1), u"n"_s);
    }

    void macroWithAParentOfItsOwn()
    {
        const auto parent = OperationLogItemPrivate::createItem({}, 99, 1, u"jdoe"_s, recordOf(u"p"_s));
        beginMacro(u"outer"_s);
        const auto inner = m_stack->beginMacro(parent, recordOf(u"inner"_s), {});
        QCOMPARE(inner->parent(), parent);
        QVERIFY(!push({.name = u"a"_s}).hasError());
        QCOMPARE(journal(), QStringList({u"log begin outer in -"_s, u"log begin inner in 99"_s, u"before a"_s,
                                         u"redo a"_s, u"log New a in 2"_s}));
    }

    void collapse_data()
    {
        QTest::addColumn<bool>("collapse");
        QTest::addColumn<int>("commands");
        QTest::addColumn<QString>("committed");
        QTest::newRow("collapse nothing") << true << 0 << QString();
        QTest::newRow("collapse one") << true << 1 << u"commit 2 []"_s;
        QTest::newRow("collapse two") << true << 2 << u"commit 1 [2 3]"_s;
        QTest::newRow("keep nothing") << false << 0 << u"commit 1 []"_s;
        QTest::newRow("keep one") << false << 1 << u"commit 1 [2]"_s;
    }
    void collapse()
    {
        QFETCH(bool, collapse);
        QFETCH(int, commands);
        QFETCH(QString, committed);
        beginMacro(u"m"_s, collapse);
        for (int i = 0; i < commands; ++i)
            QVERIFY(!push({.name = u"c"_s}).hasError());
        m_journal.clear();
        QVERIFY(m_stack->endMacro());
        const QStringList commits = journal().filter(u"commit"_s);
        QCOMPARE(commits, committed.isEmpty() ? QStringList() : QStringList{committed});
        if (collapse && commands == 1)
            QVERIFY(!m_logger->items.at(1)->parent());
    }

    void trivialInnerMacros()
    {
        beginMacro(u"outer"_s, false);
        beginMacro(u"empty"_s);
        QVERIFY(m_stack->endMacro());
        beginMacro(u"single"_s);
        QVERIFY(!push({.name = u"a"_s}).hasError());
        QVERIFY(m_stack->endMacro());
        QVERIFY2(!m_logger->items.at(0)->hasChildren(), "nothing is left of either");
        m_journal.clear();
        QVERIFY(m_stack->endMacro());
        QCOMPARE(journal(), QStringList{u"commit 1 []"_s});
    }

    void macroWithoutLogger()
    {
        m_stack->setLogging(nullptr);
        QVERIFY(!m_stack->beginMacro(recordOf(u"m"_s), {}));
        QVERIFY(m_stack->endMacro());
        m_stack->beginMacro(recordOf(u"n"_s), {});
        QVERIFY(m_stack->abortMacro());
        QCOMPARE(m_stack->count(), 2);
    }

    void nothingToEnd()
    {
        expectWarning(u"No macro command to end"_s);
        expectWarning(u"no matching beginMacro()"_s);
        QVERIFY(!m_stack->endMacro());
        expectWarning(u"No macro command to abort"_s);
        expectWarning(u"no matching beginMacro()"_s);
        QVERIFY(!m_stack->abortMacro());
    }

    // The counters of a macro outlive its end, but not its abort: each row is what that leads to.
    void runsOfCommands_data()
    {
        QTest::addColumn<QString>("steps");
        QTest::addColumn<QStringList>("calls");
        QTest::newRow("no macro") << u"a u r"_s << QStringList{u"redo"_s, u"undo"_s, u"redo"_s};
        QTest::newRow("ended") << u"( a b )"_s << QStringList{u"before"_s, u"redo"_s, u"redo"_s, u"after"_s};
        QTest::newRow("aborted") << u"( a b !"_s
                                 << QStringList{u"before"_s, u"redo"_s, u"redo"_s, u"aborted"_s};
        QTest::newRow("undone and redone")
            << u"( a b ) u r"_s
            << QStringList{u"before"_s, u"redo"_s,  u"redo"_s,   u"after"_s, u"before"_s, u"undo"_s,
                           u"undo"_s,   u"after"_s, u"before"_s, u"redo"_s,  u"redo"_s};
        QTest::newRow("aborted, then undone")
            << u"( a b ! u"_s
            << QStringList{u"before"_s, u"redo"_s, u"redo"_s, u"aborted"_s, u"undo"_s, u"undo"_s};
        QTest::newRow("push after the end counts on")
            << u"( a ) b u u"_s << QStringList{u"before"_s, u"redo"_s, u"after"_s, u"redo"_s,
                                               u"before"_s, u"undo"_s, u"undo"_s,  u"after"_s};
        QTest::newRow("push after an abort does not")
            << u"( a ! b u"_s << QStringList{u"before"_s, u"redo"_s, u"aborted"_s, u"redo"_s, u"undo"_s};
        QTest::newRow("command after the end closes the next macro")
            << u"( a ) b ( )"_s << QStringList{u"before"_s, u"redo"_s, u"after"_s, u"redo"_s, u"after"_s};
        QTest::newRow("inner macro's counters go on outside it")
            << u"( a ( b ) c )"_s
            << QStringList{u"before"_s, u"redo"_s, u"before"_s, u"redo"_s, u"after"_s, u"redo"_s, u"after"_s};
        QTest::newRow("after an inner abort, the outer's")
            << u"( a ( b ! c )"_s << QStringList{u"before"_s,  u"redo"_s, u"before"_s, u"redo"_s,
                                                 u"aborted"_s, u"redo"_s, u"after"_s};
        QTest::newRow("refused at the first step")
            << u"( f a )"_s << QStringList{u"before"_s, u"before"_s, u"redo"_s, u"after"_s};
    }
    void runsOfCommands()
    {
        QFETCH(QString, steps);
        m_stack->setLogging(nullptr);
        for (const QString &step : steps.split(u' ')) {
            if (step == u"("_s)
                beginMacro(u"m"_s);
            else if (step == u")"_s)
                m_stack->endMacro();
            else if (step == u"!"_s)
                m_stack->abortMacro();
            else if (step == u"u"_s)
                m_stack->undo();
            else if (step == u"r"_s)
                m_stack->redo();
            else
                (void)push({.name = step, .failsBefore = step == u"f"_s});
        }
        QStringList calls;
        for (const QString &entry : journal())
            calls.append(entry.section(u' ', 0, 0));
        QTEST(calls, "calls");
    }

    void refusedFirstStepIsNotRun()
    {
        beginMacro(u"m"_s);
        m_journal.clear();
        const ozm::Error error = push({.name = u"f"_s, .failsBefore = true});
        QCOMPARE(error.errorMessage(), u"before f"_s);
        QCOMPARE(journal(), QStringList{u"before f"_s});
    }

    void childCommands()
    {
        QUndoCommand *self = nullptr;
        Script script{.name = u"p"_s};
        script.inRedo = [&self] { self->QUndoCommand::redo(); };
        script.inUndo = [&self] { self->QUndoCommand::undo(); };
        auto *family = command(script);
        self = family;
        new ScriptedCommand({.name = u"1"_s}, &m_journal, family);
        new ScriptedCommand({.name = u"2"_s}, &m_journal, family);

        QVERIFY(!m_stack->push(family).hasError());
        m_stack->undo();
        QCOMPARE(journal(), QStringList({u"before 1"_s, u"redo 1"_s, u"log New alone 1 in -"_s, u"redo 2"_s,
                                         u"log New alone 2 in -"_s, u"redo p"_s, u"log New alone p in -"_s,
                                         u"before 2"_s, u"undo 2"_s, u"log Undo alone 2 in -"_s, u"undo 1"_s,
                                         u"log Undo alone 1 in -"_s, u"after 1"_s, u"undo p"_s,
                                         u"log Undo alone p in -"_s}));
    }

    void stepsOutsideTheStack()
    {
        auto *a = command({.name = u"a"_s});
        a->redo();
        a->undo();
        QCOMPARE(journal(), QStringList({u"redo a"_s, u"undo a"_s}));
        QVERIFY(!m_stack->push(a).hasError());
        m_journal.clear();
        a->redo();
        QVERIFY2(journal() == QStringList{u"redo a"_s}, "there is nothing to redo in the stack");
        m_stack->undo();
        m_journal.clear();
        expectWarning(u"Can't undo \"a\""_s);
        a->undo();
        QVERIFY(journal().isEmpty());
    }

    void eventsAreMacrosWithoutCommands()
    {
        const auto event = m_logger->logEvent({}, recordOf(u"export"_s));
        QCOMPARE(event->id(), 1);
        QCOMPARE(journal(), QStringList({u"log begin export in -"_s, u"commit 1 []"_s}));
        m_logger->fails = true;
        QVERIFY(!m_logger->logEvent(event, recordOf(u"export"_s)));
    }

    void whatALoggerReads()
    {
        auto *a = command({.name = u"a"_s});
        a->setChildLogData({recordOf(u"x"_s), recordOf(u"y"_s)});
        const ozm::UndoCommand &seen = *a;
        QCOMPARE(seen.logData()->attributes(), QList<QString>{u"a"_s});
        QCOMPARE(seen.childLogData().size(), 2);
        QVERIFY(seen.isAuditTrailEnabled());
        delete a;
    }
};

QTEST_GUILESS_MAIN(TestUndoStack)
#include "tst_undostack.moc"
