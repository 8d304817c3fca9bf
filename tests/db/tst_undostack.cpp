#include "GuideLogger.h"
#include "UndoTestTools.h"
#include "support/StrictTest.h"

#include <ozm_widgets/db/common/AuditTrailMonitor.h>
#include <ozm_widgets/db/common/UndoMacro.h>

#include <QSignalSpy>

using namespace Qt::StringLiterals;
using namespace ozm::test;
using ozm::ErrorCode;
using ozm::OperationLogItem;
using ozm::UndoMacro;
using ozm::UndoStack;

/// The facts that the model of the stack cannot express: texts and results, slots, child commands, guards, lifetimes.
class TestUndoStack : public StrictTest
{
    Q_OBJECT

private:
    ScriptedCommand *command(const Edit &edit, const std::function<void()> &inside = {})
    {
        return new ScriptedCommand(edit, &m_journal, [inside](const auto &) {
            if (inside)
                inside();
        });
    }
    ozm::Error push(const Edit &edit, const std::function<void()> &inside = {})
    {
        return m_stack->push(command(edit, inside));
    }
    QStringList journal() { return std::exchange(m_journal, {}); }

    QStringList m_journal;
    RecordingLogger m_logger{&m_journal};
    std::unique_ptr<UndoStack> m_stack;

private Q_SLOTS:
    void init()
    {
        StrictTest::init();
        m_stack = std::make_unique<UndoStack>();
        m_stack->setLogging(&m_logger);
    }
    void cleanup()
    {
        m_stack.reset();
        m_logger.items.clear();
        m_logger.fails = false;
        m_journal.clear();
    }

    void entriesOfSteps()
    {
        QVERIFY(!m_stack->push(nullptr).hasError());
        auto *a = command({.name = u"a"_s});
        a->setChildLogData({recordOf(u"x"_s), recordOf(u"y"_s)});
        QCOMPARE(a->childLogData().size(), 2);
        QVERIFY(!m_stack->push(a).hasError());
        QCOMPARE(m_stack->recentLogItem().toStrongRef()->id(), 1);
        m_stack->undo();
        QCOMPARE(a->recentLogItem().toStrongRef()->id(), 2);
        QVERIFY2(m_stack->recentLogItem().toStrongRef()->id() == 1, "only a push changes the stack's");
    }

    void failuresAndTheirTexts()
    {
        QSignalSpy notStored(m_stack->auditTrailMonitor(), &ozm::AuditTrailMonitor::recordNotStored);
        QSignalSpy notCommitted(m_stack->auditTrailMonitor(), &ozm::AuditTrailMonitor::macroNotCommitted);
        expectWarning(u"Error in \"New\" command: OperationLogItemData{Set Project 'b' to 1}"_s);
        const ozm::Error error = push({.name = u"b"_s, .failsRedo = true});
        QCOMPARE(error.errorCode(), ErrorCode::Failed);
        QCOMPARE(error.errorMessage(), u"redo b"_s);

        m_logger.fails = true;
        expectWarning(u"Error in logging \"New\" command: OperationLogItemData{Set Project 'a' to 1}"_s);
        QVERIFY2(!push({.name = u"a"_s}).hasError(), "the step itself stands");
        expectWarning(
            u"Error in logging begin of macro command: OperationLogItemData{Set Project 'm' to 1}"_s);
        m_stack->beginMacro(recordOf(u"m"_s), {});
        QCOMPARE(m_stack->command(1)->text(), u"Set Project 'm' to 1"_s);
        m_stack->setLogging(nullptr);
        QVERIFY(m_stack->endMacro());
        QCOMPARE(notStored.size(), 2);
        QCOMPARE(
            notStored.at(0).at(0).value<ozm::OperationLogItemData>().toJsonObject().value("undoContext"_L1),
            QJsonValue(u"New"_s));

        m_logger.fails = false;
        m_stack->setLogging(&m_logger);
        auto data = recordOf(u"n"_s);
        data.setCollapseTrivialMacro(false);
        m_stack->beginMacro(data, u"N"_s);
        m_logger.fails = true;
        QVERIFY2(!m_stack->endMacro(), "what the logger's commit says");
        QCOMPARE(m_stack->text(2), u"N"_s);
        QCOMPARE(notCommitted.size(), 1);
    }

    void macroWithAParentOfItsOwn()
    {
        const auto parent = OperationLogItem::create({}, 99, 1, u"jdoe"_s, recordOf(u"p"_s));
        m_stack->beginMacro(recordOf(u"outer"_s), {});
        const auto inner = m_stack->beginMacro(parent, recordOf(u"inner"_s), {});
        QCOMPARE(inner->parent(), parent);
        QVERIFY(!push({.name = u"a"_s}).hasError());
        QCOMPARE(journal(), QStringList({u"log begin outer in -"_s, u"log begin inner in 99"_s, u"before a"_s,
                                         u"redo a"_s, u"log New a in 2"_s}));
    }

    void anyOtherContextIsOutsideMacros()
    {
        struct Open : UndoStack
        {
            using UndoStack::createOrLog;
        } stack;
        stack.setLogging(&m_logger);
        auto *a = command({.name = u"a"_s});
        QVERIFY(!stack.push(a).hasError());
        stack.beginMacro(recordOf(u"m"_s), {});
        stack.setLogging(nullptr);
        stack.endMacro();
        stack.setLogging(&m_logger); // For which the macro is still open.
        m_journal.clear();
        using Context = ozm::OperationLogItemUndoContext;
        for (const auto context : {Context::None, Context::Invalid, Context::Undo, static_cast<Context>(9)})
            QVERIFY(stack.createOrLog(*a, context));
        QCOMPARE(journal().filter(u" alone a in -"_s).size(), 4);
    }

    void childCommands_data()
    {
        QTest::addColumn<bool>("inStack");
        QTest::newRow("pushed") << true;
        QTest::newRow("without a stack") << false;
    }
    void childCommands()
    {
        QFETCH(bool, inStack);
        QUndoCommand *self = nullptr;
        bool back = false;
        auto *family = command({.name = u"p"_s}, [&self, &back] {
            if (std::exchange(back, true))
                self->QUndoCommand::undo();
            else
                self->QUndoCommand::redo();
        });
        self = family;
        new ScriptedCommand({.name = u"1"_s}, &m_journal, {}, family);
        new ScriptedCommand({.name = u"2"_s}, &m_journal, {}, family);
        if (!inStack) {
            family->redo();
            QCOMPARE(journal(), QStringList({u"before 1"_s, u"redo 1"_s, u"redo 2"_s, u"redo p"_s}));
            delete family;
            return;
        }
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

    void foreignCommandsAreNotRecorded()
    {
        struct Foreign : QUndoCommand
        {
            using QUndoCommand::QUndoCommand;
        };
        QUndoStack &base = *m_stack;
        for (const bool inMacro : {false, true}) {
            if (inMacro)
                m_stack->beginMacro(recordOf(u"m"_s), {});
            expectWarning(u"A command that cannot be recorded was pushed: \"foreign\""_s);
            base.push(new Foreign(u"foreign"_s));
        }
        QVERIFY(m_stack->endMacro());
        m_stack->setIndex(0);
        m_stack->setIndex(2);
    }

    // A slot that is called in the middle of a push, and steps over several commands at once.
    void slotsThatMoveOn_data()
    {
        QTest::addColumn<bool>("undoes");
        QTest::newRow("slot pushes") << false;
        QTest::newRow("slot undoes") << true;
    }
    void slotsThatMoveOn()
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
        QVERIFY(!push({.name = u"b"_s}).hasError());
        QCOMPARE(m_stack->recentLogItem().toStrongRef()->data()->attributeNamesString(), u"b"_s);
        m_journal.clear();
        m_stack->setIndex(0);
        m_stack->setIndex(m_stack->count());
        QCOMPARE(journal().filter(u"alone"_s).size(), undoes ? 3 : 6);
    }

    void lateEditsInALongStep()
    {
        bool armed = false;
        const auto late = [this, &armed] {
            if (!armed)
                return;
            expectWarning(u"Push refused while an undo or redo runs: \"late\""_s);
            QCOMPARE(push({.name = u"late"_s}).errorCode(), ErrorCode::NotAllowed);
            const QString way = m_stack->index() == 0 ? u"Redo"_s : u"Undo"_s;
            expectWarning(way + u" refused while an undo or redo runs"_s);
            m_stack->index() == 0 ? m_stack->redo() : m_stack->undo();
        };
        QVERIFY(!push({.name = u"a"_s}).hasError());
        QVERIFY(!push({.name = u"b"_s}, late).hasError());
        QVERIFY(!push({.name = u"c"_s}).hasError());
        armed = true;
        m_stack->setIndex(0);
        QCOMPARE(m_stack->index(), 0);
        m_stack->setIndex(3);
        QCOMPARE(m_stack->index(), 3);
        armed = false;
    }

    void macroGuard()
    {
        {
            UndoMacro macro(*m_stack, recordOf(u"m"_s));
            QVERIFY(macro.isOpen());
            QCOMPARE(macro.logItem()->id(), 1);
            QVERIFY(!push({.name = u"a"_s}).hasError());
            m_stack->beginMacro(recordOf(u"forgotten"_s), {});
        }
        QVERIFY2(m_stack->canUndo() && !m_journal.contains(u"commit"_s), "both are aborted");
        {
            UndoMacro macro(*m_stack, recordOf(u"m"_s), u"text"_s);
            QVERIFY(!push({.name = u"b"_s}).hasError());
            QVERIFY(macro.end());
            QVERIFY2(!macro.end() && !macro.abort(), "once only");
        }
        QCOMPARE(m_stack->text(1), u"text"_s);
        UndoMacro cleared(*m_stack, recordOf(u"m"_s));
        m_stack->clear();
        UndoMacro next(*m_stack, recordOf(u"m"_s));
        QVERIFY2(!cleared.end() && next.isOpen(), "not mistaken for the next one");
        m_stack.reset();
        QVERIFY(!next.isOpen());
    }

    void commandsDieBeforeTheirStack()
    {
        struct Mourner : ozm::UndoCommand
        {
            const UndoStack *stack = nullptr;
            QByteArray *className = nullptr;
            ~Mourner() override { *className = stack->metaObject()->className(); }
            ozm::Error doUndo() override { return {}; }
            ozm::Error doRedo() override { return {}; }
        };
        QByteArray className;
        auto *mourner = new Mourner;
        mourner->stack = m_stack.get();
        mourner->className = &className;
        QVERIFY(!m_stack->push(mourner).hasError());
        m_stack.reset();
        QCOMPARE(className, QByteArray("ozm::UndoStack"));
    }

    void loggerOfTheGuide()
    {
        guide::TrailLogger logger(u"jdoe"_s);
        m_stack->setLogging(&logger);
        QVERIFY(!push({.name = u"a"_s}).hasError());
        m_stack->undo();
        for (const int commands : {0, 1, 2}) {
            UndoMacro macro(*m_stack, recordOf(u"m"_s));
            for (int i = 0; i < commands; ++i)
                QVERIFY(!push({.name = u"b"_s}).hasError());
            QVERIFY(macro.end());
        }
        QStringList rows;
        for (qint64 id = 1; logger.records().contains(id); ++id) {
            const auto record = logger.records().value(id);
            rows.append(u"%1<%2"_s.arg(id).arg(record.parent) + (record.complete ? u""_s : u" open"_s));
        }
        QCOMPARE(rows, QStringList({u"1<0"_s, u"2<0"_s, u"3<0 open"_s, u"4<0 open"_s, u"5<0"_s, u"6<0"_s,
                                    u"7<6"_s, u"8<6"_s}));
        m_stack.reset();

        const auto read = [](const QString &path) {
            QFile file(QStringLiteral(OZM_SOURCE_DIR) + path);
            return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
        };
        const QString shown =
            read(u"/tests/db/GuideLogger.h"_s).section(u"// [begin]\n"_s, 1).section(u"// [end]"_s, 0, 0);
        QVERIFY(!shown.isEmpty());
        QVERIFY2(read(u"/docs/audit-trail.md"_s).contains(shown), "copy GuideLogger.h into the guide");
    }

    void eventsAreMacrosWithoutCommands()
    {
        const auto event = m_logger.logEvent({}, recordOf(u"export"_s));
        QCOMPARE(event->id(), 1);
        QCOMPARE(journal(), QStringList({u"log begin export in -"_s, u"commit 1 []"_s}));
        m_logger.fails = true;
        QVERIFY(!m_logger.logEvent(event, recordOf(u"export"_s)));
    }
};

QTEST_GUILESS_MAIN(TestUndoStack)
#include "tst_undostack.moc"
