// The audit store beside the least that its promises cost: a durable insert of the same bytes, a bare push, the
// system's own sum over the same bytes. And a long trail beside a short one; OZM_AUDIT_ENTRIES says how long.

#include "AuditedEdit.h"

#include <ozm_audit/Logger.h>
#include <ozm_widgets/db/common/UndoStack.h>

#include <benchmark/benchmark.h>

#include <QCoreApplication>
#include <QFile>
#include <QLoggingCategory>
#include <QProcess>
#include <QTemporaryDir>
#include <QUndoStack>

#include <sqlite3.h>

using namespace Qt::StringLiterals;
using namespace ozm::audit;

namespace {

constexpr int kShort = 1000;
constexpr int kVerified = 100'000;

qint64 longTrail()
{
    constexpr int kLong = 100'000;
    if (!qEnvironmentVariableIsSet("OZM_AUDIT_ENTRIES"))
        return kLong;
    return qMax(kShort, qEnvironmentVariableIntValue("OZM_AUDIT_ENTRIES"));
}

/// Each hundredth entry is of a subject's own history.
Draft draftOf(qint64 serial, qint64 count)
{
    Draft draft;
    draft.kind = Kind::Command;
    draft.user = {u"jdoe"_s, u"Jane Doe"_s, u"analyst"_s};
    draft.session = u"0123456789abcdef0123456789abcdef"_s;
    draft.program = u"bench"_s;
    draft.context = u"New"_s;
    draft.subjectType = u"Label"_s;
    draft.subjectKey = u"{\"Name\":\"T%1\"}"_s.arg(serial % qMax<qint64>(1, count / 100));
    draft.attributes = {u"Charge"_s};
    draft.record = R"({"attributes":["Charge"],"oldValue":2,"subject":{"key":{"Name":"T12"},"type":"Label"},)"
                   R"("type":"Set","undoContext":"New","value":3,"version":1})";
    return draft;
}

/// One that is in no history that is read.
Draft loneDraft()
{
    Draft draft = draftOf(1, kShort);
    draft.subjectType = u"Other"_s;
    return draft;
}

/// Trails of both lengths, and one to verify with its bytes in a file; made when they are needed.
class Trails
{
public:
    static Trails &instance()
    {
        static Trails trails;
        return trails;
    }
    [[nodiscard]] QString path(qint64 count)
    {
        const QString path = m_folder.filePath(u"%1.sqlite"_s.arg(count));
        if (!QFile::exists(path))
            make(path, count, {});
        return path;
    }
    /// One that no other benchmark appends to.
    [[nodiscard]] QString verified()
    {
        const QString path = m_folder.filePath(u"verified.sqlite"_s);
        if (!QFile::exists(path))
            make(path, kVerified, bytes());
        return path;
    }
    [[nodiscard]] QString bytes() const { return m_folder.filePath(u"bytes"_s); }

private:
    static void make(const QString &path, qint64 count, const QString &bytes)
    {
        constexpr qint64 kBatch = 10'000;
        auto store = Store::open(path);
        QList<Draft> drafts;
        for (qint64 i = 1; i <= count; ++i) {
            drafts.append(draftOf(i, count));
            if (drafts.size() == kBatch || i == count) {
                if (!store.value()->append(drafts))
                    qFatal("not appended");
                drafts.clear();
            }
        }
        if (bytes.isEmpty())
            return;
        QFile file(bytes);
        if (!file.open(QIODevice::WriteOnly))
            qFatal("not written");
        const auto error = store.value()->forEach(
            1, count, [&file](const Entry &entry) { return file.write(entry.bytes) > 0; });
        if (error.hasError())
            qFatal("not read");
    }
    QTemporaryDir m_folder;
};

[[gnu::noinline]] void appendOne(Store &store, const Draft &draft)
{
    if (!store.append({draft}))
        qFatal("not appended");
}

[[gnu::noinline]] void insertOne(sqlite3_stmt *insert, const QByteArray &bytes)
{
    sqlite3_bind_blob(insert, 1, bytes.constData(), int(bytes.size()), SQLITE_STATIC);
    if (sqlite3_step(insert) != SQLITE_DONE)
        qFatal("not inserted");
    sqlite3_reset(insert);
}

/// An entry, durable when the call returns: its bytes are made and hashed, the row and the head are stored.
void audit_append(benchmark::State &state)
{
    auto store = Store::open(Trails::instance().path(state.range(0) == 0 ? kShort : longTrail()));
    const Draft draft = loneDraft();
    for (auto _ : state)
        appendOne(*store.value(), draft);
}

/// The same bytes, given, durable in the same way: a row, and SQLite's own note of the last number.
void audit_insert_durably(benchmark::State &state)
{
    const QTemporaryDir folder;
    sqlite3 *handle = nullptr;
    sqlite3_open(folder.filePath(u"plain.sqlite"_s).toUtf8().constData(), &handle);
    sqlite3_exec(handle,
                 "PRAGMA locking_mode=EXCLUSIVE; PRAGMA journal_mode=WAL; PRAGMA synchronous=FULL; "
                 "CREATE TABLE records (sequence INTEGER PRIMARY KEY AUTOINCREMENT, record BLOB)",
                 nullptr, nullptr, nullptr);
    sqlite3_stmt *insert = nullptr;
    sqlite3_prepare_v2(handle, "INSERT INTO records (record) VALUES (?)", -1, &insert, nullptr);
    auto memory = Store::open(u"memory:"_s);
    (void)memory.value()->append({draftOf(1, kShort)});
    const QByteArray bytes = memory.value()->entry(1).value().bytes;
    for (auto _ : state)
        insertOne(insert, bytes);
    sqlite3_finalize(insert);
    sqlite3_close(handle);
}

void audit_queued_push(benchmark::State &state)
{
    const QTemporaryDir folder;
    auto store = Store::open(folder.filePath(u"trail.sqlite"_s));
    Logger logger(*store.value(), {.user = {u"jdoe"_s}, .queued = true, .queueLength = 10'000'000});
    QVariant cell = 0;
    for (auto _ : state) {
        ozm::UndoStack stack;
        stack.setLogging(&logger);
        for (int i = 0; i < state.range(0); ++i)
            (void)stack.push(new bench::AuditedSet(&cell, i));
        state.PauseTiming();
        (void)logger.waitForDurable();
        stack.clear();
        state.ResumeTiming();
    }
}

void audit_bare_push(benchmark::State &state)
{
    for (auto _ : state) {
        QUndoStack stack;
        QVariant cell = 0;
        for (int i = 0; i < state.range(0); ++i)
            stack.push(new bench::BareSet(&cell, i));
        state.PauseTiming();
        stack.clear();
        state.ResumeTiming();
    }
}

void audit_verify(benchmark::State &state)
{
    const auto store = Store::open(Trails::instance().verified());
    for (auto _ : state) {
        if (!store.value()->verify().value().isWhole())
            qFatal("damaged");
    }
}

void audit_sha256sum(benchmark::State &state)
{
    (void)Trails::instance().verified();
    const QString bytes = Trails::instance().bytes();
    for (auto _ : state) {
        QProcess sum;
        sum.start(u"sha256sum"_s, {bytes});
        if (!sum.waitForFinished(-1) || sum.exitCode() != 0)
            qFatal("no sum");
    }
}

void audit_open(benchmark::State &state)
{
    const QString path = Trails::instance().path(state.range(0) == 0 ? kShort : longTrail());
    for (auto _ : state) {
        if (!Store::open(path))
            qFatal("not opened");
    }
}

void audit_history_of_100(benchmark::State &state)
{
    const auto store = Store::open(Trails::instance().path(longTrail()));
    Query query;
    query.subjectType = u"Label"_s;
    query.subjectKey = u"{\"Name\":\"T7\"}"_s;
    for (auto _ : state) {
        if (store.value()->find(query).value().size() != 100)
            qFatal("another history");
    }
}

/// Kilobytes of this program with the trail open, beyond those without.
void audit_memory(benchmark::State &state)
{
    const auto resident = [] {
        QFile file(u"/proc/self/statm"_s);
        return file.open(QIODevice::ReadOnly) ? file.readAll().split(' ').at(1).toLongLong() * 4 : 0;
    };
    const QString path = Trails::instance().path(state.range(0) == 0 ? kShort : longTrail());
    for (auto _ : state) {
        const qint64 before = resident();
        const auto store = Store::open(path);
        (void)store.value()->append({loneDraft()});
        state.counters["kilobytes"] = double(resident() - before);
    }
}

} // namespace

BENCHMARK(audit_append)->Arg(0)->Arg(1)->UseRealTime();
BENCHMARK(audit_insert_durably)->UseRealTime();
BENCHMARK(audit_queued_push)->Arg(1000)->UseRealTime();
BENCHMARK(audit_bare_push)->Arg(1000)->UseRealTime();
BENCHMARK(audit_verify)->UseRealTime();
BENCHMARK(audit_sha256sum)->UseRealTime();
BENCHMARK(audit_open)->Arg(0)->Arg(1)->UseRealTime();
BENCHMARK(audit_history_of_100)->UseRealTime();
BENCHMARK(audit_memory)->Arg(0)->Arg(1)->Iterations(1);

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    QLoggingCategory::setFilterRules(u"ozm.errors.info=false"_s);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
