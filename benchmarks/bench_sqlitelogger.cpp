// The workbench's logger, whose every record is on the disk when the call returns, beside the bare toolkit
// and beside the least that such a record costs: one insert and one commit, with the same settings.

#include "AuditedEdit.h"

#include "audit/AuditDatabase.h"
#include "audit/AuditLogger.h"

#include <ozm_widgets/db/common/UndoStack.h>

#include <benchmark/benchmark.h>

#include <QCoreApplication>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QTemporaryDir>
#include <QUndoStack>

using namespace Qt::StringLiterals;

namespace {

const QString kPlain = u"plain"_s;

void push_bare(benchmark::State &state)
{
    for (auto _ : state) {
        QUndoStack stack;
        QVariant cell = 0;
        for (int i = 0; i < state.range(0); ++i)
            stack.push(new bench::BareSet(&cell, i));
    }
}

/// A stack with the workbench's logger on a file of its own.
class AuditedStack
{
public:
    AuditedStack()
        : m_database(workbench::AuditDatabase::open(m_folder.filePath(u"audit.sqlite"_s)))
    {
        if (!m_database)
            qFatal("no database");
        m_logger = std::make_unique<workbench::AuditLogger>(*m_database.value(), u"jdoe"_s);
        stack.setLogging(m_logger.get());
    }

    void push(int count)
    {
        for (int i = 0; i < count; ++i)
            (void)stack.push(new bench::AuditedSet(&m_cell, i));
    }

private:
    QTemporaryDir m_folder;
    ozm::Result<std::unique_ptr<workbench::AuditDatabase>> m_database;
    std::unique_ptr<workbench::AuditLogger> m_logger;
    QVariant m_cell = 0;

public:
    // Last: its commands point into what stands above.
    ozm::UndoStack stack;
};

void push_sqlite_logger(benchmark::State &state)
{
    AuditedStack audited;
    for (auto _ : state) {
        audited.push(static_cast<int>(state.range(0)));
        state.PauseTiming();
        audited.stack.clear();
        state.ResumeTiming();
    }
}

void undo_redo_sqlite_logger(benchmark::State &state)
{
    AuditedStack audited;
    audited.push(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        audited.stack.setIndex(0);
        audited.stack.setIndex(audited.stack.count());
    }
}

void insert_durably(benchmark::State &state)
{
    const QTemporaryDir folder;
    {
        QSqlDatabase database = QSqlDatabase::addDatabase(u"QSQLITE"_s, kPlain);
        database.setDatabaseName(folder.filePath(u"plain.sqlite"_s));
        if (!database.open())
            qFatal("no database");
        QSqlQuery query(database);
        query.exec(u"PRAGMA journal_mode=WAL"_s);
        query.exec(u"PRAGMA synchronous=FULL"_s);
        query.exec(u"CREATE TABLE records (sequence INTEGER PRIMARY KEY AUTOINCREMENT, record BLOB)"_s);
        query.prepare(u"INSERT INTO records (record) VALUES (?)"_s);
        QVariant cell = 0;
        const bench::AuditedSet edit(&cell, 1);
        const QByteArray bytes = edit.logData()->toJson();
        for (auto _ : state) {
            for (int i = 0; i < state.range(0); ++i) {
                query.bindValue(0, bytes);
                if (!query.exec())
                    qFatal("not inserted");
            }
        }
    }
    QSqlDatabase::removeDatabase(kPlain);
}

} // namespace

BENCHMARK(push_bare)->Arg(200)->UseRealTime();
BENCHMARK(push_sqlite_logger)->Arg(50)->Arg(200)->UseRealTime();
BENCHMARK(undo_redo_sqlite_logger)->Arg(100)->UseRealTime();
BENCHMARK(insert_durably)->Arg(200)->UseRealTime();

int main(int argc, char *argv[])
{
    // SQL drivers are found by the application object.
    const QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
