// Every kind of damage to a trail is found and named, and the verifier in Python says the same.

#include "StoreFixture.h"

#include <QFile>
#include <QProcess>

#include <functional>
#include <sqlite3.h>

using namespace ozm::test;

namespace {

/// Somebody with the file and SQLite, and none of the guards.
class Attacker
{
public:
    explicit Attacker(const QString &path) { sqlite3_open(path.toUtf8().constData(), &m_handle); }
    ~Attacker() { sqlite3_close(m_handle); }
    Q_DISABLE_COPY_MOVE(Attacker)

    [[nodiscard]] bool run(const QByteArray &sql)
    {
        return sqlite3_exec(m_handle, sql.constData(), nullptr, nullptr, nullptr) == SQLITE_OK;
    }
    [[nodiscard]] bool takeGuards()
    {
        return run(
            "DROP TRIGGER entry_no_update; DROP TRIGGER entry_no_delete; DROP TRIGGER entry_no_replace");
    }

private:
    sqlite3 *m_handle = nullptr;
};

} // namespace

class TestAuditDamage : public StrictTest
{
    Q_OBJECT

private:
    static constexpr int kEntries = 300;

    /// A trail with a checkpoint outside at the end, and its file closed.
    void make(const Stores &stores, QList<Checkpoint> &outside)
    {
        auto store = Store::open(u"sqlite:"_s + stores.path());
        VERIFY_RESULT(store);
        VERIFY_RESULT(store.value()->append(drafts(1, 290)));
        VERIFY_RESULT(store.value()->append(drafts(291, kEntries)));
        outside.append(store.value()->makeCheckpoint().value());
    }

private Q_SLOTS:
    void namesTheDamage_data()
    {
        QTest::addColumn<QByteArray>("sql");
        QTest::addColumn<Damage>("damage");
        QTest::addColumn<qint64>("first");
        const auto row = [](const char *name, const QByteArray &sql, Damage damage, qint64 first) {
            QTest::newRow(name) << sql << damage << first;
        };
        row("changed",
            "UPDATE entry SET bytes = CAST(replace(CAST(bytes AS TEXT), 'jdoe', 'jdoo') AS BLOB) WHERE "
            "number = 8",
            Damage::Changed, 8);
        row("no entry any more", "UPDATE entry SET bytes = x'00' WHERE number = 8", Damage::Changed, 8);
        row("hash changed", "UPDATE entry SET hash = zeroblob(32) WHERE number = 8", Damage::Changed, 8);
        row("hash gone", "UPDATE entry SET hash = x'' WHERE number = 8", Damage::Changed, 8);
        row("deleted", "DELETE FROM entry WHERE number = 8", Damage::Missing, 8);
        row("bytes deleted", "UPDATE entry SET bytes = NULL WHERE number = 8", Damage::Missing, 8);
        row("swapped bytes",
            "UPDATE entry SET bytes = (SELECT e.bytes FROM entry e WHERE e.number = 17 - entry.number) "
            "WHERE number IN (8, 9)",
            Damage::Reordered, 8);
        row("swapped rows",
            "UPDATE entry SET number = -number WHERE number IN (8, 9); "
            "UPDATE entry SET number = 17 + number WHERE number < 0",
            Damage::Reordered, 8);
        row("column", "UPDATE entry_index SET user = 'x' WHERE number = 8", Damage::IndexDiffers, 8);
        row("columns deleted", "DELETE FROM entry_index WHERE number = 8", Damage::IndexDiffers, 8);
        row("columns before their time", "INSERT INTO entry_index VALUES (299, 0, '', '', 0, 0, '', '')",
            Damage::IndexDiffers, 299);
        row("hash of a subtree", "UPDATE subtree SET hash = zeroblob(32)", Damage::IndexDiffers, 1);
        row("head too short", "UPDATE head SET size = 299", Damage::IndexDiffers, 300);
        row("head too long", "UPDATE head SET size = 4611686018427387904", Damage::CutOff, 301);
        row("edge", "UPDATE head SET frontier = zeroblob(length(frontier))", Damage::IndexDiffers, 300);
        row("kept checkpoint", "DROP TRIGGER checkpoint_no_update; UPDATE checkpoint SET note = x'00'",
            Damage::IndexDiffers, 300);
        row("tail", "DELETE FROM entry WHERE number > 290", Damage::CutOff, 291);
        row("tail and head",
            "DELETE FROM entry WHERE number > 256; UPDATE head SET size = 256, frontier = (SELECT hash "
            "FROM subtree); DELETE FROM entry_index WHERE number > 256",
            Damage::CutOff, 257);
        row("everything",
            "DELETE FROM entry; DELETE FROM entry_index; DELETE FROM subtree; DROP TRIGGER "
            "checkpoint_no_delete; DELETE FROM checkpoint; UPDATE head SET size = 0, frontier = x'', "
            "indexed = 0",
            Damage::CutOff, 1);
    }
    void namesTheDamage()
    {
        QFETCH(QByteArray, sql);
        const Stores stores;
        QList<Checkpoint> outside;
        make(stores, outside);
        {
            Attacker attacker(stores.path());
            QVERIFY(attacker.takeGuards() && attacker.run(sql));
        }
        const auto store = Store::open(u"sqlite:"_s + stores.path(), Store::Mode::ReadOnly);
        VERIFY_RESULT(store);
        const auto verified = store.value()->verify(outside);
        VERIFY_RESULT(verified);
        QVERIFY(!verified.value().isWhole());
        QTEST(verified.value().findings.constFirst().damage, "damage");
        QTEST(verified.value().findings.constFirst().first, "first");
        const QByteArray words = damageToString(verified.value().findings.constFirst().damage).toLatin1() +
                                 ": " + QByteArray::number(verified.value().findings.constFirst().first) +
                                 ' ';
        const QByteArray other = python(stores, outside, 1);
        QVERIFY2(other.contains(words), other.constData());
    }

    /// Each byte of the keys by which entries are found: a trail is called whole only if all of it is found.
    void wholeMeansFound()
    {
        constexpr qsizetype page = 4096;
        constexpr char keys = 5;
        const Stores stores;
        QList<Checkpoint> outside;
        make(stores, outside);
        QFile file(stores.path());
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray whole = file.readAll();
        file.close();
        int tried = 0;
        for (qsizetype at = page; at < whole.size(); ++at) {
            const bool isKey = whole.at(at / page * page) == keys && whole.at(at) != 0;
            if (!isKey || ++tried % 3 != 0)
                continue;
            QVERIFY(file.open(QIODevice::ReadWrite) && file.seek(at) && file.putChar(char(~whole.at(at))));
            file.close();
            if (const auto store = Store::open(u"sqlite:"_s + stores.path(), Store::Mode::ReadOnly)) {
                const auto verified = store.value()->verify(outside);
                if (verified && verified.value().isWhole()) {
                    const auto root = store.value()->root(kEntries);
                    QVERIFY2(root && root.value() == outside.constFirst().root,
                             qPrintable(QString::number(at)));
                    for (qint64 number = 1; number <= kEntries; ++number)
                        QVERIFY2(store.value()->entry(number), qPrintable(QString::number(at)));
                }
            }
            QVERIFY(file.open(QIODevice::ReadWrite) && file.seek(at) && file.putChar(whole.at(at)));
            file.close();
        }
        QVERIFY(tried > 100);
    }

    /// One who makes all anew is consistent in itself; only the copy outside tells.
    void findsATrailMadeAnew()
    {
        const Stores stores;
        QList<Checkpoint> outside;
        make(stores, outside);
        const QString trail = outside.constFirst().origin;
        QVERIFY(QFile::remove(stores.path()));
        {
            auto store = Store::open(u"sqlite:"_s + stores.path());
            VERIFY_RESULT(store);
        }
        QVERIFY(Attacker(stores.path()).run("UPDATE head SET trail = '" + trail.toUtf8() + '\''));
        auto store = Store::open(u"sqlite:"_s + stores.path());
        VERIFY_RESULT(store.value()->append(drafts(2, kEntries + 1)));
        QVERIFY(store.value()->verify().value().isWhole());
        const Finding finding = store.value()->verify(outside).value().findings.constFirst();
        QCOMPARE(finding.damage, Damage::Rebuilt);
        QCOMPARE(finding.first, 1);
        store.value().reset();
        QVERIFY(python(stores, outside, 1).contains("rebuilt: 1 to 300"));
    }

    /// Nothing is added to a damaged trail before the damage is recorded, and then it goes on.
    void goesOnAfterARecordedDamage_data()
    {
        QTest::addColumn<QByteArray>("sql");
        QTest::addColumn<bool>("refuses");
        QTest::newRow("changed entry")
            << QByteArray("UPDATE entry SET bytes = x'7b7d' WHERE number = 8") << false;
        QTest::newRow("missing entry") << QByteArray("DELETE FROM entry WHERE number = 8") << false;
        QTest::newRow("missing tail") << QByteArray("DELETE FROM entry WHERE number > 280") << true;
        QTest::newRow("edge") << QByteArray("UPDATE head SET frontier = x'00'") << true;
        QTest::newRow("head too short")
            << QByteArray("UPDATE head SET size = 256, frontier = (SELECT hash FROM subtree)") << true;
    }
    void goesOnAfterARecordedDamage()
    {
        QFETCH(QByteArray, sql);
        QFETCH(bool, refuses);
        const Stores stores;
        QList<Checkpoint> outside;
        make(stores, outside);
        {
            Attacker attacker(stores.path());
            QVERIFY(attacker.takeGuards() && attacker.run(sql));
        }
        auto store = Store::open(u"sqlite:"_s + stores.path());
        QVERIFY(store.hasError() && store.error().errorMessage().contains(u"guards"_s));
        restoreGuards(stores);

        store = Store::open(u"sqlite:"_s + stores.path());
        VERIFY_RESULT(store);
        QCOMPARE(store.value()->append({draft(1)}).hasError(), refuses);
        Draft who = draft(0);
        who.reason = u"found on Monday"_s;
        VERIFY_RESULT(store.value()->reAnchor(store.value()->verify(outside).value(), who));
        VERIFY_RESULT(store.value()->append(drafts(1, 300)));
        outside.append(store.value()->makeCheckpoint().value());
        const auto verified = store.value()->verify(outside);
        QVERIFY2(verified.value().isWhole(), qPrintable(verified.value().toString()));
        QCOMPARE(verified.value().anchored, outside.constLast().size);
        store.value().reset();
        QVERIFY(python(stores, outside, 0).contains("The trail is whole."));
    }

private:
    /// As a store is made, into the file of the same name.
    void restoreGuards(const Stores &stores)
    {
        const QString pattern = stores.file(u"pattern.sqlite"_s);
        {
            VERIFY_RESULT(Store::open(u"sqlite:"_s + pattern));
        }
        sqlite3 *handle = nullptr;
        sqlite3_open(pattern.toUtf8().constData(), &handle);
        QByteArray sql;
        sqlite3_exec(
            handle, "SELECT sql FROM sqlite_schema WHERE type = 'trigger'",
            [](void *all, int, char **values, char **) {
                static_cast<QByteArray *>(all)->append(values[0]).append(";\n");
                return 0;
            },
            &sql, nullptr);
        sqlite3_close(handle);
        sql.replace("CREATE TRIGGER", "CREATE TRIGGER IF NOT EXISTS");
        sqlite3_open(stores.path().toUtf8().constData(), &handle);
        QCOMPARE(sqlite3_exec(handle, sql.constData(), nullptr, nullptr, nullptr), SQLITE_OK);
        sqlite3_close(handle);
    }

    QByteArray python(const Stores &stores, const QList<Checkpoint> &outside, int expectedCode)
    {
        const QString folder = stores.file(u"checkpoints"_s);
        const auto sink = folderSink(folder);
        for (const Checkpoint &checkpoint : outside) {
            if (sink->write(checkpoint).hasError())
                return "checkpoint not written";
        }
        QProcess verifier;
        verifier.start(QStringLiteral(PYTHON),
                       {QStringLiteral(VERIFIER), stores.path(), u"--checkpoints"_s, folder});
        verifier.waitForFinished();
        const QByteArray output = verifier.readAllStandardOutput() + verifier.readAllStandardError();
        return verifier.exitCode() == expectedCode
                   ? output
                   : "exit code " + QByteArray::number(verifier.exitCode()) + output;
    }
};

QTEST_GUILESS_MAIN(TestAuditDamage)
#include "tst_auditdamage.moc"
