// The trail as people see it, and the trail of earlier versions that it begins with.

#include "audit/AuditTrail.h"
#include "audit/AuditTrailJson.h"
#include "audit/TrailStore.h"
#include "support/Files.h"
#include "support/StrictTest.h"

#include <ozm_audit/Store.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

#include <sqlite3.h>

using namespace Qt::StringLiterals;
using namespace ozm::audit;
using namespace workbench;

namespace {

constexpr auto kKnown = R"({"version":1,"type":"Set","subject":{"type":"Label","key":{"Name":"T1"}},)"
                        R"("attributes":["Charge"],"value":3,"oldValue":2,"undoContext":"New"})";

/// A trail of the form that was written before, with one command.
constexpr const char *kFormer = R"(
PRAGMA application_id = 0x4F5A4D57;
CREATE TABLE audit_trail (sequence INTEGER PRIMARY KEY AUTOINCREMENT, kind TEXT, item INTEGER, parent INTEGER,
    time_ms INTEGER, utc_offset_s INTEGER, user TEXT, undo_context TEXT, outcome_code INTEGER, outcome_text TEXT,
    record BLOB);
INSERT INTO audit_trail VALUES (1, 'command', 1, NULL, 1700000000000, 0, 'jdoe', 'New', 0, '', x'00ff');
)";

Draft record(Kind kind, const QByteArray &json = kKnown, qint64 parent = 0)
{
    Draft record;
    record.kind = kind;
    record.parent = parent;
    record.timeMs = 1700000000123;
    record.utcOffset = 5400;
    record.user.id = u"jdoe"_s;
    record.context = u"New"_s;
    record.record = json;
    return record;
}

Draft commitOf(qint64 item, qint64 parent = 0)
{
    return record(Kind::Commit, "{\"parent\":" + QByteArray::number(parent) + '}', item);
}

} // namespace

class TestAuditTrail : public ozm::test::StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        auto opened = Store::open(u"memory:"_s);
        QVERIFY(opened);
        m_store = std::move(opened).value();
    }

    void macrosShowAsTheyEnded_data()
    {
        QTest::addColumn<QList<Draft>>("records");
        QTest::addColumn<QStringList>("shape"); // item numbers, indented; "?" after those not finished
        const Draft macro = record(Kind::Macro);
        const Draft one = record(Kind::Command, kKnown, 1);
        QTest::newRow("empty, not finished") << QList{macro} << QStringList{};
        QTest::newRow("not finished") << QList{macro, one, one} << QStringList{u"1?"_s, u" 2"_s, u" 3"_s};
        QTest::newRow("finished") << QList{macro, one, one, commitOf(1)}
                                  << QStringList{u"1"_s, u" 2"_s, u" 3"_s};
        QTest::newRow("finished, empty") << QList{macro, commitOf(1)} << QStringList{u"1"_s};
        QTest::newRow("stood for by its one child") << QList{macro, one, commitOf(2)} << QStringList{u"2"_s};
        QTest::newRow("inner without commands")
            << QList{macro, record(Kind::Macro, kKnown, 1), one} << QStringList{u"1?"_s, u" 3"_s};
        QTest::newRow("inner stood for by its child, in the outer")
            << QList{macro, record(Kind::Macro, kKnown, 1), record(Kind::Command, kKnown, 2), commitOf(3, 1),
                     commitOf(1)}
            << QStringList{u"1"_s, u" 3"_s};
        QTest::newRow("event after") << QList{macro, record(Kind::Event)} << QStringList{u"2"_s};
    }
    void macrosShowAsTheyEnded()
    {
        QFETCH(QList<Draft>, records);
        QFETCH(QStringList, shape);
        const std::function<QStringList(const std::vector<AuditEntry *> &, const QString &)> shapeOf =
            [&shapeOf](const std::vector<AuditEntry *> &entries, const QString &indent) {
                QStringList texts;
                for (const AuditEntry *entry : entries) {
                    texts += indent + QString::number(entry->record.number) +
                             (entry->isUnfinished() ? "?"_L1 : ""_L1);
                    texts += shapeOf(entry->children, indent + u' ');
                }
                return texts;
            };

        AuditTrail live(*m_store);
        for (const Draft &row : records) {
            QVERIFY(append({row}));
            QVERIFY(!live.refresh().hasError());
        }
        QCOMPARE(shapeOf(live.entries(), {}), shape);

        AuditTrail reread(*m_store);
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
        QVERIFY(append({record(Kind::Macro), record(Kind::Command, bytes, 1),
                        record(Kind::Command, kKnown, 2), commitOf(1)}));
        AuditTrail trail(*m_store);
        QVERIFY(!trail.refresh().hasError());
        const AuditEntry *entry = trail.entries().at(0)->children.at(0);
        QVERIFY(!entry->known);
        QVERIFY(entry->text.startsWith("Unknown record"_L1));
        QCOMPARE(entry->record.record, bytes);

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
    }

    void trailFollowsWhatIsAdded()
    {
        AuditTrail trail(*m_store);
        const QSignalSpy appended(&trail, &AuditTrail::aboutToAppend);
        const QSignalSpy reset(&trail, &AuditTrail::wasReset);
        QVERIFY(append({record(Kind::Command)}));
        QVERIFY(!trail.refresh().hasError());
        QVERIFY(append({record(Kind::Macro), record(Kind::Command, kKnown, 2)}));
        QVERIFY(!trail.refresh().hasError());
        QCOMPARE(appended.size(), 2);
        QCOMPARE(appended.at(1), (QVariantList{1, 1}));
        QVERIFY2(reset.isEmpty(), "views lose their place when they are reset");

        QVERIFY(append({commitOf(2)}));
        QVERIFY(!trail.refresh().hasError());
        QCOMPARE(reset.size(), 1);
    }

    void formerTrailIsTakenOverOnce()
    {
        const QTemporaryDir folder;
        const QString former = folder.filePath(u"audit.sqlite"_s);
        sqlite3 *handle = nullptr;
        sqlite3_open(former.toUtf8().constData(), &handle);
        QCOMPARE(sqlite3_exec(handle, kFormer, nullptr, nullptr, nullptr), SQLITE_OK);
        sqlite3_close(handle);
        const QByteArray before = ozm::test::readFile(former);
        for (int time = 0; time < 2; ++time) {
            const auto store = openTrail({}, folder.path(), u"mroe"_s);
            QVERIFY2(store, store ? "" : qPrintable(store.error().errorMessage()));
            const auto entries = store.value()->find({}).value();
            QCOMPARE(entries.size(), 2);
            QCOMPARE(entries.at(0).user.id, u"mroe"_s);
            QVERIFY(entries.at(0).record.contains("audit.sqlite"));
            QCOMPARE(entries.at(1).user.id, u"jdoe"_s);
            QCOMPARE(entries.at(1).record, QByteArray("\0\xff", 2));
        }
        QCOMPARE(ozm::test::readFile(former), before);
        QCOMPARE(QDir(folder.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot).filter(u"taking"_s),
                 QStringList());
    }

private:
    bool append(const QList<Draft> &drafts) { return !m_store->append(drafts).hasError(); }

    std::unique_ptr<Store> m_store;
};

QTEST_GUILESS_MAIN(TestAuditTrail)
#include "tst_audittrail.moc"
