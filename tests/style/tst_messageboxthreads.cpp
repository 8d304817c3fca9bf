#include "BoxDriver.h"
#include "support/StrictTest.h"

#include <ozm_common_core_mini/AsyncUtils.h>
#include <ozm_widgets/OZMStyle.h>

#include <QApplication>
#include <QEventLoop>
#include <QRandomGenerator>
#include <QScopeGuard>
#include <QThread>
#include <QTimer>

#include <array>
#include <atomic>
#include <memory>
#include <semaphore>
#include <vector>

using namespace Qt::StringLiterals;
using namespace ozm::test;
using ozm::AsyncUtils;
using ozm::OzmMessageBox;
using Box = QMessageBox;

namespace {

constexpr auto kSignal = ozm::OzmMessageBoxSignal(1234);
constexpr int kWorkers = 8;
constexpr int kBoxesEach = 1000;

/// A thread that runs @p work; the test's own thread goes on with its events until it has ended.
class Worker
{
public:
    explicit Worker(const std::function<void()> &work)
        : m_thread(QThread::create(work))
    {
        m_thread->setObjectName(u"worker"_s);
        m_thread->start();
    }
    ~Worker()
    {
        if (!ended())
            QTest::qFail("the worker hangs", __FILE__, __LINE__);
        m_thread->wait();
    }
    Q_DISABLE_COPY_MOVE(Worker)

    bool ended()
    {
        QEventLoop loop;
        QObject::connect(m_thread.get(), &QThread::finished, &loop, &QEventLoop::quit);
        QTimer::singleShot(60000, &loop, &QEventLoop::quit);
        if (!m_thread->isFinished())
            loop.exec();
        return m_thread->isFinished();
    }

private:
    const std::unique_ptr<QThread> m_thread;
};

/// A thread with an event loop, and an object that lives there.
struct Loop
{
    Loop()
    {
        object.moveToThread(&thread);
        thread.start();
    }
    ~Loop()
    {
        thread.quit();
        thread.wait();
    }

    QObject object;
    QThread thread;
};

/// A thread that runs no event loop but waits until let go, then does @p work; and an object that lives
/// there.
struct Stuck
{
    explicit Stuck(const std::function<void(Stuck &)> &work)
        : thread(QThread::create([this, work] {
            go.acquire();
            work(*this);
        }))
        , object(std::make_unique<QObject>())
    {
        object->moveToThread(thread.get());
        thread->start();
    }
    ~Stuck() { thread->wait(); }

    std::binary_semaphore go{0};
    const std::unique_ptr<QThread> thread;
    std::unique_ptr<QObject> object;
};

/// Tells when a caller has handed its work over and waits, which it says in a warning.
class WaitNoticed
{
public:
    WaitNoticed() { s_before = qInstallMessageHandler(handle); }
    ~WaitNoticed() { qInstallMessageHandler(s_before); }
    Q_DISABLE_COPY_MOVE(WaitNoticed)

    /// The warning, as soon as it is there.
    static QString text()
    {
        s_noticed.acquire();
        return s_text;
    }

private:
    static void handle(QtMsgType type, const QMessageLogContext &context, const QString &text)
    {
        if (QLatin1StringView(context.category) != "ozm.async"_L1)
            return s_before(type, context, text);
        s_text = text;
        s_noticed.release();
    }

    static inline QtMessageHandler s_before = nullptr;
    static inline QString s_text;
    static inline std::binary_semaphore s_noticed{0};
};

using std::chrono::milliseconds;

/// Parents that die now and then, and are made anew; the pointers that workers hold are often dead.
class Nursery
{
public:
    Nursery()
    {
        for (int i = 0; i < static_cast<int>(m_parents.size()); ++i)
            replace(i);
    }
    ~Nursery() { qDeleteAll(m_parents); }
    Q_DISABLE_COPY_MOVE(Nursery)

    QWidget *any() const { return m_parents.at(pick()); }
    void replaceOne() { replace(static_cast<int>(pick())); }

private:
    static std::size_t pick() { return QRandomGenerator::global()->bounded(4); }
    void replace(int index) { delete m_parents.at(static_cast<std::size_t>(index)).exchange(new QWidget); }

    std::array<std::atomic<QWidget *>, 4> m_parents{};
};

} // namespace

class TestMessageBoxThreads : public ozm::test::StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void valuesComeBack()
    {
        Loop loop;
        QThread *ranOn = nullptr;
        const auto number = AsyncUtils::executeInThread<int>(&loop.object, [&] {
            ranOn = QThread::currentThread();
            return 7;
        });
        QCOMPARE(number.value(), 7);
        QCOMPARE(ranOn, &loop.thread);

        auto moved = AsyncUtils::executeInThread<std::unique_ptr<int>>(
            &loop.object, [] { return std::make_unique<int>(8); });
        QCOMPARE(*std::move(moved).value(), 8);
        QVERIFY(!AsyncUtils::executeInThread<void>(&loop.object, [&] { ranOn = nullptr; }).hasError());
        QVERIFY(!ranOn);
        // Here it is simply called; nobody takes anything out of this thread's queue meanwhile.
        QCOMPARE(AsyncUtils::executeInThread<int>(this, [] { return 9; }).value(), 9);

        const auto nowhere = AsyncUtils::executeInThread<int>(nullptr, [] { return 7; });
        QCOMPARE(nowhere.error().errorMessage(), u"Thread context object cannot be null."_s);
        QCOMPARE(nowhere.error().places().size(), 1);
    }

    // Qt's own blocking call says that all went well when the receiver dies, and waits for ever in the others.
    void workThatNeverRuns_data()
    {
        QTest::addColumn<QString>("end");
        for (const char *end : {"context dies", "thread ends", "thread has ended"})
            QTest::newRow(end) << QString::fromLatin1(end);
    }

    void workThatNeverRuns()
    {
        QFETCH(const QString, end);
        const WaitNoticed noticed;
        std::binary_semaphore checked{0};
        Stuck stuck([&](Stuck &self) {
            if (end == u"context dies") {
                self.object.reset();
                checked.acquire();
            }
        });
        if (end == u"thread has ended") {
            stuck.go.release();
            stuck.thread->wait();
        }
        std::atomic<bool> ran = false;
        QString error;
        {
            const Worker worker([&] {
                const auto result = AsyncUtils::executeInThread<int>(
                    stuck.object.get(), [&] { return ran = true; }, milliseconds(0));
                error = result.hasError() ? result.error().errorMessage() : QString();
            });
            if (end != u"thread has ended") {
                QVERIFY(WaitNoticed::text().startsWith("Thread \"worker\" ("_L1));
                stuck.go.release();
            }
        }
        checked.release();
        QVERIFY(!ran);
        QCOMPARE(error, u"Execute code in thread failed."_s);
    }

    void boxOpensOnTheGuiThread()
    {
        QWidget parent;
        for (QWidget *over : {&parent, static_cast<QWidget *>(nullptr)}) {
            const BoxDriver driver([&](OzmMessageBox *box) {
                QCOMPARE(QThread::currentThread(), qApp->thread());
                QCOMPARE(box->thread(), qApp->thread());
                QCOMPARE(box->parentWidget(), over);
                press(box, Box::No);
            });
            int answer = 0;
            {
                const Worker worker([&] { answer = OZMStyle::question(over, kSignal, u"T"_s, "text"); });
            }
            QCOMPARE(answer, int(Box::No));
            QCOMPARE(driver.opened(), 1);
        }
    }

    // The parent is gone by the time the box could be shown: no box, and no answer that anyone might take for
    // one.
    void deadParent()
    {
        auto parent = std::make_unique<QWidget>();
        QWidget *dead = parent.get();
        parent.reset();
        const BoxDriver driver([](OzmMessageBox *box) { box->done(0); });
        QList<int> answers;
        {
            const Worker worker([&] {
                const auto yesNo = Box::Yes | Box::No;
                answers = {OZMStyle::critical(dead, kSignal, u"T"_s, "text", yesNo, Box::No),
                           OZMStyle::warning(dead, kSignal, u"T"_s, "text", yesNo, Box::No),
                           OZMStyle::information(dead, kSignal, u"T"_s, "text", yesNo, Box::No),
                           OZMStyle::question(dead, kSignal, u"T"_s, "text", yesNo, Box::No)};
            });
        }
        QCOMPARE(answers, (QList<int>{Box::No, Box::No, Box::No, Box::Cancel}));
        QCOMPARE(driver.opened(), 0);
    }

    void openFromAWorker()
    {
        Loop loop;
        const BoxDriver driver([](OzmMessageBox *box) { press(box, Box::Yes); });
        std::atomic<int> answer = 0;
        QThread *answeredOn = nullptr;
        QMetaObject::invokeMethod(&loop.object, [&] {
            OZMStyle::openQuestion(nullptr, kSignal, u"T"_s, "text", &loop.object,
                                   [&](Box::StandardButton given) {
                                       answeredOn = QThread::currentThread();
                                       answer = given;
                                   });
        });
        QTRY_COMPARE(answer.load(), int(Box::Yes));
        QCOMPARE(answeredOn, &loop.thread);

        // Nobody is left to be told.
        auto context = std::make_unique<QObject>();
        const BoxDriver killer([&](OzmMessageBox *) { context.reset(); });
        OZMStyle::openQuestion(nullptr, kSignal, u"T"_s, "text", context.get(),
                               [](Box::StandardButton) { QFAIL("told a context that is gone"); });
        QTRY_VERIFY(!context);
        QCoreApplication::processEvents();
    }

    void applicationEnds_data()
    {
        QTest::addColumn<bool>("asksAfter");
        QTest::addColumn<bool>("runsLoop");
        QTest::newRow("asked as the event loop ends") << false << false;
        QTest::newRow("asked when it has ended") << true << false;
        QTest::newRow("asked when one has run after it") << true << true;
    }

    // The GUI thread waits for its workers when its loop has ended; nobody takes their boxes any more.
    void applicationEnds()
    {
        QFETCH(const bool, asksAfter);
        QFETCH(const bool, runsLoop);
        // Boxes are taken again from the next loop on, which other tests do not have running from the start.
        const auto nextLoop = qScopeGuard([] {
            QEventLoop loop;
            QMetaObject::invokeMethod(&loop, &QEventLoop::quit, Qt::QueuedConnection);
            loop.exec();
        });
        const BoxDriver driver([](OzmMessageBox *box) { box->done(0); });
        QWidget parent;
        Loop loop;
        std::weak_ptr<int> captured;
        QList<int> answers;
        std::atomic<int> opened = 0;
        const std::unique_ptr<QThread> worker(QThread::create([&] {
            const auto capture = std::make_shared<int>();
            captured = capture;
            // Nobody can be told of this one, and somebody of the next.
            OZMStyle::openWarning(&parent, kSignal, u"T"_s, "text", this, [capture](Box::StandardButton) {});
            OZMStyle::openWarning(
                &parent, kSignal, u"T"_s, "text", &loop.object,
                [&](Box::StandardButton given) { opened = given; }, Box::Yes | Box::No, Box::No);
            answers = {OZMStyle::question(&parent, kSignal, u"T"_s, "text"),
                       OZMStyle::warning(nullptr, kSignal, u"T"_s, "text", Box::Yes | Box::No, Box::No)};
        }));
        QTimer::singleShot(0, this, [&] {
            if (!asksAfter)
                worker->start();
            QCoreApplication::quit();
        });
        const QObject end;
        connect(qApp, &QCoreApplication::aboutToQuit, &end, [runsLoop] {
            QEventLoop own;
            QTimer::singleShot(0, &own, &QEventLoop::quit);
            if (runsLoop)
                own.exec();
        });
        QCoreApplication::exec();
        if (asksAfter)
            worker->start();
        QVERIFY2(worker->wait(60000), "the worker waits for ever");
        QCOMPARE(answers, (QList<int>{Box::Cancel, Box::No}));
        QVERIFY2(captured.expired(), "the callback is kept");
        QTRY_COMPARE(opened.load(), int(Box::No));
        QCOMPARE(driver.opened(), 0);
    }

    void manyWorkersWithDyingParents()
    {
        Nursery nursery;
        // Each box is answered with the button whose number it carries; anything else that comes back must be
        // what the box of a dead parent gives.
        int pressed = 0;
        int killed = 0;
        const BoxDriver driver([&](OzmMessageBox *box) {
            const QPointer<OzmMessageBox> guard(box);
            if (QRandomGenerator::global()->bounded(8) == 0)
                nursery.replaceOne();
            if (!guard) {
                ++killed;
                return;
            }
            press(box, static_cast<Box::StandardButton>(box->text().toInt()));
            ++pressed;
        });

        std::atomic<int> answered = 0;
        std::atomic<int> unshown = 0;
        std::atomic<int> invented = 0;
        {
            std::vector<std::unique_ptr<Worker>> workers;
            workers.reserve(kWorkers);
            for (int i = 0; i < kWorkers; ++i) {
                workers.push_back(std::make_unique<Worker>([&, i] {
                    for (int n = 0; n < kBoxesEach; ++n) {
                        const auto wanted = (i + n) % 2 ? Box::Yes : Box::No;
                        const auto answer =
                            OZMStyle::question(nursery.any(), kSignal, u"T"_s, QString::number(wanted));
                        (answer == wanted ? answered : answer == Box::Cancel ? unshown : invented) += 1;
                    }
                }));
            }
            workers.clear();
        }
        QCOMPARE(invented, 0);
        QCOMPARE(answered + unshown, kWorkers * kBoxesEach);
        QCOMPARE(answered, pressed);
        QVERIFY2(killed > 0, "no parent died under an open box");
    }
};

QTEST_MAIN(TestMessageBoxThreads)
#include "tst_messageboxthreads.moc"
