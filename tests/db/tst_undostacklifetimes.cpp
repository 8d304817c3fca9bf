#include "UndoStackTest.h"

using namespace Qt::StringLiterals;
using namespace ozm::test;
using ozm::ErrorCode;
using ozm::UndoStack;

namespace {

/// Says at its death what its stack then still is.
class Mourner : public ozm::UndoCommand
{
public:
    Mourner(const UndoStack *stack, QByteArray *className)
        : m_stack(stack)
        , m_className(className)
    {}
    ~Mourner() override { *m_className = m_stack->metaObject()->className(); }

protected:
    ozm::Error doUndo() override { return {}; }
    ozm::Error doRedo() override { return {}; }

private:
    const UndoStack *m_stack;
    QByteArray *m_className;
};

} // namespace

/// Commands that die in the middle of things, and edits that come at the wrong moment. Most of these guard
/// against a use of freed memory, which the run under the address sanitizer shows for sure.
class TestUndoStackLifetimes : public UndoStackTest
{
    Q_OBJECT

private:
    [[nodiscard]] QString recentLogItem() const
    {
        const auto item = m_stack->recentLogItem().toStrongRef();
        return item ? item->data()->attributeNamesString() : QString();
    }

private Q_SLOTS:
    void mergedAway_data()
    {
        QTest::addColumn<bool>("inMacro");
        QTest::addColumn<bool>("fails");
        QTest::newRow("merged") << false << false;
        QTest::newRow("merged in a macro") << true << false;
        QTest::newRow("failed and merged") << false << true;
        QTest::newRow("failed and merged in a macro") << true << true;
    }
    void mergedAway()
    {
        QFETCH(bool, inMacro);
        QFETCH(bool, fails);
        if (inMacro)
            beginMacro(u"m"_s);
        QVERIFY(!push({.name = u"a"_s, .mergeId = 1, .greedy = true}).hasError());
        m_journal.clear();
        if (fails)
            expectWarning(u"Error in \"New\" command:"_s);
        const ozm::Error error = push({.name = u"b"_s, .mergeId = 1, .failsRedo = fails});
        QCOMPARE(error.errorMessage(), fails ? u"redo b"_s : QString());
        QCOMPARE(recentLogItem(), u"b"_s);
        QVERIFY2(!journal().contains(u"undo a"_s), "the neighbour stays done");
        QCOMPARE(m_logger->items.constLast()->data()->attributes(), QList<QString>{u"b"_s});
        if (inMacro)
            QVERIFY(m_stack->endMacro());
        QVERIFY2(inMacro == m_journal.contains(u"after a"_s), "the survivor ends the macro");
        QCOMPARE(m_stack->count(), 1);
        QCOMPARE(m_stack->index(), 1);
    }

    void obsoleteWhileRunning_data()
    {
        QTest::addColumn<bool>("fails");
        QTest::newRow("without error") << false;
        QTest::newRow("with error") << true;
    }
    void obsoleteWhileRunning()
    {
        QFETCH(bool, fails);
        QVERIFY(!push({.name = u"a"_s}).hasError());
        m_journal.clear();
        if (fails)
            expectWarning(u"Error in \"New\" command:"_s);
        const ozm::Error error = push({.name = u"b"_s, .failsRedo = fails, .obsoleteAfterRedo = true});
        QCOMPARE(error.hasError(), fails);
        QCOMPARE(recentLogItem(), u"b"_s);
        QCOMPARE(m_stack->count(), 1);
        QVERIFY2(!journal().contains(u"undo a"_s), "the neighbour stays done");
    }

    void failedPushUnderASlotThatMovesOn_data()
    {
        QTest::addColumn<bool>("undoes");
        QTest::newRow("slot pushes") << false;
        QTest::newRow("slot undoes") << true;
    }
    void failedPushUnderASlotThatMovesOn()
    {
        QFETCH(bool, undoes);
        QVERIFY(!push({.name = u"a"_s}).hasError());
        const auto once = std::make_shared<QMetaObject::Connection>();
        *once = connect(m_stack.get(), &UndoStack::indexChanged, this, [this, once, undoes] {
            disconnect(*once);
            if (undoes)
                m_stack->undo();
            else
                QVERIFY(!push({.name = u"c"_s}).hasError());
        });
        m_journal.clear();
        expectWarning(u"Error in \"New\" command:"_s);
        QCOMPARE(push({.name = u"b"_s, .failsRedo = true}).errorMessage(), u"redo b"_s);
        const QStringList calls = journal();
        QVERIFY(!calls.contains(u"undo a"_s) && !calls.contains(u"undo c"_s));

        // What is left of the failed command is dropped when the history gets there, without being run.
        m_stack->setIndex(0);
        m_stack->setIndex(m_stack->count());
        QCOMPARE(journal().count(u"redo b"_s), 0);
    }

    void lastOfAMacroDies_data()
    {
        QTest::addColumn<bool>("clears");
        QTest::newRow("cleared") << true;
        QTest::newRow("merged and obsolete") << false;
    }
    void lastOfAMacroDies()
    {
        QFETCH(bool, clears);
        beginMacro(u"m"_s);
        auto *last = new ScriptedCommand({.name = u"a"_s, .mergeId = 1, .greedy = true}, &m_journal);
        QVERIFY(!m_stack->push(last).hasError());
        if (clears) {
            m_stack->clear();
            expectWarning(u"No macro command to end"_s);
            expectWarning(u"no matching beginMacro()"_s);
        } else {
            last->setObsolete(true);
            QVERIFY(!push({.name = u"b"_s, .mergeId = 1}).hasError());
        }
        QVERIFY(m_journal.contains(u"dies a"_s));
        m_journal.clear();
        QCOMPARE(m_stack->endMacro(), !clears);
        QVERIFY(!journal().contains(u"after a"_s));
    }

    void redoTailAndLimit()
    {
        m_stack->setUndoLimit(2);
        for (const QString &name : {u"a"_s, u"b"_s, u"c"_s})
            QVERIFY(!push({.name = name}).hasError());
        QVERIFY(m_journal.contains(u"dies a"_s));
        m_stack->undo();
        QVERIFY(!push({.name = u"d"_s}).hasError());
        QVERIFY(m_journal.contains(u"dies c"_s));
        QCOMPARE(m_stack->count(), 2);
    }

    void commandsDieBeforeTheirStack()
    {
        QByteArray className;
        QVERIFY(!m_stack->push(new Mourner(m_stack.get(), &className)).hasError());
        m_stack.reset();
        QCOMPARE(className, QByteArray("ozm::UndoStack"));
    }

    void stackDiesInTheMiddleOfMacros()
    {
        beginMacro(u"m"_s);
        QVERIFY(!push({.name = u"a"_s}).hasError());
        beginMacro(u"m"_s);
        QVERIFY(!push({.name = u"b"_s}).hasError());
        m_stack.reset();
        QCOMPARE(m_journal.filter(u"dies"_s).size(), 2);
    }

    void clearInTheMiddleOfMacros_data()
    {
        QTest::addColumn<bool>("throughBase");
        QTest::newRow("own clear") << false;
        QTest::newRow("clear of the base class") << true;
    }
    void clearInTheMiddleOfMacros()
    {
        QFETCH(bool, throughBase);
        beginMacro(u"m"_s);
        QVERIFY(!push({.name = u"a"_s}).hasError());
        beginMacro(u"m"_s);
        if (throughBase)
            static_cast<QUndoStack *>(m_stack.get())->clear();
        else
            m_stack->clear();
        m_journal.clear();

        QVERIFY(!push({.name = u"b"_s}).hasError());
        QCOMPARE(journal(), QStringList({u"redo b"_s, u"log New alone b in -"_s}));
        expectWarning(u"No macro command to end"_s);
        expectWarning(u"no matching beginMacro()"_s);
        QVERIFY(!m_stack->endMacro());
        m_stack->undo();
        QCOMPARE(journal(), QStringList({u"undo b"_s, u"log Undo alone b in -"_s}));
    }

    void pushWithinAPush_data()
    {
        QTest::addColumn<bool>("fromSlot");
        QTest::newRow("from doRedo") << false;
        QTest::newRow("from a slot") << true;
    }
    void pushWithinAPush()
    {
        QFETCH(bool, fromSlot);
        const auto pushInner = [this] { QVERIFY(!push({.name = u"inner"_s}).hasError()); };
        const auto once = std::make_shared<QMetaObject::Connection>();
        Script outer{.name = u"outer"_s};
        if (fromSlot) {
            *once = connect(m_stack.get(), &UndoStack::indexChanged, this, [this, once, pushInner] {
                disconnect(*once);
                pushInner();
            });
        } else {
            outer.inRedo = pushInner;
        }
        QVERIFY(!push(outer).hasError());
        QVERIFY(m_journal.contains(u"log New alone outer in -"_s));
        QVERIFY(m_journal.contains(u"log New alone inner in -"_s));
        QCOMPARE(recentLogItem(), u"outer"_s);
        QCOMPARE(m_stack->count(), 2);
        QVERIFY2(!push({.name = u"next"_s}).hasError(), "and the stack goes on");
    }

    void historyIsClosedWhileItRuns_data()
    {
        QTest::addColumn<bool>("redo");
        QTest::addColumn<QString>("what");
        for (const bool redo : {false, true}) {
            for (const QString &what : {u"push"_s, u"beginMacro"_s, u"clear"_s})
                QTest::addRow("%s during %s", qPrintable(what), redo ? "redo" : "undo") << redo << what;
        }
    }
    void historyIsClosedWhileItRuns()
    {
        QFETCH(bool, redo);
        QFETCH(QString, what);
        bool armed = false;
        const auto attempt = [this, &armed, what] {
            if (!armed)
                return;
            if (what == u"push"_s) {
                expectWarning(u"Push refused while an undo or redo runs: \"late\""_s);
                QCOMPARE(push({.name = u"late"_s}).errorCode(), ErrorCode::NotAllowed);
            } else if (what == u"beginMacro"_s) {
                expectWarning(u"Macro refused while an undo or redo runs"_s);
                QVERIFY(!m_stack->beginMacro(recordOf(u"late"_s), {}));
            } else {
                expectWarning(u"Clear refused while an undo or redo runs"_s);
                m_stack->clear();
            }
        };
        QVERIFY(!push({.name = u"a"_s}).hasError());
        QVERIFY(!push({.name = u"b"_s, .inRedo = attempt, .inUndo = attempt}).hasError());
        QVERIFY(!push({.name = u"c"_s}).hasError());
        m_stack->setIndex(redo ? 1 : 2);
        m_journal.clear();
        armed = true;
        if (redo)
            m_stack->redo();
        else
            m_stack->undo();
        armed = false;

        QCOMPARE(m_stack->count(), 3);
        QCOMPARE(m_stack->index(), redo ? 2 : 1);
        const QStringList calls = journal();
        QVERIFY(!calls.contains(u"redo late"_s));
        QCOMPARE(calls.contains(u"dies late"_s), what == u"push"_s);
        m_stack->setIndex(3);
        QVERIFY2(!push({.name = u"d"_s}).hasError(), "and is open again");
        QCOMPARE(m_stack->count(), 4);
    }

    void undoWithinAPushIsItselfClosed()
    {
        QVERIFY(!push({.name = u"a"_s,
                       .inUndo =
                           [this] {
                               expectWarning(u"Push refused"_s);
                               QVERIFY(push({.name = u"late"_s}).hasError());
                           }})
                     .hasError());
        QVERIFY(!push({.name = u"b"_s, .inRedo = [this] { m_stack->undo(); }}).hasError());
        QCOMPARE(m_stack->count(), 1);
        QCOMPARE(m_stack->text(0), u"b"_s);
    }

    void macroAbortedByItsOwnCommand_data()
    {
        QTest::addColumn<bool>("beforehand");
        QTest::newRow("in beforeBeginFirst") << true;
        QTest::newRow("in doRedo") << false;
    }
    void macroAbortedByItsOwnCommand()
    {
        QFETCH(bool, beforehand);
        beginMacro(u"m"_s);
        Script script{.name = u"a"_s};
        (beforehand ? script.inBefore : script.inRedo) = [this] { QVERIFY(m_stack->abortMacro()); };
        QVERIFY(!push(script).hasError());
        QCOMPARE(m_stack->count(), 2);
        m_stack->setIndex(0);
        QVERIFY(m_journal.contains(u"undo a"_s));
    }

    void lastCountersDroppedByAnUndo()
    {
        Script script{.name = u"a"_s};
        beginMacro(u"m"_s);
        bool armed = false;
        script.inBefore = [this, &armed] {
            if (!armed)
                return;
            expectWarning(u"No macro command to abort"_s);
            expectWarning(u"no matching beginMacro()"_s);
            QVERIFY(!m_stack->abortMacro());
        };
        QVERIFY(!push(script).hasError());
        QVERIFY(m_stack->endMacro());
        armed = true;
        m_stack->undo();
        QVERIFY(m_journal.contains(u"undo a"_s));
        QCOMPARE(m_journal.count(u"after a"_s), 1);
    }

    void childWithoutAStack()
    {
        QUndoCommand *self = nullptr;
        auto *parent = new ScriptedCommand(
            {.name = u"p"_s, .inRedo = [&self] { self->QUndoCommand::redo(); }}, &m_journal);
        self = parent;
        new ScriptedCommand({.name = u"1"_s}, &m_journal, parent);
        parent->redo();
        QCOMPARE(journal(), QStringList({u"before 1"_s, u"redo 1"_s, u"redo p"_s}));
        delete parent;
    }
};

QTEST_GUILESS_MAIN(TestUndoStackLifetimes)
#include "tst_undostacklifetimes.moc"
