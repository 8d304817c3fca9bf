#include "support/StrictTest.h"

#include <ozm_common_core_mini/VariantItems.h>
#include <ozm_widgets/db/common/OperationLogItemData.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QLine>
#include <QRandomGenerator>
#include <QRect>
#include <QTimeZone>
#include <QUrl>
#include <QUuid>

#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;
using ozm::OperationLogItemData;
using ozm::OperationLogItemSubject;
using ozm::OperationLogItemType;
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
    return {OperationLogItemType::Set, OperationLogItemSubject::Type::Label, {u"Value"_s}, value, value};
}

OperationLogItemData readBack(const OperationLogItemData &data)
{
    bool ok = false;
    OperationLogItemData read(data.toJson(), &ok);
    return ok ? read : OperationLogItemData();
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
        switch (m_random.bounded(depth < 4 ? 9 : 6)) {
        case 0:
            return {};
        case 1:
            return m_random.bounded(2) == 1;
        case 2:
            return integer();
        case 3:
            return real();
        case 4:
        case 5:
            return text();
        case 6:
            return list(depth);
        case 7:
            return QVariant::fromValue(VariantItems(list(depth)));
        default:
            return map(depth);
        }
    }

    QString text()
    {
        static const QStringList pieces{u"a"_s,  u"\""_s, u"\\"_s,   u"\n"_s,           u"µ"_s, u"質量"_s,
                                        u"%1"_s, u"'"_s,  u"null"_s, QString(QChar(1)), u"😀"_s, u" "_s};
        QString text;
        for (int i = m_random.bounded(5); i > 0; --i)
            text += pieces.at(m_random.bounded(static_cast<int>(pieces.size())));
        return text;
    }

private:
    QVariant integer()
    {
        const qint64 number = static_cast<qint64>(m_random.generate64() >> (11 + m_random.bounded(52)));
        return m_random.bounded(2) ? number : -number;
    }

    QVariant real()
    {
        const double digits = m_random.generateDouble() - 0.5;
        return std::ldexp(digits, m_random.bounded(1200) - 600);
    }

    QVariantList list(int depth)
    {
        QVariantList items;
        for (int i = m_random.bounded(4); i > 0; --i)
            items.append(value(depth + 1));
        return items;
    }

    QVariantMap map(int depth)
    {
        QVariantMap entries;
        for (int i = m_random.bounded(4); i > 0; --i)
            entries.insert(text(), value(depth + 1));
        return entries;
    }

    QRandomGenerator m_random;
};

/// What a value reads back as: lists of any type as plain lists, an empty list or map among them.
QVariant asRead(const QVariant &value)
{
    if (value.metaType() == QMetaType::fromType<VariantItems>())
        return asRead(value.value<VariantItems>().toList());
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
    void keptExactly_data()
    {
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<QVariant>("read");
        QTest::addColumn<QString>("text");
        const auto same = [](const char *name, const QVariant &value, const QString &text) {
            QTest::newRow(name) << value << value << text;
        };
        constexpr qint64 limit = Q_INT64_C(1) << 53;

        same("invalid", {}, {});
        QTest::newRow("null number") << QVariant(QMetaType(QMetaType::Int)) << QVariant() << QString();
        QTest::newRow("null pointer") << QVariant::fromValue(nullptr) << QVariant() << QString();
        same("false", false, u"false"_s);
        same("text", u"a \"b\"\n"_s, u"a \"b\"\n"_s);
        same("whole", 42, u"42"_s);
        same("whole double", 42.0, u"42"_s);
        same("negative", -7.25, u"-7.25"_s);
        same("shortest", 0.1 + 0.2, u"0.30000000000000004"_s);
        same("large double", 1e300, u"1e+300"_s);
        same("smallest double", std::numeric_limits<double>::denorm_min(), u"5e-324"_s);
        QTest::newRow("negative zero") << QVariant(-0.0) << QVariant(0) << u"0"_s;
        QTest::newRow("float") << QVariant(0.1F) << QVariant(0.1) << u"0.1"_s;
        same("largest exact", limit, u"9007199254740992"_s);
        same("smallest exact", -limit, u"-9007199254740992"_s);
        QTest::newRow("short") << QVariant::fromValue<short>(-3) << QVariant(-3) << u"-3"_s;
        QTest::newRow("unsigned short")
            << QVariant::fromValue<ushort>(65535) << QVariant(65535) << u"65535"_s;
        QTest::newRow("unsigned char") << QVariant::fromValue<uchar>(200) << QVariant(200) << u"200"_s;
        QTest::newRow("signed char") << QVariant::fromValue<signed char>(-5) << QVariant(-5) << u"-5"_s;
        QTest::newRow("long") << QVariant::fromValue(5L) << QVariant(5) << u"5"_s;

        same("list", QVariantList{1, u"b"_s, QVariant(), true}, u"1, b, , true"_s);
        same("lists in a list", QVariantList{QVariantList{1, 2}, QVariantList()}, u"[1, 2], []"_s);
        same("map", QVariantMap{{u"a"_s, 1}, {u"b"_s, QVariantList{2, 3}}}, u"{a: 1, b: [2, 3]}"_s);
        same("empty list", QVariantList(), {});
        same("empty map", QVariantMap(), {});
        const QVariantList numbers{1, 2};
        QTest::newRow("text list") << QVariant(QStringList{u"x"_s, u"y"_s})
                                   << QVariant(QVariantList{u"x"_s, u"y"_s}) << u"x, y"_s;
        QTest::newRow("list of int") << QVariant::fromValue(QList<int>{1, 2}) << QVariant(numbers)
                                     << u"1, 2"_s;
        QTest::newRow("vector of double")
            << QVariant::fromValue(std::vector<double>{1.0, 2.0}) << QVariant(numbers) << u"1, 2"_s;
        QTest::newRow("items") << QVariant::fromValue(VariantItems(numbers)) << QVariant(numbers)
                               << u"1, 2"_s;
        QTest::newRow("no items") << QVariant::fromValue(VariantItems()) << QVariant(QVariantList())
                                  << QString();
        QTest::newRow("pair") << QVariant::fromValue(std::pair(1, 2)) << QVariant(numbers) << u"1, 2"_s;
        QTest::newRow("hash") << QVariant(QVariantHash{{u"a"_s, 1}}) << QVariant(QVariantMap{{u"a"_s, 1}})
                              << u"{a: 1}"_s;
        QTest::newRow("typed map with number keys") << QVariant::fromValue(QMap<int, double>{{1, 0.5}})
                                                    << QVariant(QVariantMap{{u"1"_s, 0.5}}) << u"{1: 0.5}"_s;
        QTest::newRow("JSON") << QVariant(QJsonArray{1, QJsonValue::Null})
                              << QVariant(QVariantList{1, QVariant()}) << u"1, "_s;
        QTest::newRow("JSON document") << QVariant(QJsonDocument(QJsonObject{{u"a"_s, true}}))
                                       << QVariant(QVariantMap{{u"a"_s, true}}) << u"{a: true}"_s;
    }
    void keptExactly()
    {
        QFETCH(QVariant, value);
        const OperationLogItemData written = record(value);
        const OperationLogItemData read = readBack(written);
        QVERIFY(read.isValid());
        QTEST(read.value(), "read");
        QCOMPARE(read.value().isValid(), asRead(value).isValid() && !value.isNull());
        QTEST(written.valueToString(), "text");
        QCOMPARE(read.toString(), written.toString());
    }

    void keptAsText_data()
    {
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<QString>("text");
        const double inf = std::numeric_limits<double>::infinity();
        const QDateTime moment(QDate(2026, 3, 1), QTime(12, 30, 15, 250), Qt::UTC);

        QTest::newRow("past 2^53") << QVariant((Q_INT64_C(1) << 53) + 1) << u"9007199254740993"_s;
        QTest::newRow("smallest integer")
            << QVariant(std::numeric_limits<qint64>::min()) << u"-9223372036854775808"_s;
        QTest::newRow("largest unsigned")
            << QVariant(std::numeric_limits<quint64>::max()) << u"18446744073709551615"_s;
        QTest::newRow("infinity") << QVariant(inf) << u"inf"_s;
        QTest::newRow("minus infinity") << QVariant(-inf) << u"-inf"_s;
        QTest::newRow("infinite float") << QVariant(-std::numeric_limits<float>::infinity()) << u"-inf"_s;
        QTest::newRow("date") << QVariant(moment.date()) << u"2026-03-01"_s;
        QTest::newRow("time") << QVariant(moment.time()) << u"12:30:15.250"_s;
        QTest::newRow("date and time") << QVariant(moment) << u"2026-03-01T12:30:15.250Z"_s;
        QTest::newRow("elsewhere") << QVariant(moment.toTimeZone(QTimeZone(7200)))
                                   << u"2026-03-01T14:30:15.250+02:00"_s;
        QTest::newRow("URL") << QVariant(QUrl(u"https://example.org/a?b#c"_s))
                             << u"https://example.org/a?b#c"_s;
        QTest::newRow("UUID") << QVariant(QUuid(u"{6bcf1d5e-8a43-4c02-9d6c-3f0c9a1b2c3d}"_s))
                              << u"{6bcf1d5e-8a43-4c02-9d6c-3f0c9a1b2c3d}"_s;
        QTest::newRow("bytes of text") << QVariant(QByteArray("\xc2\xb5g")) << u"µg"_s;
        QTest::newRow("enumerator") << QVariant::fromValue(Qt::DashLine) << u"DashLine"_s;
    }
    void keptAsText()
    {
        QFETCH(QVariant, value);
        const OperationLogItemData written = record(value);
        QTEST(written.valueToString(), "text");
        QVariant read = readBack(written).value();
        QTEST(read.toString(), "text");
        QVERIFY2(read.convert(value.metaType()), "the text is to lead back to the value");
        QCOMPARE(read, value);
    }

    void keptAsTextOnly()
    {
        QVERIFY(std::isnan(readBack(record(std::nan(""))).value().toDouble()));
        QCOMPARE(record(std::nan("")).valueToString(), u"nan"_s);
        const QByteArray bytes("\xff\x00\x01", 3);
        QCOMPARE(record(bytes).valueToString(), u"base64:/wAB"_s);
        QCOMPARE(readBack(record(QRectF(1, 2, 3, 4))).value(), QVariant(u"QRectF(1,2 3x4)"_s));
        QCOMPARE(record(QChar(u'µ')).valueToString(), u"µ"_s);
        QCOMPARE(record(QVariant::fromValue(Plain::B)).valueToString(), u"1"_s);
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

    void depthIsLimited()
    {
        const QVariant deepest = nested(64);
        QCOMPARE(readBack(record(deepest)).value(), deepest);
        expectWarning(u"since it is nested too deeply"_s);
        QVERIFY(record(nested(70)).valueToString().contains("not recorded"_L1));
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
                switch (random.bounded(3)) {
                case 0:
                    json[place] = static_cast<char>(random.bounded(256));
                    break;
                case 1:
                    json.remove(place, random.bounded(20));
                    break;
                default:
                    json.insert(place,
                                json.mid(random.bounded(static_cast<int>(json.size())), random.bounded(20)));
                }
            }
            bool ok = false;
            const OperationLogItemData read(json, &ok);
            QVERIFY(ok || !read.isValid());
            if (!read.isValid())
                continue;
            ++accepted;
            QCOMPARE(readBack(read).toString(), read.toString());
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
                read.toString() != written.toString() || read.toJson() != written.toJson()) {
                QFAIL(qPrintable(u"case %1: %2"_s.arg(i).arg(QString::fromUtf8(written.toJson()))));
            }
        }
    }
};

QTEST_GUILESS_MAIN(TestOperationLogValues)
#include "tst_operationlogvalues.moc"
