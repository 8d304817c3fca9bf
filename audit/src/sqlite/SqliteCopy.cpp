#include "../Texts.h"
#include "../store/StoreBackend.h"
#include "Database.h"
#include "SqliteBackend.h"
#include "SqliteSchema.h"
#include "SqliteTables.h"

namespace ozm::audit {

namespace {

// As many as other threads wait for.
constexpr qint64 kCopiedAtOnce = 1000;

/// Bytes, hashes and head; the rest follows from them.
Error copyRows(const Store &from, Database &to, qint64 last, const Progress &progress)
{
    Frontier frontier;
    Statement insert(to, "INSERT INTO entry VALUES (?, ?, ?)");
    Statement insertDisposed(to, "INSERT INTO entry(number, hash) VALUES (?, ?)");
    Error failed;
    const auto copyRow = [&](const StoredRow &row) {
        std::vector<Subtree> completed;
        frontier.append(toHash(row.hash).value_or(Hash()), &completed);
        Statement &statement = row.bytes.isEmpty() ? insertDisposed : insert;
        statement.bind(1, row.number).bindBlob(2, row.hash);
        if (!row.bytes.isEmpty())
            statement.bindBlob(3, row.bytes);
        failed = statement.run();
        if (!failed.hasError())
            failed = keepSubtrees(to, completed);
        return !failed.hasError();
    };
    for (qint64 first = 1; first <= last; first += kCopiedAtOnce) {
        const qint64 end = qMin(last, first + kCopiedAtOnce - 1);
        const auto lock = from.locked();
        if (Error error = from.backend().rows(first, end, copyRow); error.hasError() || failed.hasError())
            return error.hasError() ? error : failed;
        if (progress && !progress(end, last))
            return copyCancelled();
    }
    if (Error error = indexEntries(to, 1, last); error.hasError())
        return error;
    const QByteArray edge = frontier.toBytes();
    Statement head(to, "UPDATE head SET size = ?, frontier = ?, indexed = ?");
    return head.bind(1, frontier.size()).bindBlob(2, edge).bind(3, frontier.size()).run();
}

Error copyCheckpoints(const Store &from, Database &to)
{
    const auto kept = from.keptCheckpoints();
    if (!kept)
        return kept.error();
    Statement keep(to, "INSERT INTO checkpoint(size, note) VALUES (?, ?)");
    for (const Checkpoint &checkpoint : kept.value()) {
        if (Error error = keep.bind(1, checkpoint.size).bindBlob(2, checkpoint.note).run(); error.hasError())
            return error;
    }
    return {};
}

} // namespace

Error copyToSqlite(const Store &store, const QString &path, qint64 last, const Progress &progress)
{
    auto database = Database::open(path, Database::Access::Create, 0);
    if (!database)
        return database.error();
    return database.value()->transact([&] {
        Error error = createStore(*database.value(), store.trail().toUtf8());
        if (!error.hasError())
            error = copyRows(store, *database.value(), last, progress);
        return error.hasError() ? error : copyCheckpoints(store, *database.value());
    });
}

} // namespace ozm::audit
