#include "support/StrictTest.h"

#include <ozm_common_core_mini/VariantItems.h>
#include <ozm_widgets/db/common/OperationLogItemData.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QRandomGenerator>
#include <QRect>
#include <QTimeZone>
#include <QUrl>
#include <QUuid>

#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;
using namespace ozm;
using ozm::test::expectWarning;

struct Unprintable
{};
enum class Plain
{
    A,
    B
};

namespace {

OperationLogItemData record(const QVariant &value)
{
    const OperationLogItemSubject subject(OperationLogItemSubject::Type::Label, {{u"Key"_s, value}}, {});
    return {OperationLogItemType::Set, subject, {u"Value"_s}, value, value};
}

OperationLogItemData readBack(const OperationLogItemData &data)
{
    return OperationLogItemData::fromJson(data.toJson()).valueOr({});
}

QVariantList nested(int levels)
{
    QVariantList value{1};
    for (int i = 1; i < levels; ++i)
        value = QVariantList{QVariant(value)};
    return value;
}

/// Values of every kind that is kept exactly, drawn at random.
class ValueSource
{
public:
    explicit ValueSource(quint32 seed)
        : m_random(seed)
    {}

    QVariant value(int depth = 0)
    {
        switch (m_random.bounded(depth < 4 ? 10 : 7)) {
        case 0:
            return {};
        case 1:
            return m_random.bounded(2) == 1;
        case 2:
            return static_cast<qint64>(m_random.generate64()) >> m_random.bounded(64);
        case 3:
            return std::ldexp(m_random.generateDouble() - 0.5, m_random.bounded(1200) - 600);
        case 4:
            return QByteArray::number(m_random.bounded(100)) + (m_random.bounded(2) ? "\xff" : "");
        case 5:
        case 6:
            return text();
        case 7:
            return list(depth);
        case 8:
            return QVariant::fromValue(VariantItems(list(depth)));
        default:
            return map(depth);
        }
    }

    QString text()
    {
        static const QStringList pieces{u"a"_s, u"\""_s,   u"\\"_s,           u"\n"_s, u"質量"_s,     u"%1"_s,
                                        u"'"_s, u"null"_s, QString(QChar(1)), u"😀"_s,  u"ozm:type"_s, u" "_s};
        QString text;
        for (int i = m_random.bounded(5); i > 0; --i)
            text += pieces.at(m_random.bounded(static_cast<int>(pieces.size())));
        return text;
    }

private:
    QVariantList list(int depth)
    {
        QVariantList items;
        for (int i = m_random.bounded(4); i > 0; --i)
            items.append(value(depth + 1));
        return items;
    }

    QVariantMap map(int depth)
    {
        static const QStringList marks{u"double"_s, u"qulonglong"_s, u"QByteArray"_s, u"map"_s, u"QRect"_s};
        QVariantMap entries;
        for (int i = m_random.bounded(4); i > 0; --i)
            entries.insert(text(), value(depth + 1));
        if (m_random.bounded(4) > 0)
            return entries;
        return {{u"ozm:type"_s, marks.at(m_random.bounded(5))},
                {u"ozm:value"_s, m_random.bounded(2) ? QVariant(entries) : QVariant(u"17"_s)}};
    }

    QRandomGenerator m_random;
};

/// The form in which a value is read back: lists of any type as plain lists, bytes that are text as text.
QVariant asRead(const QVariant &value)
{
    if (value.metaType() == QMetaType::fromType<VariantItems>())
        return asRead(value.value<VariantItems>().toList());
    if (value.typeId() == QMetaType::QByteArray && !value.toByteArray().contains('\xff'))
        return value.toString();
    if (value.typeId() == QMetaType::QVariantList) {
        QVariantList items;
        for (const QVariant &item : value.toList())
            items.append(asRead(item));
        return items;
    }
    if (value.typeId() == QMetaType::QVariantMap) {
        QVariantMap entries = value.toMap();
        for (QVariant &entry : entries)
            entry = asRead(entry);
        return entries;
    }
    return value;
}

} // namespace

Q_DECLARE_METATYPE(Unprintable)
Q_DECLARE_METATYPE(Plain)

class TestOperationLogValues : public ozm::test::StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void kept_data()
    {
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<QVariant>("read");
        QTest::addColumn<QString>("text");
        const auto as = [](const char *name, const QVariant &value, const QVariant &read,
                           const QString &text) { QTest::newRow(name) << value << read << text; };
        const auto same = [as](const char *name, const QVariant &value, const QString &text) {
            as(name, value, value, text);
        };
        const double inf = std::numeric_limits<double>::infinity();
        const QVariantList numbers{1, 2};

        as("null number", QVariant(QMetaType(QMetaType::Int)), {}, {});
        same("whole double", 42.0, u"42"_s);
        same("shortest", 0.1 + 0.2, u"0.30000000000000004"_s);
        same("past what all readers know", std::ldexp(1.0, 60), u"1152921504606847000"_s);
        as("negative zero", -0.0, 0, u"0"_s);
        same("past 2^53", Q_INT64_C(9007199254740993), u"9007199254740993"_s);
        same("unsigned", std::numeric_limits<quint64>::max(), u"18446744073709551615"_s);
        same("infinity", inf, u"inf"_s);
        as("infinite float", -std::numeric_limits<float>::infinity(), -inf, u"-inf"_s);
        same("text like a marked one", u"base64:/w=="_s, u"base64:/w=="_s);
        same("bytes", QByteArray("\xff"), u"base64:/w=="_s);
        same("bytes with a mark", QByteArray("\xef\xbb\xbfx"), u"base64:77u/eA=="_s);
        as("bytes of text", QByteArray("\xc2\xb5g"), u"µg"_s, u"µg"_s);
        as("no bytes", QByteArray(), QString(), {});
        same("lists", QVariantList{QVariantList{1, QVariant()}, QVariantList()}, u"[1, ], []"_s);
        same("map", QVariantMap{{u"a"_s, 1}, {u"b"_s, numbers}}, u"{a: 1, b: [1, 2]}"_s);
        same("empty map", QVariantMap(), {});
        as("text list", QStringList{u"x"_s, u"y"_s}, QVariantList{u"x"_s, u"y"_s}, u"x, y"_s);
        as("vector", QVariant::fromValue(std::vector<double>{1.0, 2.0}), numbers, u"1, 2"_s);
        as("items", QVariant::fromValue(VariantItems(numbers)), numbers, u"1, 2"_s);
        as("pair", QVariant::fromValue(std::pair(1, 2)), numbers, u"1, 2"_s);
        as("hash", QVariantHash{{u"a"_s, 1}}, QVariantMap{{u"a"_s, 1}}, u"{a: 1}"_s);
        as("number keys", QVariant::fromValue(QMap<int, double>{{1, 0.5}}), QVariantMap{{u"1"_s, 0.5}},
           u"{1: 0.5}"_s);
        as("JSON", QJsonArray{QJsonArray{1}, QJsonValue::Null}, QVariantList{QVariantList{1}, QVariant()},
           u"[1], "_s);
        as("JSON document", QJsonDocument(QJsonObject{{u"a"_s, true}}), QVariantMap{{u"a"_s, true}},
           u"{a: true}"_s);
        as("enumerator without a name", QVariant::fromValue(Plain::B), 1, u"1"_s);
        const QString area = u"QRectF(1,2 3x4)"_s;
        as("description", QRectF(1, 2, 3, 4),
           QVariantMap{{u"ozm:type"_s, u"QRectF"_s}, {u"ozm:value"_s, area}}, area);
        as("local time", QDateTime(QDate(2026, 3, 1), QTime(12, 0)), u"2026-03-01T12:00:00.000Z"_s,
           u"2026-03-01T12:00:00.000Z"_s);
    }
    void kept()
    {
        QFETCH(QVariant, value);
        const OperationLogItemData written = record(value);
        const OperationLogItemData read = readBack(written);
        QTEST(read.value(), "read");
        QTEST(read.subject().key().value(u"Key"_s), "read");
        QVERIFY(read.value().isValid() || value.isNull());
        QTEST(written.valueToString(), "text");
        QCOMPARE(read.toString(), written.toString());
        QCOMPARE(read.toJson(), written.toJson());
    }

    void asTheToolkitWritesIt()
    {
        const QDateTime moment(QDate(2026, 3, 1), QTime(12, 30, 15, 250), Qt::UTC);
        const QVariantMap values{{u"a"_s, 0.1F},
                                 {u"b"_s, QUrl(u"https://example.org/a b?µ"_s)},
                                 {u"c"_s, QUuid(u"{6bcf1d5e-8a43-4c02-9d6c-3f0c9a1b2c3d}"_s)},
                                 {u"d"_s, moment},
                                 {u"e"_s, moment.toTimeZone(QTimeZone(7200))},
                                 {u"f"_s, moment.time()},
                                 {u"g"_s, moment.date()},
                                 {u"h"_s, QChar(u'µ')},
                                 {u"i"_s, QVariant::fromValue(Qt::DashLine)},
                                 {u"j"_s, QVariantMap{{u"ozm:type"_s, 1}}},
                                 {u"k"_s, QDate()},
                                 {u"l"_s, QString()}};
        const OperationLogItemSubject subject(OperationLogItemSubject::Type::Label, values, values);
        QCOMPARE(subject.toJsonObject().value("key"_L1), QJsonValue(QJsonObject::fromVariantMap(values)));
        QCOMPARE(record(values).toJsonObject().value("value"_L1),
                 QJsonValue(QJsonObject::fromVariantMap(values)));
    }

    void neverATextThatLooksLikeIt()
    {
        QVERIFY(std::isnan(readBack(record(std::nan(""))).value().toDouble()));
        for (const QVariant &value :
             {QVariant(std::nan("")), QVariant(QByteArray("\xff")), QVariant(QRect())}) {
            QVERIFY(value.metaType() != QMetaType::fromType<QString>());
            QVERIFY(record(value).toJson() != record(record(value).valueToString()).toJson());
        }
    }

    void refused_data()
    {
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<QString>("type");
        QTest::newRow("object") << QVariant::fromValue<QObject *>(this) << u"QObject*"_s;
        QTest::newRow("address") << QVariant::fromValue<void *>(this) << u"void*"_s;
        QTest::newRow("unknown type") << QVariant::fromValue(Unprintable()) << u"Unprintable"_s;
    }
    void refused()
    {
        QFETCH(QVariant, value);
        QFETCH(QString, type);
        expectWarning(u"cannot record a value of type \"%1\""_s.arg(type));
        QCOMPARE(record(value).valueToString(), u"(value of type %1 not recorded)"_s.arg(type));
    }

    // As deep as Qt's reader goes, and not a level deeper.
    void depthIsLimited()
    {
        const auto deep = [](const QVariant &value) {
            return OperationLogItemData(OperationLogItemType::Set, OperationLogItemSubject::Type::Label,
                                        {u"Value"_s}, value);
        };
        QCOMPARE(readBack(deep(nested(1023))).value(), QVariant(nested(1023)));
        for (const QVariant &value : {QVariant(nested(1024)), QVariant(nested(3000)),
                                      QVariant(QJsonArray::fromVariantList(nested(1024)))}) {
            expectWarning(u"since it is nested too deeply"_s);
            const OperationLogItemData read = readBack(deep(value));
            expectWarning(u"since it is nested too deeply"_s);
            QVERIFY(read.isValid() && deep(value).valueToString().contains("not recorded"_L1));
        }
    }

    void itemsConvertBothWays()
    {
        // Any use of the class makes the conversion known.
        const OperationLogItemData used = record(QVariant::fromValue(VariantItems({1, 2})));
        QCOMPARE(used.value().toList(), QVariantList({1, 2}));
        QCOMPARE(QVariant(QVariantList{3}).value<VariantItems>(), VariantItems({3}));
        QCOMPARE(QMetaType::fromName("VariantItems"), QMetaType::fromType<VariantItems>());
    }

    // Guards against crashes and hangs; and whatever is accepted must be a record that can be stored again.
    void damagedBytesAreSurvived()
    {
        QRandomGenerator random(4711);
        ValueSource source(4711);
        int accepted = 0;
        for (int i = 0; i < 20000; ++i) {
            QByteArray json = record(source.value()).toJson();
            for (int damage = 1 + random.bounded(4); damage > 0; --damage) {
                const auto place = random.bounded(static_cast<int>(json.size()));
                if (random.bounded(3) == 0)
                    json[place] = static_cast<char>(random.bounded(256));
                else if (random.bounded(2) == 0)
                    json.remove(place, random.bounded(20));
                else
                    json.insert(place, json.mid(random.bounded(static_cast<int>(json.size())), 10));
            }
            const OperationLogItemData read(json);
            if (!read.isValid())
                continue;
            ++accepted;
            QCOMPARE(readBack(read).toJson(), read.toJson());
        }
        QVERIFY2(accepted > 100, "some damage is harmless: the test is to see that as well");
    }

    void generatedValuesComeBack()
    {
        ValueSource source(20261121);
        for (int i = 0; i < 20000; ++i) {
            const QVariant value = source.value();
            const OperationLogItemData written = record(value);
            const OperationLogItemData read = readBack(written);
            if (read.value() != asRead(value) || read.value().isValid() != value.isValid() ||
                read.toString() != written.toString() || read.toJson() != written.toJson() ||
                written.toString().contains(u'\n')) {
                QFAIL(qPrintable(u"case %1: %2"_s.arg(i).arg(QString::fromUtf8(written.toJson()))));
            }
        }
    }
};

QTEST_GUILESS_MAIN(TestOperationLogValues)
#include "tst_operationlogvalues.moc"
