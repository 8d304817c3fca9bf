#include "SqliteBackend.h"

#include "../Texts.h"
#include "../store/MemoryBackend.h"
#include "../store/QueryFilter.h"
#include "Database.h"
#include "FileSystems.h"
#include "SqliteSchema.h"
#include "SqliteTables.h"

#include <QDir>
#include <QFileInfo>

#include <utility>

using namespace Qt::StringLiterals;

namespace ozm::audit {

namespace {

// Long enough for another program to finish a write, short enough for somebody who waits for a cell.
constexpr int kPatienceMs = 1000;
// Sixteen programs wait for each other in turn.
constexpr int kSharedPatienceMs = 20'000;
// Columns are made for so many entries at a time: a commit of one entry then touches two pages, not six.
constexpr qint64 kIndexBatch = 256;

class SqliteBackend : public StoreBackend
{
public:
    SqliteBackend(std::unique_ptr<Database> database, const QByteArray &trail, bool exclusive);

    [[nodiscard]] QString trail() const override { return QString::fromUtf8(m_trail); }
    [[nodiscard]] QString place() const override { return m_database->path(); }
    [[nodiscard]] bool isExclusive() const override { return m_exclusive; }
    [[nodiscard]] Result<StoredHead> head() override;
    [[nodiscard]] Result<qint64> append(const QList<NewEntry> &entries) override;
    [[nodiscard]] Error rows(qint64 first, qint64 last,
                             const std::function<bool(const StoredRow &)> &show) override;
    [[nodiscard]] Result<QList<Entry>> find(const Query &query) override;
    [[nodiscard]] Result<QList<qint64>> findNumbers(const Query &query) override;
    [[nodiscard]] Result<std::vector<Hash>> hashes(int level, qint64 first, qint64 count) override;
    [[nodiscard]] bool isFound(const StoredRow &row) override;
    [[nodiscard]] Result<qint64> lastRow() override;
    Error keepCheckpoint(const Checkpoint &checkpoint) override;
    [[nodiscard]] Result<QList<Checkpoint>> keptCheckpoints() override;
    Error setHead(const Frontier &frontier) override;
    [[nodiscard]] Result<qint64> dispose(Range range, const NewEntry &record) override;

private:
    [[nodiscard]] Error appendLocked(const QList<NewEntry> &entries, qint64 &first);
    [[nodiscard]] Error insert(const NewEntry &entry, qint64 first, Frontier &frontier);
    /// True when the trail ends with @p edge, whoever wrote it.
    [[nodiscard]] bool isHead(const QByteArray &edge);
    [[nodiscard]] Error confirm();
    [[nodiscard]] Error findIndexed(const Query &query, qint64 indexed, QList<Entry> &page);

    const std::unique_ptr<Database> m_database;
    const QByteArray m_trail;
    const bool m_exclusive;
    /// The count that this program has seen: a head that counts less was put back by another program.
    qint64 m_known = 0;
    std::vector<Subtree> m_completed;
    QByteArray m_edge; ///< The trail's frontier after the append.
    Statement m_head;
    Statement m_setHead;
    Statement m_insert;
    Statement m_rows;
    Statement m_row;
    Statement m_leaves;
    Statement m_subtrees;
};

SqliteBackend::SqliteBackend(std::unique_ptr<Database> database, const QByteArray &trail, bool exclusive)
    : m_database(std::move(database))
    , m_trail(trail)
    , m_exclusive(exclusive)
    , m_head(*m_database, "SELECT size, frontier, indexed FROM head")
    , m_setHead(*m_database, "UPDATE head SET size = ?, frontier = ?, indexed = ?")
    , m_insert(*m_database, "INSERT INTO entry VALUES (?, ?, ?)")
    , m_rows(*m_database,
             "SELECT e.number, e.hash, e.bytes, i.number, i.time_ms, i.kind, i.user, i.outcome, i.parent, "
             "i.subject, i.attributes FROM entry e LEFT JOIN entry_index i ON i.number = e.number "
             "WHERE e.number BETWEEN ? AND ? ORDER BY e.number")
    , m_row(*m_database, "SELECT EXISTS (SELECT 1 FROM entry WHERE number = ?1), "
                         "EXISTS (SELECT 1 FROM entry_index WHERE number = ?1)")
    , m_leaves(*m_database, "SELECT hash FROM entry WHERE number BETWEEN ? AND ? ORDER BY number")
    , m_subtrees(*m_database,
                 "SELECT hash FROM subtree WHERE level = ? AND position BETWEEN ? AND ? ORDER BY position")
{}

Result<StoredHead> SqliteBackend::head()
{
    StoredHead head;
    while (m_head.step())
        head = {m_head.number(0), m_head.text(1), m_head.number(2)};
    if (m_head.error().hasError())
        return m_head.error();
    return head;
}

Result<qint64> SqliteBackend::append(const QList<NewEntry> &entries)
{
    qint64 first = 0;
    m_edge.clear();
    Error error = m_database->transact([&] { return appendLocked(entries, first); });
    // With a journal that programs share, a commit can fail once it took place.
    if (error.hasError() && isHead(m_edge))
        error = confirm();
    if (error.hasError())
        return error;
    m_known = first + entries.size() - 1;
    return first;
}

bool SqliteBackend::isHead(const QByteArray &edge)
{
    const auto now = head();
    return !edge.isEmpty() && now && now.value().frontier == edge;
}

Error SqliteBackend::confirm()
{
    // Makes a journal and removes it again, which has to reach the disk this time.
    const Error error =
        m_database->transact([this] { return m_database->run("UPDATE head SET indexed = indexed"); });
    if (!error.hasError())
        return {};
    return Error(ErrorCode::FileAccess,
                 Texts::tr("The entry is in the audit trail \"%1\", but the disk did not confirm it. "
                           "Check the disk, and what was to be recorded.")
                     .arg(QDir::toNativeSeparators(m_database->path())))
        .ecatch(OZM_HERE);
}

Error SqliteBackend::appendLocked(const QList<NewEntry> &entries, qint64 &first)
{
    if (m_database->hasMoved())
        return damagedError(m_database->path(),
                            Texts::tr("the file was deleted or replaced while it was in use"));
    const auto head = this->head();
    if (!head)
        return head.error();
    auto frontier = Frontier::fromBytes(head.value().size, head.value().frontier);
    if (!frontier || frontier->size() < m_known)
        return damagedError(m_database->path(), Texts::tr("its head was changed while it was in use"));
    first = frontier->size() + 1;
    m_completed.clear();
    for (const NewEntry &entry : entries) {
        if (Error error = insert(entry, first, *frontier); error.hasError())
            return error;
    }
    qint64 indexed = head.value().indexed;
    if (frontier->size() - indexed >= kIndexBatch) {
        if (Error error = indexEntries(*m_database, indexed + 1, frontier->size()); error.hasError())
            return error;
        indexed = frontier->size();
    }
    if (Error error = keepSubtrees(*m_database, m_completed); error.hasError())
        return error;
    m_edge = frontier->toBytes();
    return m_setHead.bind(1, frontier->size()).bindBlob(2, m_edge).bind(3, indexed).run();
}

Error SqliteBackend::insert(const NewEntry &entry, qint64 first, Frontier &frontier)
{
    const qint64 number = frontier.size() + 1;
    const QByteArray bytes = storePart(m_trail, number, parentNumber(entry.parent, first)) + entry.claims;
    const Hash leaf = leafHash(bytes);
    frontier.append(leaf, &m_completed);
    return m_insert.bind(1, number)
        .bindBlob(2, {leaf.data(), qsizetype(leaf.size())})
        .bindBlob(3, bytes)
        .run();
}

Error SqliteBackend::rows(qint64 first, qint64 last, const std::function<bool(const StoredRow &)> &show)
{
    m_rows.bind(1, first).bind(2, last);
    StoredRow row;
    while (m_rows.step()) {
        row.number = m_rows.number(0);
        row.hash = m_rows.text(1);
        row.bytes = m_rows.text(2);
        row.index.reset();
        if (!m_rows.isNull(3)) {
            row.index = IndexRow{m_rows.number(4), m_rows.text(5), m_rows.text(6), m_rows.number(7),
                                 m_rows.number(8), m_rows.text(9), m_rows.text(10)};
        }
        if (!show(row)) {
            m_rows.reset();
            break;
        }
    }
    return m_rows.error();
}

bool SqliteBackend::isFound(const StoredRow &row)
{
    bool isFound = false;
    m_row.bind(1, row.number);
    while (m_row.step())
        isFound = m_row.number(0) == 1 && (m_row.number(1) == 1 || !row.index);
    return isFound;
}

Result<QList<Entry>> SqliteBackend::find(const Query &query)
{
    const auto head = this->head();
    if (!head)
        return head.error();
    const qint64 indexed = head.value().indexed;
    QList<Entry> page;
    // Those without columns yet are the newest.
    const auto newest = [&]() -> Error {
        Query rest = query;
        rest.pageSize = query.pageSize - int(page.size());
        auto found = findByReading(*this, rest, indexed + 1, head.value().size);
        if (!found)
            return found.error();
        page += found.value();
        return {};
    };
    const bool backwards = query.order == Query::Order::NewestFirst;
    Error error = backwards ? newest() : findIndexed(query, indexed, page);
    if (!error.hasError() && page.size() < query.pageSize)
        error = backwards ? findIndexed(query, indexed, page) : newest();
    if (error.hasError())
        return error;
    return page;
}

Error SqliteBackend::findIndexed(const Query &query, qint64 indexed, QList<Entry> &page)
{
    const bool backwards = query.order == Query::Order::NewestFirst;
    const QueryClauses clauses(query, "CAST(e.bytes AS TEXT) LIKE ? ESCAPE '\\'");
    const QByteArray sql =
        "SELECT e.bytes FROM entry_index i JOIN entry e ON e.number = i.number WHERE i.number " +
        QByteArray(backwards ? "<" : ">") + " ? AND i.number <= ? AND e.bytes IS NOT NULL" +
        clauses.condition + " ORDER BY i.number " + (backwards ? "DESC" : "ASC") + " LIMIT ?";
    Statement select(*m_database, sql.constData());
    const qint64 after = backwards && query.after == 0 ? indexed + 1 : query.after;
    const qsizetype room = query.pageSize - page.size();
    select.bindAll(QVariantList{after, indexed} + clauses.values + QVariantList{qint64(room)});
    while (select.step()) {
        if (auto entry = Entry::fromBytes(select.text(0)))
            page.append(std::move(entry).value());
    }
    return select.error();
}

Result<QList<qint64>> SqliteBackend::findNumbers(const Query &query)
{
    const auto head = this->head();
    if (!head)
        return head.error();
    const qint64 indexed = head.value().indexed;
    const bool reachesNewest = query.lastNumber == 0 || query.lastNumber > indexed;
    if (query.order == Query::Order::NewestFirst || reachesNewest)
        return StoreBackend::findNumbers(query);
    // Without a text to be searched for, the bytes need not be read at all.
    const QueryClauses clauses(query, "CAST(e.bytes AS TEXT) LIKE ? ESCAPE '\\'");
    const QByteArray sql = QByteArray("SELECT i.number FROM entry_index i ") +
                           (query.text.isEmpty() ? "" : "JOIN entry e ON e.number = i.number ") +
                           "WHERE i.number > ?" + clauses.condition + " ORDER BY i.number LIMIT ?";
    Statement select(*m_database, sql.constData());
    select.bindAll(QVariantList{query.after} + clauses.values + QVariantList{qint64(query.pageSize)});
    QList<qint64> numbers;
    while (select.step())
        numbers.append(select.number(0));
    if (select.error().hasError())
        return select.error();
    return numbers;
}

Result<std::vector<Hash>> SqliteBackend::hashes(int level, qint64 first, qint64 count)
{
    Statement &select = level == 0 ? m_leaves : m_subtrees;
    if (level == 0)
        select.bind(1, first + 1).bind(2, first + count);
    else
        select.bind(1, level).bind(2, first).bind(3, first + count - 1);
    std::vector<Hash> hashes;
    while (select.step())
        hashes.push_back(toHash(select.bytesHere(0)).value_or(Hash()));
    if (select.error().hasError())
        return select.error();
    return hashes;
}

Result<qint64> SqliteBackend::lastRow()
{
    return m_database->number("SELECT coalesce(max(number), 0) FROM entry");
}

Error SqliteBackend::keepCheckpoint(const Checkpoint &checkpoint)
{
    return m_database->transact([&] {
        Statement keep(*m_database, "INSERT INTO checkpoint(size, note) VALUES (?, ?)");
        return keep.bind(1, checkpoint.size).bindBlob(2, checkpoint.note).run();
    });
}

Result<QList<Checkpoint>> SqliteBackend::keptCheckpoints()
{
    QList<Checkpoint> checkpoints;
    Statement select(*m_database, "SELECT size, note FROM checkpoint ORDER BY size, id");
    while (select.step()) {
        auto checkpoint = Checkpoint::fromNote(select.text(1));
        checkpoints.append(checkpoint ? std::move(checkpoint).value()
                                      : Checkpoint{{}, select.number(0), {}, select.text(1)});
    }
    if (select.error().hasError())
        return select.error();
    return checkpoints;
}

Error SqliteBackend::setHead(const Frontier &frontier)
{
    return m_database->transact([&] {
        const QByteArray edge = frontier.toBytes();
        if (Error error = indexEntries(*m_database, 1, frontier.size()); error.hasError())
            return error;
        return m_setHead.bind(1, frontier.size()).bindBlob(2, edge).bind(3, frontier.size()).run();
    });
}

Result<qint64> SqliteBackend::dispose(Range range, const NewEntry &record)
{
    qint64 number = 0;
    Error error = m_database->transact([&] {
        if (Error failed = appendLocked({record}, number); failed.hasError())
            return failed;
        for (const char *sql : {"INSERT INTO disposal VALUES (?, ?, ?)",
                                "UPDATE entry SET bytes = NULL WHERE number BETWEEN ? AND ?",
                                "DELETE FROM entry_index WHERE number BETWEEN ? AND ?"}) {
            Statement statement(*m_database, sql);
            if (Error failed = statement.bind(1, range.first).bind(2, range.last).bind(3, number).run();
                failed.hasError())
                return failed;
        }
        return Error();
    });
    if (error.hasError())
        return error;
    m_known = number;
    return number;
}

Error makeStore(Database &database, const QString &path)
{
    return database.transact([&]() -> Error {
        // Two programs may begin on one new file: the second finds it filled once the lock is its own.
        const auto empty = isEmptyStore(database);
        if (!empty)
            return empty.error();
        return empty.value()
                   ? createStore(database, newTrailName(QFileInfo(path).completeBaseName()).toUtf8())
                   : Error();
    });
}

/// After the tables are made, so that they are in the file itself and not in a log beside it.
Error setJournal(Database &database, bool shared)
{
    // Not earlier: it reads the file, which must be locked by then.
    if (Error error = database.run("PRAGMA cache_size = -8192"); error.hasError())
        return error;
    if (Error error = database.run(shared ? "PRAGMA synchronous = EXTRA" : "PRAGMA synchronous = FULL");
        error.hasError())
        return error;
    const auto mode = database.text(shared ? "PRAGMA journal_mode = DELETE" : "PRAGMA journal_mode = WAL");
    if (!mode)
        return mode.error();
    if (mode.value() != (shared ? "delete" : "wal"))
        return damagedError(database.path(), Texts::tr("its journal is of another kind and in use"));
    return {};
}

Error prepareStore(Database &database, Store::Mode mode, bool shared)
{
    if (!shared && mode != Store::Mode::ReadOnly) {
        if (Error error = database.run("PRAGMA locking_mode = EXCLUSIVE"); error.hasError())
            return error;
    }
    const auto empty = isEmptyStore(database);
    if (!empty)
        return empty.error();
    if (empty.value() && (mode == Store::Mode::Use || mode == Store::Mode::Create)) {
        if (Error error = makeStore(database, database.path()); error.hasError())
            return error;
    } else if (empty.value()) {
        return damagedError(database.path(), Texts::tr("it is empty"));
    }
    if (mode == Store::Mode::ReadOnly)
        return {};
    if (Error error = checkGuards(database); error.hasError())
        return error;
    return setJournal(database, shared);
}

Error existsAlready(const QString &path)
{
    return Error(ErrorCode::FileAccess, Texts::tr("There is a file \"%1\" already.").arg(path))
        .ecatch(OZM_HERE);
}

} // namespace

Result<std::unique_ptr<StoreBackend>> openSqlite(const Address &address, Store::Mode mode)
{
    const bool readOnly = mode == Store::Mode::ReadOnly;
    const bool shared = !address.sharing.isEmpty();
    if (address.vfs.isEmpty() && !readOnly) {
        if (Error error = checkFileSystem(address.path); error.hasError())
            return error;
    }
    if (mode == Store::Mode::Create && QFileInfo::exists(address.path) && QFileInfo(address.path).size() > 0)
        return existsAlready(address.path);
    const auto access = readOnly                        ? Database::Access::ReadOnly
                        : mode == Store::Mode::Existing ? Database::Access::ReadWrite
                                                        : Database::Access::Create;
    auto database =
        Database::open(address.path, access, shared ? kSharedPatienceMs : kPatienceMs, address.vfs);
    if (!database)
        return database.error();
    if (!readOnly && address.vfs.isEmpty()) {
        // SQLite would let this one turn the journal into another kind beneath those who have the file open.
        if (Error error = shared ? Error() : database.value()->checkNotShared(); error.hasError())
            return error;
        if (shared)
            database.value()->takeTurns();
    }
    if (Error error = prepareStore(*database.value(), mode, shared); error.hasError())
        return error;
    const auto trail = database.value()->text("SELECT trail FROM head");
    if (!trail)
        return trail.error();
    return std::unique_ptr<StoreBackend>(
        std::make_unique<SqliteBackend>(std::move(database).value(), trail.value(), !shared && !readOnly));
}

} // namespace ozm::audit
