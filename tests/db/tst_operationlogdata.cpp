#include "support/StrictTest.h"

#include <ozm_common_core_mini/ColumnNames.h>
#include <ozm_common_core_mini/RowNode.h>
#include <ozm_widgets/db/common/OperationLogItemData.h>

#include <QJsonArray>
#include <QJsonDocument>

using namespace Qt::StringLiterals;
using Data = ozm::OperationLogItemData;
using Subject = ozm::OperationLogItemSubject;
using ItemType = ozm::OperationLogItemType;
using Context = ozm::OperationLogItemUndoContext;
using Values = QMap<QString, QVariant>;

namespace {

Data label(ItemType type, const QVariant &value, const QVariant &oldValue = {},
           Context context = Context::New)
{
    Data data(type, Subject(Subject::Type::Label, Values{{kName, u"T12"_s}}, {}), {kCharge}, value, oldValue);
    data.setUndoContext(context);
    return data;
}

Data legacy(const QString &text)
{
    Data data;
    data.setLegacyDescription(text);
    return data;
}

template <typename Value, typename ToText, typename FromText>
void checkTexts(const QString &texts, ToText toText, FromText fromText)
{
    const QStringList all = texts.split(u' ');
    for (int value = 0; value < all.size(); ++value) {
        QCOMPARE(toText(static_cast<Value>(value)), all.at(value));
        QCOMPARE(static_cast<int>(fromText(all.at(value))), value);
    }
    for (const int value : {-1, static_cast<int>(all.size()), 1000000})
        QCOMPARE(toText(static_cast<Value>(value)), QString());
    for (const QString &text : {QString(), all.last().toLower(), u' ' + all.last()})
        QCOMPARE(static_cast<int>(fromText(text)), 0);
}

} // namespace

class TestOperationLogData : public ozm::test::StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void enumerations()
    {
        checkTexts<Subject::Type>(
            u"None Project Trace ElutionPeak Peptide PepmapCandidate PepmapSample Plot Protein "
            "ColumnFiltersPreset ProteinAnnotation SampleRun File IntactMass XIC PrimaryPeptide "
            "PrimaryPeptideXIC Scan SearchResult ProteinDataBank Label BottomUp ProteinTarget "
            "PeptidesAttributes"_s,
            [](Subject::Type type) { return Subject::typeToString(type); }, Subject::stringToType);
        checkTexts<ItemType>(u"None Add Set Delete Event"_s, Data::typeToString, Data::stringToType);
        checkTexts<Context>(u"Invalid None New Undo Redo"_s, Data::undoContextToString,
                            Data::stringToUndoContext);
    }

    void keysFromRows()
    {
        RowNode first({kName, QString(), kId, kSequence, kCalcMr});
        first.setDataAt(QString(), u"unnamed"_s);
        first.setDataAt(kSequence, u"PEP"_s);
        RowNode second({kSequence});
        second.setDataAt(kSequence, u"PEPTIDE"_s);
        QCOMPARE(Subject(Subject::Type::ProteinDataBank, first).key(),
                 (Values{{kName, {}}, {QString(), u"unnamed"_s}}));
        QVERIFY(Subject(Subject::Type::Project, first).key().isEmpty());
        QVERIFY(Subject(static_cast<Subject::Type>(24), first).key().isEmpty());
        const QMap<QString, RowNode *> rows{{u"a"_s, &first}, {u"b"_s, &second}, {u"c"_s, nullptr}};
        QCOMPARE(Subject(Subject::Type::PepmapCandidate, rows).key(),
                 (Values{{kSequence, u"PEPTIDE"_s}, {kCalcMr, {}}}));
    }

    void subjectTextAndJson()
    {
        const Subject subject(Subject::Type::Peptide, Values{{kSequence, u"PEPTIDE"_s}, {kCharge, 2}},
                              Values{{u"Two\nlines"_s, QStringList{u"a"_s, u"b\r"_s}}});
        QCOMPARE(subject.toString(), u"Peptide Charge: 2, Sequence: PEPTIDE"_s);
        QCOMPARE(subject.explicitSecondaryKeyToString(), u"Two\\nlines: a, b\\r"_s);
        const Subject read(subject.toJsonObject());
        QCOMPARE(read.key(), subject.key());
        QVERIFY2(Subject(Subject::Type::Peptide, subject.key(), {}) != subject, "one has a second key");
        QJsonObject unknown = subject.toJsonObject();
        unknown.insert("type"_L1, u"Foo"_s);
        QVERIFY2(Subject(unknown) == Subject(), "a subject of an unknown kind carries no key");
    }

    void text_data()
    {
        QTest::addColumn<Data>("data");
        QTest::addColumn<QString>("text");
        const QString subject = u"Label ID=Name: T12 'Charge'"_s;
        const auto row = [](const char *name, const Data &data, const QString &text) {
            QTest::newRow(name) << data << text;
        };
        row("set", label(ItemType::Set, 3, 2), u"Set "_s + subject + u" from 2 to 3"_s);
        row("set first", label(ItemType::Set, 3), u"Set "_s + subject + u" to 3"_s);
        row("set from empty text", label(ItemType::Set, 3, QString()), u"Set "_s + subject + u" from to 3"_s);
        row("set from null number", label(ItemType::Set, 3, QVariant(QMetaType(QMetaType::Int))),
            u"Set "_s + subject + u" from to 3"_s);
        row("set to empty list", label(ItemType::Set, QVariantList(), 2),
            u"Set "_s + subject + u" from 2 to null"_s);
        row("set empty to empty", label(ItemType::Set, QString(), QString()), u"Set "_s + subject);
        row("set to false", label(ItemType::Set, false, 1.5), u"Set "_s + subject + u" from 1.5 to false"_s);
        row("add, old value empty", label(ItemType::Add, 3, QString()), u"Add "_s + subject + u": 3"_s);
        row("add nothing", label(ItemType::Add, {}), u"Add "_s + subject);
        row("delete", label(ItemType::Delete, {}, 2), u"Delete "_s + subject + u" from 2: null"_s);
        row("event", label(ItemType::Event, u"done"_s), u"Event "_s + subject + u" to done"_s);
        row("undo", label(ItemType::Set, 3, {}, Context::Undo), u"UNDO Set "_s + subject + u" to 3"_s);
        row("redo", label(ItemType::Set, 3, {}, Context::Redo), u"REDO Set "_s + subject + u" to 3"_s);
        row("markers", label(ItemType::Set, u"%1 %2"_s, u"%3"_s),
            u"Set "_s + subject + u" from %3 to %1 %2"_s);
        row("line breaks", label(ItemType::Set, u"a\n\tb\x2028"_s),
            u"Set "_s + subject + u" to a\\n\\tb\\u2028"_s);
        row("legacy", legacy(u"Charge\r\nset"_s), u"Charge\\r\\nset"_s);
        row("secondary key",
            Data(ItemType::Set, Subject(Subject::Type::Plot, {}, Values{{kTitle, u"TIC"_s}}),
                 {u"Zoom"_s, u"Pan"_s}, 2),
            u"Set Plot [Title: TIC] 'Zoom, Pan' to 2"_s);
        row("default", {}, {});
        row("no type", Data(ItemType::None, Subject::Type::Label, {u"a"_s}, 1), {});
        row("no subject", Data(ItemType::Set, {}, {u"a"_s}, 1), {});
        row("no attributes", Data(ItemType::Set, Subject::Type::Label, {}, 1), {});
        row("no context", label(ItemType::Set, 3, 2, Context::Invalid), {});
    }
    void text()
    {
        QFETCH(Data, data);
        QFETCH(QString, text);
        QCOMPARE(data.toString(), text);
        QString debug;
        QDebug(&debug) << data;
        QCOMPARE(debug.trimmed(), u"OperationLogItemData{%1}"_s.arg(text));
        QCOMPARE(data.isValid(), !text.isEmpty());
        QCOMPARE(data.toJsonObject().isEmpty(), text.isEmpty());
    }

    void jsonLayout()
    {
        const Data data = label(ItemType::Set, 3, 2, Context::Undo);
        const QJsonObject subject{{u"type"_s, u"Label"_s},
                                  {u"key"_s, QJsonObject{{kName, u"T12"_s}}},
                                  {u"secondaryKey"_s, QJsonObject()}};
        const QJsonObject expected{{u"version"_s, 1},
                                   {u"type"_s, u"Set"_s},
                                   {u"subject"_s, subject},
                                   {u"attributes"_s, QJsonArray{kCharge}},
                                   {u"value"_s, 3},
                                   {u"oldValue"_s, 2},
                                   {u"undoContext"_s, u"Undo"_s}};
        QCOMPARE(data.toJsonObject(), expected);
        QVERIFY(Data(data.toJson()) == data);
    }

    void equality()
    {
        const Data data = label(ItemType::Set, 3, 2);
        Data flag = data;
        flag.setApplicationFlag(false);
        Data collapse = data;
        collapse.setCollapseTrivialMacro(false);
        QVERIFY(label(ItemType::Set, 3, 2) == data);
        for (const Data &other : {flag, collapse, label(ItemType::Add, 3, 2), label(ItemType::Set, 4, 2),
                                  label(ItemType::Set, 3, 1), label(ItemType::Set, 3, 2, Context::Redo),
                                  legacy(u"x"_s), Data()}) {
            QVERIFY(other != data);
        }
    }

    void damagedJson_data()
    {
        QTest::addColumn<QByteArray>("json");
        QTest::addColumn<bool>("ok");
        QTest::newRow("nothing") << QByteArray() << false;
        QTest::newRow("array") << QByteArray("[{\"type\":\"Set\"}]") << false;
        QTest::newRow("cut off") << label(ItemType::Set, 3).toJson().chopped(1) << false;
        QTest::newRow("past the deepest") << QByteArray(200000, '[') << false;
        QTest::newRow("huge number") << QByteArray("{\"value\":1e999}") << false;
        QTest::newRow("empty object") << QByteArray("{}") << true;
        QTest::newRow("wrong types everywhere")
            << QByteArray(R"({"type":[],"subject":7,"attributes":"a","undoContext":{},"value":null})")
            << true;
        QTest::newRow("attributes of wrong types")
            << QByteArray(R"({"type":"Set","subject":{"type":"Label"},"attributes":[1,null,{}]})") << true;
        QTest::newRow("unknown type")
            << QByteArray(R"({"type":"Recalibrate","subject":{"type":"Label"},"attributes":["a"]})") << true;
    }
    void damagedJson()
    {
        QFETCH(QByteArray, json);
        bool ok = false;
        const Data data(json, &ok);
        QTEST(ok, "ok");
        QVERIFY2(!data.isValid(), "nothing that can be taken for a record");
        const auto read = Data::fromJson(json);
        QCOMPARE(read.error().errorCode(), ozm::ErrorCode::BadParameter);
        QVERIFY(!read.error().errorMessage().isEmpty());
    }

    void leniencies()
    {
        const Data single(QByteArray(
            R"({"type":"Set","subject":{"type":"Label"},"attribute":"a","value":123456789012345678901})"));
        QVERIFY(single.isValid());
        QCOMPARE(single.undoContext(), Context::None);
        QCOMPARE(single.value().toDouble(), 123456789012345678901.0);
        const Data both(QByteArray(R"({"attributes":["b","a"],"attribute":"c"})"));
        QCOMPARE(both.attributes(), QList<QString>({u"b"_s, u"a"_s, u"c"_s}));
    }
};

QTEST_GUILESS_MAIN(TestOperationLogData)
#include "tst_operationlogdata.moc"
