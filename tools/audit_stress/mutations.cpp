// Damages a trail in every way that a list can hold, and asks both verifiers.

#include "Stress.h"

#include "../../audit/src/tree/MerkleTree.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTextStream>

#include <sqlite3.h>

using namespace Qt::StringLiterals;

namespace ozm::audit::stress {

namespace {

constexpr int kEntries = 200;

struct Row
{
    QByteArray hash;
    QByteArray bytes;
};

/// The trail's file without its guards, and the two verifiers.
class Bench
{
public:
    explicit Bench(const QString &verifier);
    ~Bench()
    {
        m_python.closeWriteChannel();
        m_python.waitForFinished();
        sqlite3_close(m_handle);
    }
    Q_DISABLE_COPY_MOVE(Bench)

    void sql(const QByteArray &statement, const QList<QByteArray> &blobs = {});
    /// Counts a failure unless both say that the trail is damaged, and agree on where it begins.
    void judge(const QString &what, qint64 first);

    std::vector<Row> rows;             ///< By number; row 0 stands for none.
    std::vector<QByteArray> frontiers; ///< By size.
    int count = 0;
    int failures = 0;

private:
    QTemporaryDir m_folder;
    QString m_path;
    QList<Checkpoint> m_outside;
    sqlite3 *m_handle = nullptr;
    QProcess m_python;
};

Bench::Bench(const QString &verifier)
    : m_folder(QFile::exists(u"/dev/shm"_s) ? u"/dev/shm/audit-XXXXXX"_s : u"audit-XXXXXX"_s)
    , m_path(m_folder.filePath(u"trail.sqlite"_s))
{
    {
        auto store = Store::open(m_path);
        rows.emplace_back();
        Frontier frontier;
        frontiers.push_back(frontier.toBytes());
        for (int i = 1; i <= kEntries; ++i) {
            (void)store.value()->append({draftOf(i % 4, i)});
            const QByteArray bytes = store.value()->entry(i).value().bytes;
            frontier.append(leafHash(bytes));
            rows.push_back({toBytes(leafHash(bytes)), bytes});
            frontiers.push_back(frontier.toBytes());
        }
        m_outside.append(store.value()->makeCheckpoint().value());
    }
    sqlite3_open(m_path.toUtf8().constData(), &m_handle);
    sql("PRAGMA journal_mode = DELETE");
    sql("PRAGMA synchronous = OFF");
    for (const char *guard : {"entry_no_update", "entry_no_delete", "entry_no_replace"})
        sql(QByteArray("DROP TRIGGER ") + guard);
    const auto sink = folderSink(m_folder.filePath(u"outside"_s));
    (void)sink->write(m_outside.constFirst());
    m_python.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_python.start(u"python3"_s,
                   {u"-c"_s,
                    u"import sys, pathlib\n"
                    "sys.dont_write_bytecode = True\n"
                    "sys.path.insert(0, sys.argv[1])\n"
                    "import ozm_audit_verify as v\n"
                    "notes = [f.read_bytes() for f in pathlib.Path(sys.argv[3]).iterdir()]\n"
                    "for line in sys.stdin:\n"
                    "    found = v.verify(sys.argv[2], notes).unrecorded()\n"
                    "    print(f'{found[0][0]} {found[0][1]}' if found else 'whole', flush=True)\n"_s,
                    QFileInfo(verifier).absolutePath(), m_path, m_folder.filePath(u"outside"_s)});
}

void Bench::sql(const QByteArray &statement, const QList<QByteArray> &blobs)
{
    sqlite3_stmt *prepared = nullptr;
    sqlite3_prepare_v2(m_handle, statement.constData(), -1, &prepared, nullptr);
    for (int i = 0; i < blobs.size(); ++i)
        sqlite3_bind_blob(prepared, i + 1, blobs.at(i).constData(), int(blobs.at(i).size()), SQLITE_STATIC);
    while (sqlite3_step(prepared) == SQLITE_ROW) {
    }
    if (sqlite3_finalize(prepared) != SQLITE_OK)
        failures +=
            fail(QString::fromUtf8(statement) + u": "_s + QString::fromUtf8(sqlite3_errmsg(m_handle)));
}

void Bench::judge(const QString &what, qint64 first)
{
    m_python.write("?\n");
    QString said = u"cannot be opened"_s;
    {
        const auto store = Store::open(m_path, Store::Mode::ReadOnly);
        const auto verified = store ? store.value()->verify(m_outside) : Result<Verification>(store.error());
        if (verified && verified.value().findings.isEmpty())
            said = u"whole"_s;
        else if (verified)
            said = damageToString(verified.value().findings.constFirst().damage) + u' ' +
                   QString::number(verified.value().findings.constFirst().first);
    }
    while (!m_python.canReadLine() && m_python.waitForReadyRead(-1)) {
    }
    const QString other = QString::fromUtf8(m_python.readLine()).trimmed();
    ++count;
    const bool right = first == 0 ? said == "whole"_L1 : said.endsWith(u" %1"_s.arg(first));
    if (!right || other != said)
        failures += fail(what + u": "_s + said + u", Python: "_s + other);
}

void flipBytes(Bench &bench, int step)
{
    for (int number = 1; number <= kEntries; ++number) {
        for (const char *column : {"bytes", "hash"}) {
            const Row &row = bench.rows.at(std::size_t(number));
            const QByteArray &whole = *column == 'b' ? row.bytes : row.hash;
            const QByteArray update = QByteArray("UPDATE entry SET ") + column +
                                      " = ? WHERE number = " + QByteArray::number(number);
            for (qsizetype at = (number * 7) % step; at < whole.size(); at += step) {
                QByteArray changed = whole;
                changed[at] = char(changed.at(at) ^ (1 << (at % 8)));
                bench.sql(update, {changed});
                bench.judge(u"%1 of entry %2, byte %3"_s.arg(QLatin1StringView(column)).arg(number).arg(at),
                            number);
            }
            bench.sql(update, {whole});
        }
    }
}

void deleteRows(Bench &bench, int step)
{
    for (int number = 1; number <= kEntries; number += step) {
        const QByteArray n = QByteArray::number(number);
        const Row &row = bench.rows.at(std::size_t(number));
        bench.sql("DELETE FROM entry WHERE number = " + n);
        bench.judge(u"entry %1 deleted"_s.arg(number), number);
        bench.sql("INSERT INTO entry VALUES (" + n + ", ?, ?)", {row.hash, row.bytes});
    }
}

void swapPairs(Bench &bench, int step)
{
    const QByteArray update = "UPDATE entry SET hash = ?, bytes = ? WHERE number = ";
    int pair = 0;
    for (int a = 1; a <= kEntries; ++a) {
        for (int b = a + 1; b <= kEntries; ++b) {
            if (++pair % step != 0)
                continue;
            const Row &first = bench.rows.at(std::size_t(a));
            const Row &second = bench.rows.at(std::size_t(b));
            bench.sql(update + QByteArray::number(a), {second.hash, second.bytes});
            bench.sql(update + QByteArray::number(b), {first.hash, first.bytes});
            bench.judge(u"entries %1 and %2 swapped"_s.arg(a).arg(b), a);
            bench.sql(update + QByteArray::number(a), {first.hash, first.bytes});
            bench.sql(update + QByteArray::number(b), {second.hash, second.bytes});
        }
    }
}

/// With a head that fits what is left.
void cutTails(Bench &bench, int step)
{
    for (int size = 0; size < kEntries; size += step) {
        const QByteArray n = QByteArray::number(size);
        bench.sql("BEGIN");
        bench.sql("DELETE FROM entry WHERE number > " + n);
        bench.sql("UPDATE head SET indexed = min(indexed, " + n + "), size = " + n + ", frontier = ?",
                  {bench.frontiers.at(std::size_t(size))});
        bench.sql("CREATE TABLE IF NOT EXISTS x(y)");
        bench.sql("COMMIT");
        bench.judge(u"cut off after %1"_s.arg(size), size + 1);
        bench.sql("BEGIN");
        for (int i = size + 1; i <= kEntries; ++i) {
            const Row &row = bench.rows.at(std::size_t(i));
            bench.sql("INSERT INTO entry VALUES (" + QByteArray::number(i) + ", ?, ?)",
                      {row.hash, row.bytes});
        }
        bench.sql("UPDATE head SET size = " + QByteArray::number(kEntries) + ", frontier = ?",
                  {bench.frontiers.back()});
        bench.sql("COMMIT");
    }
}

/// One entry changed, and everything that follows from it made anew: only the checkpoint outside tells.
void rebuild(Bench &bench, int step)
{
    for (int number = 1; number <= kEntries; number += step) {
        const QByteArray n = QByteArray::number(number);
        QByteArray changed = bench.rows.at(std::size_t(number)).bytes;
        changed.replace("\"value\":3", "\"value\":4");
        Frontier frontier;
        for (int i = 1; i <= kEntries; ++i)
            frontier.append(leafHash(i == number ? changed : bench.rows.at(std::size_t(i)).bytes));
        bench.sql("UPDATE entry SET hash = ?, bytes = ? WHERE number = " + n,
                  {toBytes(leafHash(changed)), changed});
        bench.sql("UPDATE head SET frontier = ?", {frontier.toBytes()});
        bench.judge(u"rebuilt around %1"_s.arg(number), 1);
        const Row &row = bench.rows.at(std::size_t(number));
        bench.sql("UPDATE entry SET hash = ?, bytes = ? WHERE number = " + n, {row.hash, row.bytes});
        bench.sql("UPDATE head SET frontier = ?", {bench.frontiers.back()});
    }
}

} // namespace

int mutations(const Arguments &arguments)
{
    const int step = arguments.number(u"step"_s, 1);
    Bench bench(arguments.text(u"verifier"_s));
    bench.judge(u"untouched"_s, 0);
    QTextStream out(stdout);
    const QString only = arguments.text(u"only"_s);
    const auto run = [&](const char *name, void (*trial)(Bench &, int), int every) {
        if (!QString::fromLatin1(name).contains(only))
            return;
        const int before = bench.count;
        trial(bench, every);
        out << name << ": " << bench.count - before << Qt::endl;
    };
    run("bytes flipped", flipBytes, step);
    run("entries deleted", deleteRows, qMax(1, step / 20));
    run("pairs swapped", swapPairs, step);
    run("tails cut off", cutTails, qMax(1, step / 20));
    run("rebuilt", rebuild, qMax(1, step / 20));
    bench.judge(u"put right again"_s, 0);
    out << bench.count << " verdicts of two verifiers, " << bench.failures << " failures" << Qt::endl;
    return bench.failures;
}

} // namespace ozm::audit::stress
