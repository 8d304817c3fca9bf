// The logger on an undo stack: fail closed, durable or queued.

#include "StoreFixture.h"

#include "../../audit/src/store/MemoryBackend.h"

#include <ozm_audit/Logger.h>
#include <ozm_widgets/db/common/UndoCommand.h>
#include <ozm_widgets/db/common/UndoStack.h>

#include <atomic>

using namespace ozm::test;
using ozm::Error;
using ozm::ErrorCode;
using ozm::OperationLogItemData;
using ozm::OperationLogItemType;
using Subject = ozm::OperationLogItemSubject;

namespace {

OperationLogItemData data(int value)
{
    return {OperationLogItemType::Set,
            Subject(Subject::Type::Label, {{u"Name"_s, u"T12"_s}}, {}),
            {u"Charge"_s},
            value};
}

class SetCell : public ozm::UndoCommand
{
public:
    SetCell(int &cell, int value, const Error &outcome = {})
        : UndoCommand(nullptr)
        , m_cell(cell)
        , m_value(value)
        , m_old(cell)
        , m_outcome(outcome)
    {
        setLogData(data(value));
    }

protected:
    Error doRedo() override
    {
        if (!m_outcome.hasError())
            m_cell = m_value;
        return m_outcome;
    }
    Error doUndo() override
    {
        m_cell = m_old;
        return {};
    }

private:
    int &m_cell;
    const int m_value;
    const int m_old;
    const Error m_outcome;
};

/// A store that fails for as long as it is told to.
class FailingBackend : public MemoryBackend
{
public:
    FailingBackend()
        : MemoryBackend(u"failing"_s)
    {}
    [[nodiscard]] ozm::Result<qint64> append(const QList<NewEntry> &entries) override
    {
        if (fails)
            return Error(ErrorCode::FileAccess, u"The disk is full."_s);
        return MemoryBackend::append(entries);
    }
    std::atomic<bool> fails = false;
};

class SetClock : public Clock
{
public:
    [[nodiscard]] qint64 wallMs() override { return wall; }
    [[nodiscard]] qint64 monotonicUs() override { return monotonic; }
    qint64 wall = 1'700'000'000'000;
    qint64 monotonic = 5'000'000;
};

class Reasons : public ReasonPolicy
{
public:
    [[nodiscard]] Demand demand(const OperationLogItemData &of) const override
    {
        return of.attributes().contains(u"Charge"_s) ? asked : Demand::None;
    }
    [[nodiscard]] QStringList choices(const OperationLogItemData &) const override { return {u"typo"_s}; }
    [[nodiscard]] QString reason(const OperationLogItemData &) override
    {
        ++questions;
        return given;
    }
    Demand asked = Demand::None;
    QString given;
    int questions = 0;
};

/// "kind context outcome <parent" of all entries but those of the session.
QStringList trailOf(Store &store)
{
    QStringList lines;
    const QList<Entry> entries = store.find({.pageSize = 1000}).value();
    for (const Entry &entry : entries) {
        if (entry.kind == Kind::Session)
            continue;
        QString line = kindToString(entry.kind);
        if (!entry.context.isEmpty())
            line += u' ' + entry.context;
        if (entry.outcomeCode != 0)
            line += u" failed"_s;
        if (entry.parent != 0)
            line += u" <%1"_s.arg(entry.parent);
        lines.append(line);
    }
    return lines;
}

} // namespace

class TestAuditLogger : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void recordsWhatHappens_data()
    {
        QTest::addColumn<bool>("queued");
        QTest::newRow("durable") << false;
        QTest::newRow("queued") << true;
    }
    void recordsWhatHappens()
    {
        QFETCH(bool, queued);
        auto store = Store::open(u"memory:"_s);
        int cell = 0;
        {
            ozm::UndoStack stack;
            Logger logger(*store.value(),
                          {.user = {u"jdoe"_s, u"Jane Doe"_s, u"analyst"_s}, .queued = queued});
            stack.setLogging(&logger);
            QVERIFY(!logger.push(stack, new SetCell(cell, 3)).hasError()); // 2
            QVERIFY(!logger.undo(stack).hasError());                       // 3
            QVERIFY(!logger.redo(stack).hasError());                       // 4
            QVERIFY(!stack.push(new SetCell(cell, 4)).hasError());         // 5, recorded afterwards
            expectWarning(u"Error in \"New\" command:"_s);
            QVERIFY(logger.push(stack, new SetCell(cell, 5, Error(ErrorCode::Failed, u"no"_s)))
                        .hasError()); // 6, 7

            auto *first = new SetCell(cell, 6);
            auto *second = new SetCell(cell, 7);
            using Context = ozm::OperationLogItemUndoContext;
            QVERIFY(!logger.prepareMacro(data(67), {{first, Context::New}, {second, Context::New}})
                         .hasError()); // 8-10
            stack.beginMacro(data(67), u"both"_s);
            QVERIFY(!stack.push(first).hasError());
            QVERIFY(!stack.push(second).hasError());
            QVERIFY(stack.endMacro()); // 11
            QVERIFY(!logger.settle().hasError());
            QVERIFY(!logger.undo(stack).hasError()); // 12, 13

            SetCell refused(cell, 9);
            QVERIFY(!logger.recordRefused({&refused, Context::New}, Error(ErrorCode::NotAllowed, u"x"_s))
                         .hasError());
            SetCell other(cell, 10);
            QVERIFY(!logger.prepare({{&refused, Context::New}, {&other, Context::New}}).hasError()); // 15, 16
            const auto item = logger.logCommand({}, other, Context::New);
            QVERIFY(!logger.settle().hasError());             // 17: the first did not run
            QVERIFY(!logger.recordEvent(data(0)).hasError()); // 18
            QVERIFY(logger.waitForDurable());
            QCOMPARE(logger.numberOf(item->id()), 16);
            QCOMPARE(logger.watermark(), logger.handedOver());
        }
        QCOMPARE(cell, 4);
        QCOMPARE(trailOf(*store.value()),
                 (QStringList{u"command New"_s, u"command Undo"_s, u"command Redo"_s, u"command New"_s,
                              u"command New"_s, u"command New failed"_s, u"macro New"_s, u"command New <8"_s,
                              u"command New <8"_s, u"commit <8"_s, u"command Undo"_s, u"command Undo"_s,
                              u"command New failed"_s, u"command New"_s, u"command New"_s,
                              u"command New failed"_s, u"event"_s}));
        const Entry entry = store.value()->entry(2).value();
        QCOMPARE(entry.user.name, u"Jane Doe"_s);
        QCOMPARE(entry.subjectKey, u"{\"Name\":\"T12\"}"_s);
        QVERIFY(entry.text().startsWith(u"Set Label"_s));
        QVERIFY(!entry.session.isEmpty() && !entry.zone.isEmpty());
        QCOMPARE(store.value()->find({.kinds = {Kind::Session}}).value().size(), 2);
        QVERIFY(store.value()->verify().value().isWhole());
    }

    void doesNothingThatCannotBeRecorded_data() { recordsWhatHappens_data(); }
    void doesNothingThatCannotBeRecorded()
    {
        QFETCH(bool, queued);
        auto made = std::make_unique<FailingBackend>();
        FailingBackend &backend = *made;
        Store store(std::move(made));
        int cell = 0;
        ozm::UndoStack stack;
        Logger logger(store, {.user = {u"jdoe"_s}, .queued = queued});
        stack.setLogging(&logger);
        QVERIFY(logger.waitForDurable());
        backend.fails = true;
        Error error = logger.push(stack, new SetCell(cell, 1));
        if (queued) {
            // The first is taken; then it is known that nothing gets through.
            QVERIFY(!error.hasError());
            QVERIFY(!logger.waitForDurable());
            error = logger.push(stack, new SetCell(cell, 2));
            QCOMPARE(cell, 1);
        } else {
            QCOMPARE(cell, 0);
        }
        QCOMPARE(error.errorMessage(), u"The disk is full."_s);
        QCOMPARE(logger.error().errorMessage(), u"The disk is full."_s);
        backend.fails = false;
        // The queue tries again by itself.
        QTRY_VERIFY(!queued || !logger.error().hasError());
        QVERIFY(!logger.push(stack, new SetCell(cell, 3)).hasError());
        const auto item = logger.logEvent({}, data(4));
        QVERIFY(logger.waitForDurable());
        QCOMPARE(trailOf(store).size(), queued ? 3 : 2);
        QVERIFY(logger.isDurable(*item));
        QCOMPARE(logger.numberOf(item->id()), store.size().value());
    }

    void asksForReasons_data()
    {
        QTest::addColumn<int>("demand");
        QTest::addColumn<QString>("given");
        QTest::addColumn<bool>("made");
        QTest::newRow("none") << int(ReasonPolicy::Demand::None) << QString() << true;
        QTest::newRow("optional") << int(ReasonPolicy::Demand::Optional) << QString() << true;
        QTest::newRow("required, missing") << int(ReasonPolicy::Demand::Required) << u"  "_s << false;
        QTest::newRow("required, given") << int(ReasonPolicy::Demand::Required) << u"because"_s << true;
        QTest::newRow("from list, not in it") << int(ReasonPolicy::Demand::FromList) << u"because"_s << false;
        QTest::newRow("from list") << int(ReasonPolicy::Demand::FromList) << u"typo"_s << true;
    }
    void asksForReasons()
    {
        QFETCH(int, demand);
        QFETCH(QString, given);
        QFETCH(bool, made);
        Reasons reasons;
        reasons.asked = ReasonPolicy::Demand(demand);
        reasons.given = given;
        auto store = Store::open(u"memory:"_s);
        int cell = 0;
        ozm::UndoStack stack;
        Logger logger(*store.value(), {.user = {u"jdoe"_s}, .reasons = &reasons});
        stack.setLogging(&logger);
        QCOMPARE(!logger.push(stack, new SetCell(cell, 1)).hasError(), made);
        QCOMPARE(cell, made ? 1 : 0);
        QCOMPARE(reasons.questions, demand == 0 ? 0 : 1);
        const Entry entry = store.value()->entry(2).value();
        QCOMPARE(entry.outcomeCode == 0, made);
        QCOMPARE(entry.reason, made ? given.trimmed() : QString());
        // A macro asks once.
        reasons.questions = 0;
        SetCell a(cell, 1);
        SetCell b(cell, 2);
        using Context = ozm::OperationLogItemUndoContext;
        QCOMPARE(!logger.prepareMacro(data(1), {{&a, Context::New}, {&b, Context::New}}).hasError(), made);
        QCOMPARE(reasons.questions, demand == 0 ? 0 : 1);
    }

    void recordsClockJumpsAndLostSessions()
    {
        auto store = Store::open(u"memory:"_s);
        SetClock clock;
        {
            Logger lost(*store.value(), {.user = {u"jdoe"_s}, .clock = &clock});
            // As a crash leaves it: no end is stored.
            auto copy = Store::open(u"memory:"_s);
            QVERIFY(!lost.recordEvent(data(1)).hasError());
            clock.wall += 1'000;
            clock.monotonic += 1'000'000;
            QVERIFY(!lost.recordEvent(data(2)).hasError());
            clock.wall -= 3'600'000;
            QVERIFY(!lost.recordEvent(data(3)).hasError());
            Logger next(*store.value(), {.user = {u"mroe"_s}, .clock = &clock});
        }
        QStringList kinds = trailOf(*store.value());
        QCOMPARE(kinds, (QStringList{u"event"_s, u"event"_s, u"clock"_s, u"event"_s, u"gap"_s}));
        QCOMPARE(store.value()->find({.kinds = {Kind::Clock}}).value().constFirst().record,
                 QByteArray(R"({"event":"jump","milliseconds":-3600000})"));
        QVERIFY(store.value()->verify().value().isWhole());
    }

    void putsCheckpointsOutside()
    {
        const QTemporaryDir folder;
        auto store = Store::open(u"memory:"_s);
        {
            Logger logger(
                *store.value(),
                {.user = {u"jdoe"_s}, .checkpointSinks = {folderSink(folder.path())}, .checkpointEvery = 10});
            for (int i = 0; i < 24; ++i)
                QVERIFY(!logger.recordEvent(data(i)).hasError());
        }
        const auto outside = Checkpoint::inFolder(folder.path());
        VERIFY_RESULT(outside);
        QCOMPARE(outside.value().size(), 3);
        QCOMPARE(store.value()->verify(outside.value()).value().anchored, store.value()->size().value());
    }

    /// Many records through a short queue, while others read: nothing is lost, dropped or reordered.
    void queuesWithoutLoss()
    {
        auto store = Store::open(u"memory:"_s);
        constexpr int kCount = 5000;
        {
            constexpr int kLength = 600; // Longer than what is written at once.
            Logger logger(*store.value(), {.user = {u"jdoe"_s}, .queued = true, .queueLength = kLength});
            for (int i = 0; i < kCount; ++i) {
                QVERIFY(!logger.recordEvent(data(i)).hasError());
                const qint64 handedOver = logger.handedOver();
                QVERIFY(handedOver - logger.watermark() <= kLength);
                if (i % 500 == 0)
                    QVERIFY(store.value()->verify().value().isWhole());
            }
            QVERIFY(logger.watermark() <= logger.handedOver());
        }
        const QList<Entry> entries =
            store.value()->find({.kinds = {Kind::Event}, .pageSize = kCount + 1}).value();
        QCOMPARE(entries.size(), kCount);
        for (int i = 0; i < kCount; ++i)
            QCOMPARE(OperationLogItemData(entries.at(i).record).value().toInt(), i);
    }
};

QTEST_GUILESS_MAIN(TestAuditLogger)
#include "tst_auditlogger.moc"
