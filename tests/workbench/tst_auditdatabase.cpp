#include "AuditFaults.h"
#include "SampleFixture.h"
#include "audit/AuditTrail.h"
#include "audit/AuditTrailJson.h"
#include "support/StrictTest.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::StringLiterals;
using namespace ozm::test;
using namespace workbench;

namespace {

constexpr auto kKnown = R"({"version":1,"type":"Set","subject":{"type":"Label","key":{"Name":"T1"}},)"
                        R"("attributes":["Charge"],"value":3,"oldValue":2,"undoContext":"New"})";

AuditRecord record(AuditKind kind, const QByteArray &json = kKnown, qint64 parent = 0)
{
    AuditRecord record;
    record.kind = kind;
    record.parent = parent;
    record.timeMs = 1700000000123;
    record.utcOffset = 5400;
    record.user = u"jdoe"_s;
    record.context = ozm::OperationLogItemUndoContext::New;
    record.json = json;
    return record;
}

AuditRecord commitOf(qint64 item, qint64 parent = 0)
{
    AuditRecord mark = record(AuditKind::Commit, {}, parent);
    mark.item = item;
    return mark;
}

} // namespace

class TestAuditDatabase : public ozm::test::StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { startAfresh(); }
    void cleanup() { startAfresh(); }
    void recordsSurviveReopening()
    {
        AuditRecord refused = record(AuditKind::Command, "not JSON \xff", 1);
        refused.outcome = ozm::Error(ozm::ErrorCode::BadParameter, u"no \"µ\""_s);
        QVERIFY(append({record(AuditKind::Macro), refused}));
        open();
        QVERIFY(append({commitOf(1)}));

        const auto records = m_database->recordsAfter(0).valueOr({});
        QCOMPARE(records.size(), 3);
        const AuditRecord &read = records.at(1);
        QCOMPARE(read.sequence, 2);
        QCOMPARE(read.item, 2);
        QCOMPARE(read.parent, 1);
        QCOMPARE(read.dateTime().toString(Qt::ISODateWithMs), u"2023-11-14T23:43:20.123+01:30"_s);
        QCOMPARE(read.user, u"jdoe"_s);
        QCOMPARE(read.context, ozm::OperationLogItemUndoContext::New);
        QCOMPARE(read.outcome, refused.outcome);
        QCOMPARE(read.json, refused.json);
        QCOMPARE(records.at(2).kind, AuditKind::Commit);
        QCOMPARE(records.at(2).item, 1);
        QCOMPARE(m_database->recordsAfter(2).valueOr({}).size(), 1);
    }

    void writesReachTheDisk()
    {
        // No test can pull the plug; these two settings are what SQLite asks for to survive it.
        QSqlQuery query(QSqlDatabase::database(m_database->connectionName(), false));
        QVERIFY(query.exec(u"PRAGMA journal_mode"_s) && query.next());
        QCOMPARE(query.value(0).toString(), u"wal"_s);
        QVERIFY(query.exec(u"PRAGMA synchronous"_s) && query.next());
        QCOMPARE(query.value(0).toInt(), 2);
    }

    void recordsCannotBeChanged_data()
    {
        QTest::addColumn<QString>("sql");
        QTest::newRow("update") << u"UPDATE audit_trail SET user = 'x'"_s;
        QTest::newRow("delete") << u"DELETE FROM audit_trail"_s;
        QTest::newRow("replace")
            << u"INSERT OR REPLACE INTO audit_trail SELECT sequence, kind, item, parent, "
               "time_ms, utc_offset_s, 'x', undo_context, 0, '', '' FROM audit_trail"_s;
        QTest::newRow("upsert") << u"INSERT INTO audit_trail SELECT * FROM audit_trail WHERE true "
                                   "ON CONFLICT DO UPDATE SET user = 'x'"_s;
    }
    void recordsCannotBeChanged()
    {
        QFETCH(QString, sql);
        QVERIFY(append({record(AuditKind::Command)}));
        QVERIFY(!runOn(*m_database, sql));
        const auto records = m_database->recordsAfter(0).valueOr({});
        QCOMPARE(records.size(), 1);
        QCOMPARE(records.constFirst().user, u"jdoe"_s);
    }

    void programsShareAFile()
    {
        const auto other = AuditDatabase::open(m_path);
        QVERIFY(other);
        QSet<qint64> items;
        for (int i = 0; i < 3; ++i) {
            QVERIFY(append({record(AuditKind::Command), record(AuditKind::Command)}));
            QVERIFY(other.value()->append({record(AuditKind::Command)}));
        }
        const auto records = m_database->recordsAfter(0).valueOr({});
        for (const AuditRecord &stored : records)
            items.insert(stored.item);
        QCOMPARE(items.size(), 9);
    }

    void unfitFilesAreRefused_data()
    {
        QTest::addColumn<QString>("sql");     // run on a trail of some pages, which is then closed
        QTest::addColumn<qint64>("position"); // where it is overwritten; -1: nowhere
        QTest::addColumn<QString>("message");
        QTest::newRow("newer version") << u"PRAGMA user_version = 2"_s << qint64(-1) << u"newer version"_s;
        QTest::newRow("other program's")
            << u"PRAGMA application_id = 7"_s << qint64(-1) << u"no audit trail"_s;
        QTest::newRow("unmarked") << u"PRAGMA application_id = 0"_s << qint64(-1) << u"no audit trail"_s;
        QTest::newRow("unguarded") << u"DROP TRIGGER audit_trail_no_update"_s << qint64(-1)
                                   << u"not guarded"_s;
        QTest::newRow("header overwritten") << QString() << qint64(0) << u"is damaged"_s;
        QTest::newRow("first page overwritten") << QString() << qint64(100) << u"is damaged"_s;
        QTest::newRow("middle overwritten") << QString() << qint64(20 * 4096) << u"is damaged"_s;
    }
    void unfitFilesAreRefused()
    {
        QFETCH(QString, sql);
        QFETCH(qint64, position);
        QFETCH(QString, message);
        for (int i = 0; i < 50; ++i)
            QVERIFY(append({record(AuditKind::Command, QByteArray(3000, 'x'))}));
        QVERIFY(sql.isEmpty() || runOn(*m_database, sql));
        m_database.reset();
        if (position >= 0)
            QVERIFY(overwrite(m_path, position, QByteArray(600, '\xa5')));
        const QByteArray before = readFile(m_path);

        const auto opened = AuditDatabase::open(m_path);
        QVERIFY(opened.hasError());
        QVERIFY2(opened.error().errorMessage().contains(message),
                 qUtf8Printable(opened.error().errorMessage()));
        QVERIFY2(readFile(m_path) == before, "a file that is refused is not written to");
    }

    void macrosShowAsTheyEnded_data()
    {
        QTest::addColumn<QList<AuditRecord>>("records");
        QTest::addColumn<QStringList>("shape"); // item numbers, indented; "?" after those not finished
        const AuditRecord macro = record(AuditKind::Macro);
        const AuditRecord one = record(AuditKind::Command, kKnown, 1);
        QTest::newRow("empty, not finished") << QList{macro} << QStringList{};
        QTest::newRow("not finished") << QList{macro, one, one} << QStringList{u"1?"_s, u" 2"_s, u" 3"_s};
        QTest::newRow("finished") << QList{macro, one, one, commitOf(1)}
                                  << QStringList{u"1"_s, u" 2"_s, u" 3"_s};
        QTest::newRow("finished, empty") << QList{macro, commitOf(1)} << QStringList{u"1"_s};
        QTest::newRow("stood for by its one child") << QList{macro, one, commitOf(2)} << QStringList{u"2"_s};
        QTest::newRow("inner without commands")
            << QList{macro, record(AuditKind::Macro, kKnown, 1), one} << QStringList{u"1?"_s, u" 3"_s};
        QTest::newRow("inner stood for by its child, in the outer")
            << QList{macro, record(AuditKind::Macro, kKnown, 1), record(AuditKind::Command, kKnown, 2),
                     commitOf(3, 1), commitOf(1)}
            << QStringList{u"1"_s, u" 3"_s};
        QTest::newRow("event after") << QList{macro, record(AuditKind::Event)} << QStringList{u"2"_s};
    }
    void macrosShowAsTheyEnded()
    {
        QFETCH(QList<AuditRecord>, records);
        QFETCH(QStringList, shape);
        const std::function<QStringList(const std::vector<AuditEntry *> &, const QString &)> shapeOf =
            [&shapeOf](const std::vector<AuditEntry *> &entries, const QString &indent) {
                QStringList texts;
                for (const AuditEntry *entry : entries) {
                    texts += indent + QString::number(entry->record.item) +
                             (entry->isUnfinished() ? "?"_L1 : ""_L1);
                    texts += shapeOf(entry->children, indent + u' ');
                }
                return texts;
            };

        AuditTrail live(*m_database);
        for (const AuditRecord &row : records) {
            QVERIFY(append({row}));
            QVERIFY(!live.refresh().hasError());
        }
        QCOMPARE(shapeOf(live.entries(), {}), shape);

        open();
        AuditTrail reread(*m_database);
        QVERIFY(!reread.refresh().hasError());
        QCOMPARE(shapeOf(reread.entries(), {}), shape);
    }

    void unknownRecordsStayAsTheyAre_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<bool>("isJson");
        QTest::newRow("type of a later version")
            << QByteArray(R"({ "type":"Recalibrate",  "z":1.00, "a":12345678901234567890, "a":2 })") << true;
        QTest::newRow("later version of the form")
            << QByteArray(R"({"version":2,"type":"Set","subject":{"type":"Label"},"attributes":["a"]})")
            << true;
        QTest::newRow("subject of a later version")
            << QByteArray(R"({"version":1,"type":"Set","subject":{"type":"Foo"},"attributes":["a"]})")
            << true;
        QTest::newRow("array") << QByteArray("[1, 2 ]") << true;
        QTest::newRow("cut off") << QByteArray(kKnown).chopped(1) << false;
        QTest::newRow("bytes") << QByteArray("\x00\xff{", 3) << false;
        QTest::newRow("byte-order mark") << QByteArray("\xEF\xBB\xBF{\"type\":\"Later\"}") << false;
        QTest::newRow("nothing") << QByteArray() << false;
    }
    void unknownRecordsStayAsTheyAre()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(bool, isJson);
        QVERIFY(append({record(AuditKind::Macro), record(AuditKind::Command, bytes, 1),
                        record(AuditKind::Command, kKnown, 2), commitOf(1)}));
        open();
        AuditTrail trail(*m_database);
        QVERIFY(!trail.refresh().hasError());
        const AuditEntry *entry = trail.entries().at(0)->children.at(0);
        QVERIFY(!entry->known);
        QVERIFY(entry->text.startsWith("Unknown record"_L1));
        QCOMPARE(entry->record.json, bytes);

        const QByteArray json = auditTrailJson(trail);
        QJsonParseError error{};
        const QJsonDocument document = QJsonDocument::fromJson(json, &error);
        QCOMPARE(error.error, QJsonParseError::NoError);
        const QJsonObject macro = document.array().at(0).toObject();
        QCOMPARE(macro.value("time"_L1).toString(), u"2023-11-14T23:43:20.123+01:30"_s);
        const QJsonObject unknown = macro.value("children"_L1).toArray().at(0).toObject();
        QCOMPARE(unknown.value("id"_L1).toInt(), 2);
        QCOMPARE(unknown.value("children"_L1).toArray().size(), 1);
        if (isJson)
            QVERIFY(json.contains("\"record\":" + bytes));
        else
            QCOMPARE(unknown.value("recordBase64"_L1).toString(), QString::fromLatin1(bytes.toBase64()));
        QCOMPARE(m_database->recordsAfter(1).valueOr({}).constFirst().json, bytes);
    }

    void trailFollowsWhatIsAdded()
    {
        AuditTrail trail(*m_database);
        const QSignalSpy appended(&trail, &AuditTrail::aboutToAppend);
        const QSignalSpy reset(&trail, &AuditTrail::wasReset);
        QVERIFY(append({record(AuditKind::Command)}));
        QVERIFY(!trail.refresh().hasError());
        QVERIFY(append({record(AuditKind::Macro), record(AuditKind::Command, kKnown, 2)}));
        QVERIFY(!trail.refresh().hasError());
        QCOMPARE(appended.size(), 2);
        QCOMPARE(appended.at(1), (QVariantList{1, 1}));
        QVERIFY2(reset.isEmpty(), "views lose their place when they are reset");

        QVERIFY(append({commitOf(2)}));
        QVERIFY(!trail.refresh().hasError());
        QCOMPARE(reset.size(), 1);
    }

private:
    void startAfresh()
    {
        m_database.reset();
        m_folder = std::make_unique<QTemporaryDir>();
        m_path = m_folder->filePath(u"audit.sqlite"_s);
        open();
        QVERIFY(m_database);
    }

    void open()
    {
        m_database.reset();
        auto opened = AuditDatabase::open(m_path);
        if (opened)
            m_database = std::move(opened).value();
    }

    bool append(const QList<AuditRecord> &records) { return !m_database->append(records).hasError(); }

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_path;
    std::unique_ptr<AuditDatabase> m_database;
};

QTEST_GUILESS_MAIN(TestAuditDatabase)
#include "tst_auditdatabase.moc"
