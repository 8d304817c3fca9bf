#include "support/StrictTest.h"

#include <ozm_widgets/db/common/UndoRedoHints.h>

using Session = UndoRedoHints::Session;

class TestUndoRedoHints : public ozm::test::StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void places_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<int>("count");
        QTest::addColumn<int>("flag");
        QTest::newRow("of none") << 3 << 0 << 5;
        QTest::newRow("only one") << 0 << 1 << 5;
        QTest::newRow("first") << 0 << 3 << 1;
        QTest::newRow("middle") << 1 << 3 << 2;
        QTest::newRow("last") << 2 << 3 << 4;
        QTest::newRow("past the end") << 5 << 3 << 2;
    }
    void places()
    {
        QFETCH(int, index);
        QFETCH(int, count);
        QFETCH(int, flag);
        UndoRedoHints before;
        UndoRedoHints::setHintByIndex(index, count);
        QCOMPARE(UndoRedoHints::s_undo_redo_instance_flag, flag);
        QVERIFY2(before.isFirstInQueue() && before.isLastInQueue(),
                 "a value keeps the hint it was made with");
        before.setUndoRedoFlag();
        for (UndoRedoHints hints : {UndoRedoHints(), before}) {
            QCOMPARE(hints.isFirstInQueue(), (flag & 1) != 0);
            QCOMPARE(hints.isLastInQueue(), (flag & 4) != 0);
            hints.setSessionUndo();
            QCOMPARE(hints.isFirstInQueue(), (flag & 4) != 0);
            QCOMPARE(hints.isLastInQueue(), (flag & 1) != 0);
            hints.setSession(static_cast<Session>(2));
            QVERIFY(!hints.isFirstInQueue() && !hints.isLastInQueue());
        }
        UndoRedoHints::setHintNone();
    }

    // A function that ends the session itself guards against endless recursion.
    void endOfSession()
    {
        int calls = 0;
        const auto count = [&calls] {
            ++calls;
            UndoRedoHints::setHintNone();
        };
        UndoRedoHints::setEndSessionFunction(count);
        UndoRedoHints::setHintNone();
        UndoRedoHints::setSessionStarted(true);
        UndoRedoHints::setHintNone();
        QVERIFY2(calls == 0, "a function registered outside a session is forgotten all the same");
        UndoRedoHints::setSessionStarted(true);
        UndoRedoHints::setEndSessionFunction(count);
        UndoRedoHints::setHintByIndex(0, 2);
        UndoRedoHints::setHintNone();
        UndoRedoHints::setSessionStarted(true);
        UndoRedoHints::setHintNone();
        QCOMPARE(calls, 1);
        QVERIFY(!UndoRedoHints::isSessionStarted());
        QCOMPARE(UndoRedoHints::s_undo_redo_instance_flag, 5);
    }

    void runsWithinRuns()
    {
        QList<int> seen;
        {
            UndoRedoHints::Run outer(3, [&seen] { seen.append(-1); });
            while (outer.next()) {
                {
                    UndoRedoHints::Run inner(1, [&seen] { seen.append(-2); });
                    while (inner.next())
                        seen.append(UndoRedoHints::s_undo_redo_instance_flag);
                }
                seen.append(UndoRedoHints::s_undo_redo_instance_flag);
            }
        }
        QCOMPARE(seen, (QList<int>{5, -2, 1, 5, -2, 2, 5, -2, 4, -1}));
        QVERIFY(!UndoRedoHints::isSessionStarted());
    }
};

QTEST_GUILESS_MAIN(TestUndoRedoHints)
#include "tst_undoredohints.moc"
