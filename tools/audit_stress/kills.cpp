// Kills a program in the middle of appending, again and again: nothing it said was stored may be missing.

#include "Stress.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QProcess>
#include <QTemporaryDir>
#include <QTextStream>
#include <QThread>

#include <algorithm>
#include <cstdio>
#include <numeric>

using namespace Qt::StringLiterals;

namespace ozm::audit::stress {

namespace {

// A trail that grows on would be verified for longer and longer.
constexpr int kRunsPerTrail = 50;

void say(qint64 number)
{
    std::printf("%lld\n", static_cast<long long>(number));
    std::fflush(stdout);
}

int appendQueued(Store &store, int writer)
{
    Logger logger(store, {.user = {u"queued"_s}, .queued = true, .queueLength = 1000});
    qint64 said = 0;
    for (int serial = 0;; ++serial) {
        if (logger.record(draftOf(writer, serial)).hasError())
            return 1;
        const qint64 watermark = logger.watermark();
        if (watermark > said)
            say(logger.numberOf(-watermark));
        said = watermark;
    }
}

/// Starts a writer, kills it after a while, and returns the last number that it said was stored.
qint64 lastNumberSaid(const QStringList &arguments, int patienceUs)
{
    QProcess writer;
    writer.start(QCoreApplication::applicationFilePath(), arguments);
    QByteArray output;
    while (!output.contains('\n') && writer.waitForReadyRead(10'000))
        output += writer.readAllStandardOutput();
    QThread::usleep(static_cast<unsigned long>(patienceUs));
    writer.kill();
    writer.waitForFinished();
    output += writer.readAllStandardOutput();
    // A line that was cut off was not said.
    const QList<QByteArray> lines = output.left(output.lastIndexOf('\n') + 1).split('\n');
    return lines.size() < 2 ? 0 : lines.at(lines.size() - 2).toLongLong();
}

int checkAfter(const QString &address, int run, qint64 said)
{
    const auto store = Store::open(address, Store::Mode::Existing);
    if (!store)
        return fail(u"run %1: %2"_s.arg(run).arg(store.error().errorMessage()));
    const auto verified = store.value()->verify();
    if (!verified || !verified.value().isWhole())
        return fail(u"run %1: %2"_s.arg(run).arg(verified ? verified.value().toString()
                                                          : verified.error().errorMessage()));
    if (verified.value().size < said)
        return fail(u"run %1: %2 was said, but there are %3"_s.arg(run).arg(said).arg(verified.value().size));
    const auto last = said == 0 ? Result<Entry>(Entry()) : store.value()->entry(said);
    // The queue's last may be the session's own.
    const bool ownSession = last && (last.value().kind == Kind::Session || last.value().kind == Kind::Gap);
    if (said > 0 && !ownSession &&
        (!last || !last.value().record.contains("\"writer\":" + QByteArray::number(run) + ',')))
        return fail(u"run %1: entry %2 is not what was stored"_s.arg(run).arg(said));
    return 0;
}

} // namespace

int appendUntilKilled(const Arguments &arguments)
{
    auto store = Store::open(arguments.text(u"address"_s));
    if (!store)
        return fail(store.error().errorMessage());
    const int writer = arguments.number(u"writer"_s, 0);
    if (arguments.has(u"queued"_s))
        return appendQueued(*store.value(), writer);
    const qint64 milliseconds = arguments.number(u"seconds"_s, 0) * qint64(1000);
    QElapsedTimer time;
    time.start();
    QElapsedTimer wait;
    qint64 longestMs = 0;
    int serial = 0;
    for (; milliseconds == 0 || time.elapsed() < milliseconds; ++serial) {
        wait.start();
        const auto number = store.value()->append({draftOf(writer, serial)});
        if (!number)
            return fail(number.error().errorMessage());
        if (milliseconds == 0)
            say(number.value());
        longestMs = qMax(longestMs, wait.elapsed());
    }
    say(serial);
    say(longestMs);
    return 0;
}

int kills(const Arguments &arguments)
{
    const int count = arguments.number(u"count"_s, 20);
    const QTemporaryDir folder(arguments.text(u"folder"_s, u"/tmp/audit-kills-XXXXXX"_s));
    const QString given = arguments.text(u"address"_s, u"sqlite"_s);
    std::mt19937 random(42);
    int failures = 0;
    qint64 entries = 0;
    qint64 before = 0;
    for (int run = 1; run <= count; ++run) {
        const QString name = QString::number(run / kRunsPerTrail);
        const QString address = given.contains(u"trail="_s)
                                    ? given + name
                                    : u"sqlite:"_s + folder.filePath(name + u".sqlite"_s) +
                                          (given == "shared"_L1 ? u"?sharing=processes"_s : QString());
        if (run % kRunsPerTrail == 0)
            before = 0;
        QStringList writer{u"append"_s, u"--address"_s, address, u"--writer"_s, QString::number(run)};
        if (arguments.has(u"queued"_s))
            writer.append(u"--queued"_s);
        const qint64 said = lastNumberSaid(writer, int(random() % 20'000));
        failures += checkAfter(address, run, said);
        entries += qMax<qint64>(0, said - before);
        before = said;
    }
    QTextStream(stdout) << count << " kills, about " << entries << " entries said to be stored, " << failures
                        << " failures" << Qt::endl;
    return failures;
}

int processes(const Arguments &arguments)
{
    const int count = arguments.number(u"count"_s, 16);
    const QTemporaryDir folder;
    const QString address = arguments.text(u"address"_s, u"sqlite:"_s + folder.filePath(u"trail.sqlite"_s) +
                                                             u"?sharing=processes"_s);
    if (auto made = Store::open(address); !made)
        return fail(made.error().errorMessage());
    std::vector<std::unique_ptr<QProcess>> writers;
    for (int i = 0; i < count; ++i) {
        writers.push_back(std::make_unique<QProcess>());
        writers.back()->start(QCoreApplication::applicationFilePath(),
                              {u"append"_s, u"--address"_s, address, u"--writer"_s, QString::number(i),
                               u"--seconds"_s, arguments.text(u"seconds"_s, u"2"_s)});
    }
    int failures = 0;
    QList<qint64> said;
    qint64 longestMs = 0;
    // Meanwhile somebody verifies: writing is no damage.
    const auto store = Store::open(address, Store::Mode::Existing);
    while (writers.front()->state() != QProcess::NotRunning && !writers.front()->waitForFinished(500)) {
        const auto verified = store.value()->verify();
        if (verified && !verified.value().isWhole())
            failures += fail(u"a false alarm: "_s + verified.value().toString());
    }
    for (const auto &writer : writers) {
        writer->waitForFinished(-1);
        const QByteArray output = writer->readAllStandardOutput().trimmed();
        said.append(output.split('\n').value(0).toLongLong());
        longestMs = qMax(longestMs, output.split('\n').value(1).toLongLong());
        if (writer->exitCode() != 0)
            failures += fail(QString::fromUtf8(output));
    }
    const qint64 all = std::accumulate(said.cbegin(), said.cend(), qint64(0));
    const auto verified = store.value()->verify();
    if (!verified || !verified.value().isWhole() || verified.value().size != all)
        failures += fail(verified ? verified.value().toString() : verified.error().errorMessage());
    const auto [fewest, most] = std::ranges::minmax(said);
    QTextStream(stdout) << count << " writers, " << all << " entries, " << fewest << " to " << most
                        << " each, longest wait " << longestMs << " ms, " << failures << " failures"
                        << Qt::endl;
    return failures;
}

} // namespace ozm::audit::stress
