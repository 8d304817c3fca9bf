// The bad days of an SQLite store: each is a clear error, and nothing that is stored is touched.

#include "StoreFixture.h"

#include "../../audit/src/sqlite/FileSystems.h"
#include "support/FullDisk.h"
#include "support/WithoutRights.h"

#include <QFile>
#include <sqlite3.h>

using namespace ozm::test;

namespace {

bool sql(const QString &path, const char *statements)
{
    sqlite3 *handle = nullptr;
    const bool ok = sqlite3_open(path.toUtf8().constData(), &handle) == SQLITE_OK &&
                    sqlite3_exec(handle, statements, nullptr, nullptr, nullptr) == SQLITE_OK;
    sqlite3_close(handle);
    return ok;
}

bool overwrite(const QString &path, qint64 position, const QByteArray &bytes)
{
    QFile file(path);
    return file.open(QIODevice::ReadWrite) && file.seek(position) && file.write(bytes) == bytes.size();
}

} // namespace

class TestAuditSqlite : public StrictTest
{
    Q_OBJECT

    std::unique_ptr<Store> make(const Stores &stores, const QString &kind = u"sqlite"_s)
    {
        auto store = Store::open(stores.address(kind));
        if (!store || !store.value()->append(drafts(1, 5)))
            return nullptr;
        return std::move(store).value();
    }

private Q_SLOTS:
    void refusesWhatItCannotUse_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<QByteArray>("sql");
        QTest::addColumn<QString>("says");
        QTest::newRow("something else")
            << QByteArray() << QByteArray("CREATE TABLE x(y)") << u"something else"_s;
        QTest::newRow("former form") << QByteArray()
                                     << QByteArray("CREATE TABLE x(y); PRAGMA application_id = 1331318103")
                                     << u"ozm-audit import"_s;
        QTest::newRow("no database") << QByteArray(5000, 'x') << QByteArray() << u"not an audit trail"_s;
        QTest::newRow("newer form") << QByteArray("trail") << QByteArray("PRAGMA user_version = 9")
                                    << u"newer version"_s;
        QTest::newRow("no guards") << QByteArray("trail") << QByteArray("DROP TRIGGER entry_no_delete")
                                   << u"guards"_s;
    }
    void refusesWhatItCannotUse()
    {
        QFETCH(QByteArray, file);
        QFETCH(QByteArray, sql);
        QFETCH(QString, says);
        const Stores stores;
        if (file == "trail")
            QVERIFY(make(stores));
        else
            QVERIFY(file.isEmpty() || (QFile(stores.path()).open(QIODevice::NewOnly | QIODevice::WriteOnly) &&
                                       overwrite(stores.path(), 0, file)));
        QVERIFY(sql.isEmpty() || ::sql(stores.path(), sql.constData()));
        const auto store = Store::open(stores.path());
        QVERIFY(store.hasError());
        QVERIFY2(store.error().errorMessage().contains(says), qPrintable(store.error().errorMessage()));
    }

    void refusesAStep_data()
    {
        QTest::addColumn<QString>("kind");
        QTest::addColumn<QString>("fault");
        QTest::addColumn<QString>("says");
        for (const auto *kind : {"sqlite", "shared"}) {
            const auto row = [kind](const char *fault, const QString &says) {
                QTest::addRow("%s, %s", kind, fault)
                    << QString::fromLatin1(kind) << QString::fromLatin1(fault) << says;
            };
            row("deleted", u"deleted or replaced"_s);
            row("replaced", u"deleted or replaced"_s);
#ifdef Q_OS_UNIX
            // A limit on the file: SQLite sees a write that fails, not a disk that says it is full.
            row("full", u"disk"_s);
#endif
        }
        QTest::newRow("put back") << u"shared"_s << u"put back"_s << u"head was changed"_s;
        QTest::newRow("damaged") << u"shared"_s << u"damaged"_s << u"damaged"_s;
    }
    void refusesAStep()
    {
        QFETCH(QString, kind);
        QFETCH(QString, fault);
        QFETCH(QString, says);
        const Stores stores;
        auto store = make(stores, kind);
        QVERIFY(store);
        const QByteArray last = store->entry(5).value().bytes;
        Draft step = draft(6);
#ifdef Q_OS_UNIX
        std::optional<FullDisk> full;
        if (fault == "full"_L1) {
            step.record = "{\"x\":\"" + QByteArray(200'000, 'x') + "\"}";
            full.emplace(QFile(stores.path()).size() + 50'000);
        }
#endif
        if (fault == "deleted"_L1 || fault == "replaced"_L1)
            QVERIFY(QFile::rename(stores.path(), stores.file(u"away"_s)));
        if (fault == "replaced"_L1)
            QVERIFY(QFile::copy(stores.file(u"away"_s), stores.path()));
        if (fault == "put back"_L1)
            QVERIFY(sql(stores.path(), "UPDATE head SET size = 4, frontier = zeroblob(32)"));
        if (fault == "damaged"_L1)
            QVERIFY(overwrite(stores.path(), 0, QByteArray(4096, 'x')));
        const auto appended = store->append({step});
        QVERIFY(appended.hasError());
        QVERIFY2(appended.error().errorMessage().contains(says), qPrintable(appended.error().errorMessage()));
        QCOMPARE(appended.error().errorCode(), ozm::ErrorCode::FileAccess);
#ifdef Q_OS_UNIX
        if (full) {
            full.reset();
            QCOMPARE(store->append({step}).value(), 6);
            QCOMPARE(store->entry(5).value().bytes, last);
            QVERIFY(store->verify().value().isWhole());
        }
#endif
    }

    void isForOneProgramAtATime()
    {
        const Stores stores;
        auto store = make(stores);
        const auto other = Store::open(stores.path());
        QVERIFY(other.hasError());
        QVERIFY2(other.error().errorMessage().contains(u"locked by another program"_s),
                 qPrintable(other.error().errorMessage()));
        QVERIFY(Store::open(stores.path(), Store::Mode::Create).hasError());
        store.reset();
        {
            const auto shared = Store::open(stores.address(u"shared"_s));
            const auto alone = Store::open(stores.path());
            QVERIFY(shared && alone.hasError());
            QVERIFY(alone.error().errorMessage().contains(u"locked by another program"_s));
        }
        QVERIFY(Store::open(stores.path()));
        QVERIFY(Store::open(stores.file(u"none"_s), Store::Mode::Existing).hasError());
        QVERIFY(!QFile::exists(stores.file(u"none"_s)));
    }

#ifdef Q_OS_LINUX
    void saysThatItIsReadOnly()
    {
        const Stores stores;
        make(stores).reset();
        setMode(stores.path(), 0444);
        const WithoutRights user;
        const auto store = Store::open(stores.path());
        QVERIFY(store.hasError());
        QVERIFY2(store.error().errorMessage().contains(u"read-only"_s) ||
                     store.error().errorMessage().contains(u"cannot be opened"_s),
                 qPrintable(store.error().errorMessage()));
    }
#endif

    void guardsAgainstAccidents()
    {
        const Stores stores;
        make(stores).reset();
        for (const char *accident :
             {"DELETE FROM entry", "UPDATE entry SET bytes = x'00'", "UPDATE entry SET bytes = NULL",
              "INSERT OR REPLACE INTO entry VALUES (3, x'00', x'00')",
              "DELETE FROM checkpoint WHERE (SELECT 1) = 2; "
              "UPDATE entry SET number = number + 100"})
            QVERIFY2(!sql(stores.path(), accident), accident);
        const auto store = Store::open(stores.path());
        QVERIFY(store.value()->verify().value().isWhole());
    }

    void knowsFileSystems_data()
    {
        QTest::addColumn<bool>("untrusted");
        for (const auto *type : {"nfs", "nfs4", "cifs", "smb3", "9p", "virtiofs", "fuse.sshfs",
                                 "fuse.gvfsd-fuse", "CEPH", "osxfuse", "webdav"})
            QTest::newRow(type) << true;
        for (const auto *type :
             {"ext4", "xfs", "btrfs", "tmpfs", "overlay", "apfs", "hfs", "NTFS", "fuseblk", "zfs", ""})
            QTest::newRow(type) << false;
    }
    void knowsFileSystems()
    {
        QTEST(isUntrustedFileSystem(QTest::currentDataTag()), "untrusted");
    }
};

QTEST_GUILESS_MAIN(TestAuditSqlite)
#include "tst_auditsqlite.moc"
