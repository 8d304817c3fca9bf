// Inspection copies, archives, and trails of the former form.

#include "StoreFixture.h"

#include <ozm_audit/InspectionCopy.h>

#include <QFile>
#include <QProcess>
#include <sqlite3.h>

using namespace ozm::test;

namespace {

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// As the workbench wrote its trail before: a macro with a command below it, its mark, and odd bytes.
constexpr const char *kFormer = R"(
CREATE TABLE audit_trail (sequence INTEGER PRIMARY KEY AUTOINCREMENT, kind TEXT, item INTEGER, parent INTEGER,
    time_ms INTEGER, utc_offset_s INTEGER, user TEXT, undo_context TEXT, outcome_code INTEGER, outcome_text TEXT,
    record BLOB);
INSERT INTO audit_trail VALUES (1, 'event', 1, NULL, 1700000000000, 3600, 'jdoe', 'None', 0, '', '{"type":"Event"}');
INSERT INTO audit_trail VALUES (5, 'macro', 5, NULL, 1700000001000, 3600, 'jdoe', 'New', 0, '', '{"x":1}');
INSERT INTO audit_trail VALUES (6, 'command', 6, 5, 1700000002000, 3600, 'mroe', 'New', 4, 'disk full',
    '{"version":1,"type":"Set","subject":{"type":"Label","key":{"Name":"T1"}},"attributes":["Mass"],"value":1,"undoContext":"New"}');
INSERT INTO audit_trail VALUES (7, 'commit', 5, NULL, 1700000003000, 3600, 'jdoe', 'Invalid', 0, '', x'');
INSERT INTO audit_trail VALUES (8, 'command', 8, NULL, 1700000004000, 0, 'jdoe', 'Undo', 0, '', x'00ff');
)";

} // namespace

class TestAuditCopy : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void leavesNothingOfACancelledCopy()
    {
        const Stores stores;
        auto store = Store::open(stores.path());
        VERIFY_RESULT(store.value()->append(drafts(1, 20)));
        // Cancelled while it reads, and while it writes.
        for (const qint64 until : {5, 30}) {
            CopyOptions options;
            options.progress = [until](qint64 done, qint64) { return done < until; };
            QVERIFY(writeInspectionCopy(*store.value(), stores.file(u"copy"_s), options).hasError());
            QVERIFY(!QFileInfo::exists(stores.file(u"copy"_s)));
        }
        QCOMPARE(store.value()->entry(24).value().kind, Kind::Export);
        QVERIFY(store.value()->entry(24).value().outcomeCode != 0);
        QVERIFY(store.value()->verify({}, nullptr, [](qint64, qint64) { return false; }).hasError());
    }

    void copiesAllOrAPart_data()
    {
        QTest::addColumn<bool>("whole");
        QTest::addColumn<bool>("byNumbers");
        QTest::addColumn<int>("entries");
        QTest::newRow("the whole trail") << true << false << 302;
        QTest::newRow("a part, with proofs") << false << false << 99;
        QTest::newRow("chosen entries, some after the checkpoint") << false << true << 2;
    }
    void copiesAllOrAPart()
    {
        QFETCH(bool, whole);
        QFETCH(bool, byNumbers);
        const Stores stores;
        auto store = Store::open(stores.path());
        VERIFY_RESULT(store.value()->append(drafts(1, 300)));
        Draft order = draft(0);
        order.reason = u"retention"_s;
        order.authoriser = u"boss"_s;
        VERIFY_RESULT(store.value()->dispose({7, 8}, order));
        const auto key = SigningKey::generate(store.value()->trail());
        CopyOptions options;
        options.user = {u"inspector"_s};
        options.key = &key.value();
        options.verifier = QStringLiteral(VERIFIER);
        if (!whole && !byNumbers) {
            options.query.subjectKey = u"{\"Name\":\"T1\"}"_s;
            options.query.subjectType = u"Label"_s;
        } else if (byNumbers) {
            options.ranges = {{4, 4}, {302, 400}};
            options.choice = u"by hand"_s;
        }
        const QString folder = stores.file(u"copy"_s);
        const ozm::Error error = writeInspectionCopy(*store.value(), folder, options);
        QVERIFY2(!error.hasError(), qPrintable(error.errorMessage()));
        QVERIFY(writeInspectionCopy(*store.value(), folder, options).hasError());
        QCOMPARE(store.value()->entry(302).value().kind, Kind::Export);
        QVERIFY(contentOf(folder + u"/trail.pdf"_s).startsWith("%PDF"));
        QVERIFY(contentOf(folder + u"/trail.csv"_s).startsWith("number,time,zone,user"));
        const auto checkpoints = Checkpoint::inFolder(folder + u"/checkpoints"_s);
        const Checkpoint last = checkpoints.value().constLast();
        QVERIFY(PublicKey::fromText(QString::fromUtf8(contentOf(folder + u"/key.pub"_s)))
                    .value()
                    .verifies(last.note));
        if (whole) {
            const auto copy = Store::open(folder + u"/trail.sqlite"_s, Store::Mode::ReadOnly);
            VERIFY_RESULT(copy);
            const auto verified = copy.value()->verify(checkpoints.value());
            QVERIFY2(verified.value().isWhole(), qPrintable(verified.value().toString()));
            QCOMPARE(verified.value().anchored, 302);
            QCOMPARE(copy.value()->find({.attribute = u"Mass"_s}).value().size(), 75);
            QProcess python;
            python.setWorkingDirectory(folder);
            python.start(QStringLiteral(PYTHON),
                         {u"ozm_audit_verify.py"_s, u"trail.sqlite"_s, u"--checkpoints"_s, u"checkpoints"_s});
            python.waitForFinished();
            QVERIFY(python.readAllStandardOutput().contains("The trail is whole."));
            QCOMPARE(python.exitCode(), 0);
        } else {
            const auto proof = Proof::fromText(contentOf(folder + u"/proofs/000000000004.tlog-proof"_s));
            VERIFY_RESULT(proof);
            QVERIFY(proof.value().proves(store.value()->entry(4).value().bytes));
            QCOMPARE(contentOf(folder + u"/README.txt"_s).contains("by hand"), byNumbers);
            QCOMPARE(store.value()->entry(302).value().record.contains("by hand"), byNumbers);
        }
        QTEST(int(contentOf(folder + u"/entries.ndjson"_s).count('\n')), "entries");
    }

    void takesOverAFormerTrail()
    {
        const Stores stores;
        const QString former = stores.file(u"audit.sqlite"_s);
        sqlite3 *handle = nullptr;
        sqlite3_open(former.toUtf8().constData(), &handle);
        QCOMPARE(sqlite3_exec(handle, kFormer, nullptr, nullptr, nullptr), SQLITE_OK);
        sqlite3_close(handle);
        auto store = Store::open(stores.path());
        Draft who = draft(0);
        QCOMPARE(importFormerTrail(*store.value(), former, who).value(), 5);
        const auto entry = [&store](qint64 number) { return store.value()->entry(number).value(); };
        QVERIFY(entry(1).record.contains("\"sha256\":\""));
        QCOMPARE(entry(2).record, QByteArray("{\"type\":\"Event\"}"));
        QCOMPARE(entry(2).timeMs, 1700000000000);
        QCOMPARE(entry(4).parent, 3);
        QCOMPARE(entry(4).outcomeText, u"disk full"_s);
        QCOMPARE(entry(4).user.id, u"mroe"_s);
        QCOMPARE(entry(4).subjectKey, u"{\"Name\":\"T1\"}"_s);
        QCOMPARE(entry(5).kind, Kind::Commit);
        QCOMPARE(entry(5).parent, 3);
        QCOMPARE(entry(6).record, QByteArray("\0\xff", 2));
        QVERIFY(store.value()->verify().value().isWhole());
        QVERIFY(importFormerTrail(*store.value(), stores.file(u"none"_s), who).hasError());
    }
};

QTEST_MAIN(TestAuditCopy)
#include "tst_auditcopy.moc"
