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

Q_DECLARE_METATYPE(ozm::OperationLogItemData)

namespace {

const QStringList kSubjectTexts{
    u"None"_s,
    u"Project"_s,
    u"Trace"_s,
    u"ElutionPeak"_s,
    u"Peptide"_s,
    u"PepmapCandidate"_s,
    u"PepmapSample"_s,
    u"Plot"_s,
    u"Protein"_s,
    u"ColumnFiltersPreset"_s,
    u"ProteinAnnotation"_s,
    u"SampleRun"_s,
    u"File"_s,
    u"IntactMass"_s,
    u"XIC"_s,
    u"PrimaryPeptide"_s,
    u"PrimaryPeptideXIC"_s,
    u"Scan"_s,
    u"SearchResult"_s,
    u"ProteinDataBank"_s,
    u"Label"_s,
    u"BottomUp"_s,
    u"ProteinTarget"_s,
    u"PeptidesAttributes"_s,
};

/// A row in which each column holds its own name, so that a key shows where its values came from.
RowNode rowOf(const QStringList &columns)
{
    RowNode row(columns);
    for (const QString &column : columns)
        row.setDataAt(column, column);
    return row;
}

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

} // namespace

class TestOperationLogData : public ozm::test::StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void enumerationsAndTexts()
    {
        for (int type = 0; type < kSubjectTexts.size(); ++type) {
            QCOMPARE(Subject::typeToString(static_cast<Subject::Type>(type)), kSubjectTexts.at(type));
            QCOMPARE(static_cast<int>(Subject::stringToType(kSubjectTexts.at(type))), type);
        }
        const QStringList itemTypes{u"None"_s, u"Add"_s, u"Set"_s, u"Delete"_s, u"Event"_s};
        const QStringList contexts{u"Invalid"_s, u"None"_s, u"New"_s, u"Undo"_s, u"Redo"_s};
        for (int i = 0; i < 5; ++i) {
            QCOMPARE(Data::typeToString(static_cast<ItemType>(i)), itemTypes.at(i));
            QCOMPARE(static_cast<int>(Data::stringToType(itemTypes.at(i))), i);
            QCOMPARE(Data::undoContextToString(static_cast<Context>(i)), contexts.at(i));
            QCOMPARE(static_cast<int>(Data::stringToUndoContext(contexts.at(i))), i);
        }
    }

    void outsideTheEnumerations()
    {
        for (const int value : {-1, 24, 1000000}) {
            QCOMPARE(Subject::typeToString(static_cast<Subject::Type>(value)), QString());
            QCOMPARE(Data::typeToString(static_cast<ItemType>(value)), QString());
            QCOMPARE(Data::undoContextToString(static_cast<Context>(value)), QString());
        }
        for (const QString &text : {QString(), u"project"_s, u"set"_s, u"NEW"_s, u" Set"_s}) {
            QCOMPARE(Subject::stringToType(text), Subject::Type::None);
            QCOMPARE(Data::stringToType(text), ItemType::None);
            QCOMPARE(Data::stringToUndoContext(text), Context::Invalid);
        }
    }

    void keyColumns_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<QStringList>("columns");
        const auto row = [](Subject::Type type, const QStringList &columns) {
            QTest::newRow(qPrintable(Subject::typeToString(type))) << static_cast<int>(type) << columns;
        };
        using Type = Subject::Type;
        const QStringList modifications{kModificationsNameList, kModificationsPositionList};
        row(Type::None, {});
        row(Type::Project, {});
        row(Type::ColumnFiltersPreset, {});
        row(Type::Trace, {kTraceType, kSamplesId});
        row(Type::ElutionPeak, {kPeaksId, kStartTime, kEndTime, kStartPoint, kEndPoint, kSamplesId});
        row(Type::Peptide, QStringList{kPeptidesId, kSequence, u"Sequences"_s, kCharge, kFilename,
                                       kXICAreaStart, kXICAreaEnd} +
                               modifications);
        row(Type::PepmapCandidate, {kSequence, kCalcMr});
        row(Type::PepmapSample, {kId, kSampleName, kType, kSampleType});
        row(Type::Plot, {kPlotsId, kTitle, kPlotType});
        row(Type::Protein, {kProteinName, kAccessionName, kProteinAccessionName, kSamplesId});
        row(Type::ProteinAnnotation, {kProteinName, kAccessionName, kProteinAccessionName, kStartPosition,
                                      kLength, kAnnotationCategory, kAnnotationValue, kComment});
        row(Type::SampleRun, {kSamplesId, kSourceType});
        row(Type::File, {kName});
        row(Type::IntactMass, {kSequence, kMassStart, kMassEnd, kMassArea, kSamplesRunsId});
        row(Type::XIC, {kPrecursorMz, kPrecursorMzStart, kPrecursorMzEnd});
        row(Type::PrimaryPeptide,
            QStringList{kPeptidesId, kSequence, kFilename, kCharge, kXICAreaStart, kXICAreaEnd} +
                modifications);
        row(Type::PrimaryPeptideXIC, {kPrimaryPeptidesId});
        row(Type::Scan, {kMachineFilesId, kScanTime});
        row(Type::SearchResult,
            {kSearchResultsId, kSearchResultFilename, kSearchResultAliasName, kSearchEngine});
        row(Type::ProteinDataBank, {kName, QString()});
        row(Type::Label, {kName});
        row(Type::BottomUp, {kProteinId, kPosition, kModification, kModificationPercent});
        row(Type::ProteinTarget, {kId, kProteinIdCountList, kGaussWidth, kOffset});
        row(Type::PeptidesAttributes, {kPeptidesId});
        row(static_cast<Type>(24), {});
    }
    void keyColumns()
    {
        QFETCH(int, type);
        QFETCH(QStringList, columns);
        Values expected;
        for (const QString &column : columns)
            expected.insert(column, column);
        // Every column there is, so that one too many shows as well as one too few.
        QStringList all = columns;
        all << kId << kName << kTitle << kSamplesId << kSequence << kMass << kComment << QString()
            << kPeptidesId << kCharge << u"Sequences"_s;
        const RowNode row = rowOf(all);
        const Subject subject(static_cast<Subject::Type>(type), row);
        QCOMPARE(subject.key(), expected);
        QVERIFY(subject.explicitSecondaryKey().isEmpty());
    }

    void severalRows()
    {
        RowNode first = rowOf({kSequence});
        RowNode second({kSequence, kCalcMr});
        second.setDataAt(kSequence, u"PEPTIDE"_s);
        const Subject subject(
            Subject::Type::PepmapCandidate,
            QMap<QString, RowNode *>{{u"a"_s, &first}, {u"b"_s, &second}, {u"c"_s, nullptr}});
        const Values expected{{kSequence, u"PEPTIDE"_s}, {kCalcMr, QVariant()}};
        QCOMPARE(subject.key(), expected);
    }

    void subjectTextAndJson()
    {
        const Subject subject(Subject::Type::Peptide, Values{{kSequence, u"PEPTIDE"_s}, {kCharge, 2}},
                              Values{{u"Unknown column"_s, QStringList{u"a"_s, u"b"_s}}});
        QCOMPARE(subject.toString(), u"Peptide Charge: 2, Sequence: PEPTIDE"_s);
        QCOMPARE(subject.explicitSecondaryKeyToString(), u"Unknown column: a, b"_s);
        QCOMPARE(Subject(Subject::Type::Project).toString(), u"Project "_s);
        QCOMPARE(subject.toJsonObject().value("secondaryKey"_L1).toObject().value("Unknown column"_L1),
                 QJsonValue(QJsonArray{u"a"_s, u"b"_s}));

        const Subject read(subject.toJsonObject());
        QCOMPARE(read.type(), Subject::Type::Peptide);
        QCOMPARE(read.key(), subject.key());
        QCOMPARE(read.toString(), subject.toString());

        QJsonObject unknown = subject.toJsonObject();
        unknown.insert("type"_L1, u"Foo"_s);
        QVERIFY(!Subject(unknown).isValid());
        QVERIFY2(Subject(unknown).key().isEmpty(), "a subject of an unknown kind carries no key");
    }

    void validity_data()
    {
        QTest::addColumn<Data>("data");
        QTest::addColumn<bool>("valid");
        const Subject subject(Subject::Type::Label);
        Data noContext(ItemType::Set, subject, {u"a"_s}, 1);
        noContext.setUndoContext(Context::Invalid);
        QTest::newRow("default") << Data() << false;
        QTest::newRow("complete") << Data(ItemType::Set, subject, {u"a"_s}, {}) << true;
        QTest::newRow("no type") << Data(ItemType::None, subject, {u"a"_s}, 1) << false;
        QTest::newRow("no subject") << Data(ItemType::Set, {}, {u"a"_s}, 1) << false;
        QTest::newRow("no attributes") << Data(ItemType::Set, subject, {}, 1) << false;
        QTest::newRow("no context") << noContext << false;
        QTest::newRow("legacy") << legacy(u"Charge set"_s) << true;
    }
    void validity()
    {
        QFETCH(Data, data);
        QFETCH(bool, valid);
        QCOMPARE(data.isValid(), valid);
        QCOMPARE(data.toString().isEmpty(), !valid);
        QCOMPARE(data.toJsonObject().isEmpty(), !valid);
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
        row("set to nothing", label(ItemType::Set, {}, 2), u"Set "_s + subject + u" from 2 to null"_s);
        row("set to empty list", label(ItemType::Set, QVariantList(), 2),
            u"Set "_s + subject + u" from 2 to null"_s);
        row("set empty to empty", label(ItemType::Set, QString(), QString()), u"Set "_s + subject);
        row("set to false", label(ItemType::Set, false, true),
            u"Set "_s + subject + u" from true to false"_s);
        row("set to zero", label(ItemType::Set, 0, 1.5), u"Set "_s + subject + u" from 1.5 to 0"_s);
        row("add", label(ItemType::Add, u"x"_s), u"Add "_s + subject + u": x"_s);
        row("add, old value empty", label(ItemType::Add, 3, QString()), u"Add "_s + subject + u": 3"_s);
        row("add nothing", label(ItemType::Add, {}), u"Add "_s + subject);
        row("delete", label(ItemType::Delete, {}, 2), u"Delete "_s + subject + u" from 2: null"_s);
        row("event", label(ItemType::Event, u"done"_s), u"Event "_s + subject + u" to done"_s);
        row("undo", label(ItemType::Set, 3, 2, Context::Undo), u"UNDO Set "_s + subject + u" from 2 to 3"_s);
        row("redo", label(ItemType::Set, 3, 2, Context::Redo), u"REDO Set "_s + subject + u" from 2 to 3"_s);
        row("markers", label(ItemType::Set, u"%1 %2"_s, u"%3"_s),
            u"Set "_s + subject + u" from %3 to %1 %2"_s);
        row("legacy", legacy(u"Charge set"_s), u"Charge set"_s);
        row("no key", Data(ItemType::Set, Subject::Type::Project, {u"Title"_s, u"Owner"_s}, u"x"_s),
            u"Set Project 'Title, Owner' to x"_s);
        row("secondary key",
            Data(ItemType::Set, Subject(Subject::Type::Plot, {}, Values{{kTitle, u"TIC"_s}}), {u"Zoom"_s}, 2),
            u"Set Plot [Title: TIC] 'Zoom' to 2"_s);
    }
    void text()
    {
        QFETCH(Data, data);
        QFETCH(QString, text);
        QCOMPARE(data.toString(), text);
        QString debug;
        QDebug(&debug) << data;
        QCOMPARE(debug.trimmed(), u"OperationLogItemData{%1}"_s.arg(text));
    }

    void jsonLayout()
    {
        const QJsonObject json = label(ItemType::Set, 3, 2, Context::Undo).toJsonObject();
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
        QCOMPARE(json, expected);
        bool ok = false;
        const Data legacyRead(legacy(u"Charge set"_s).toJson(), &ok);
        QVERIFY(ok);
        QCOMPARE(legacyRead.legacyDescription(), u"Charge set"_s);
    }

    void readsWhatItWrote()
    {
        const Data written = label(ItemType::Delete, QVariantList{1, u"b"_s}, 2.5, Context::Redo);
        bool ok = false;
        const Data read(written.toJson(), &ok);
        QVERIFY(ok);
        QCOMPARE(read.type(), written.type());
        QCOMPARE(read.subject().key(), written.subject().key());
        QCOMPARE(read.attributes(), written.attributes());
        QCOMPARE(read.value(), written.value());
        QCOMPARE(read.oldValue(), written.oldValue());
        QCOMPARE(read.undoContext(), written.undoContext());
    }

    void damagedJson_data()
    {
        QTest::addColumn<QByteArray>("json");
        QTest::addColumn<bool>("ok");
        QTest::newRow("nothing") << QByteArray() << false;
        QTest::newRow("not JSON") << QByteArray("Set Label") << false;
        QTest::newRow("array") << QByteArray("[{\"type\":\"Set\"}]") << false;
        QTest::newRow("bare value") << QByteArray("17") << false;
        QTest::newRow("cut off") << label(ItemType::Set, 3).toJson().chopped(1) << false;
        QTest::newRow("broken UTF-8") << QByteArray("{\"type\":\"\xff\xfe\"}") << false;
        QTest::newRow("past the deepest") << QByteArray(200000, '[') << false;
        QTest::newRow("deepest below value")
            << QByteArray("{\"value\":" + QByteArray(2000, '[') + QByteArray(2000, ']') + '}') << false;
        QTest::newRow("huge number") << QByteArray("{\"value\":1e999}") << false;
        QTest::newRow("empty object") << QByteArray("{}") << true;
        QTest::newRow("wrong types everywhere")
            << QByteArray(
                   R"({"version":"x","type":[],"subject":7,"attributes":"a","undoContext":{},"value":null})")
            << true;
        QTest::newRow("attributes of wrong types")
            << QByteArray(R"({"type":"Set","subject":{"type":"Label"},"attributes":[1,null,{}]})") << true;
        QTest::newRow("unknown type")
            << QByteArray(R"({"type":"Recalibrate","subject":{"type":"Label"},"attributes":["a"]})") << true;
    }
    void damagedJson()
    {
        QFETCH(QByteArray, json);
        bool ok = !QTest::currentDataTag();
        const Data data(json, &ok);
        QTEST(ok, "ok");
        QVERIFY2(!data.isValid(), "nothing that can be taken for a record");
        QVERIFY(!Data(json, nullptr).isValid());
    }

    void leniencies()
    {
        bool ok = false;
        const Data single(
            QByteArray(
                R"({"type":"Set","subject":{"type":"Label"},"attribute":"a","value":123456789012345678901})"),
            &ok);
        QVERIFY(ok && single.isValid());
        QCOMPARE(single.undoContext(), Context::None);
        QCOMPARE(single.attributes(), QList<QString>{u"a"_s});
        QCOMPARE(single.value().toDouble(), 123456789012345678901.0);
        const Data both(QByteArray(R"({"attributes":["b","a"],"attribute":"c"})"), nullptr);
        QCOMPARE(both.attributes(), QList<QString>({u"b"_s, u"a"_s, u"c"_s}));
    }
};

QTEST_GUILESS_MAIN(TestOperationLogData)
#include "tst_operationlogdata.moc"
