#include "LogValue.h"

#include "support/Logging.h"

#include <ozm_common_core_mini/VariantItems.h>

#include <QAssociativeIterable>
#include <QDateTime>
#include <QDebug>
#include <QJsonArray>
#include <QJsonDocument>
#include <QSequentialIterable>
#include <QStringDecoder>

#include <array>
#include <charconv>
#include <cmath>

using namespace Qt::StringLiterals;

namespace ozm::logvalue {

namespace {

// The largest integer up to which a reader that keeps numbers as double has every one.
constexpr qint64 kExactIntegers = Q_INT64_C(1) << 53;

// Deeper than any value of the suite. Readers of JSON stop at some depth (Qt's at 1024), and a record adds
// to these levels its own, and two for each macro around it.
constexpr int kDeepestValue = 64;

QJsonValue convert(const QVariant &value, int depth);

QJsonValue refused(const QVariant &value, const char *why)
{
    const QString type = QString::fromLatin1(value.metaType().name());
    OZM_WIDGETS_WARNING() << "Audit trail cannot record a value of type" << type << why;
    return u"(value of type %1 not recorded)"_s.arg(type);
}

bool isExact(qint64 number)
{
    return number >= -kExactIntegers && number <= kExactIntegers;
}

QJsonValue integer(qint64 number)
{
    return isExact(number) ? QJsonValue(number) : QJsonValue(QString::number(number));
}

QJsonValue unsignedInteger(quint64 number)
{
    if (number <= static_cast<quint64>(kExactIntegers))
        return static_cast<qint64>(number);
    return QString::number(number);
}

QJsonValue real(double number)
{
    // These spellings are the ones that QVariant reads back as numbers.
    if (std::isnan(number))
        return u"nan"_s;
    if (std::isinf(number))
        return number > 0 ? u"inf"_s : u"-inf"_s;
    // Adding zero turns -0.0, which JSON readers print as "-0", into plain zero.
    return number + 0.0;
}

/// The double that a person would write for @p number: 0.1f is recorded as 0.1, without the noise behind it.
double widened(float number)
{
    if (!std::isfinite(number))
        return number;
    std::array<char, 32> text{};
    const auto end = std::to_chars(text.data(), text.data() + text.size(), number).ptr;
    return QByteArrayView(text.data(), end).toDouble();
}

QJsonValue bytes(const QByteArray &data)
{
    QStringDecoder decoder(QStringDecoder::Utf8);
    QString text = decoder(data);
    if (!decoder.hasError() && !text.contains(QChar(u'\0')))
        return text;
    return QString("base64:"_L1 + QLatin1StringView(data.toBase64()));
}

QJsonValue dateTime(const QDateTime &time)
{
    // With its distance from UTC: without, a local time would mean another moment elsewhere.
    return time.toOffsetFromUtc(time.offsetFromUtc()).toString(Qt::ISODateWithMs);
}

QJsonValue enumerator(const QVariant &value)
{
    const QString name = value.toString();
    return name.isEmpty() ? integer(value.toLongLong()) : QJsonValue(name);
}

QJsonValue list(const QVariantList &items, int depth)
{
    QJsonArray array;
    for (const QVariant &item : items)
        array.append(convert(item, depth + 1));
    return array;
}

QJsonValue sequence(const QVariant &value, int depth)
{
    QJsonArray array;
    for (const QVariant &item : value.value<QSequentialIterable>())
        array.append(convert(item, depth + 1));
    return array;
}

QJsonValue map(const QVariant &value, int depth)
{
    QJsonObject object;
    const auto entries = value.value<QAssociativeIterable>();
    for (auto entry = entries.begin(); entry != entries.end(); ++entry)
        object.insert(toText(convert(entry.key(), depth + 1)), convert(entry.value(), depth + 1));
    return object;
}

QString printed(const QVariant &value)
{
    QString text;
    {
        QDebug debug(&text);
        value.metaType().debugStream(debug, value.constData());
    }
    return text.trimmed();
}

bool holdsPointer(QMetaType type)
{
    constexpr auto pointers = QMetaType::IsPointer | QMetaType::PointerToQObject |
                              QMetaType::PointerToGadget | QMetaType::SharedPointerToQObject |
                              QMetaType::WeakPointerToQObject | QMetaType::TrackingPointerToQObject;
    return (type.flags() & pointers) || type.id() == QMetaType::VoidStar || type.id() == QMetaType::Nullptr;
}

/// What is no scalar of the usual kinds: containers first, since some of them convert to text as well.
QJsonValue convertOther(const QVariant &value, int depth)
{
    if (holdsPointer(value.metaType()))
        return refused(value, "since a pointer means nothing once the program has ended");
    if (value.metaType().flags() & QMetaType::IsEnumeration)
        return enumerator(value);
    if (value.canConvert<QVariantPair>()) {
        const auto pair = value.value<QVariantPair>();
        return list({pair.first, pair.second}, depth);
    }
    if (value.canConvert<QAssociativeIterable>())
        return map(value, depth);
    if (value.canConvert<QSequentialIterable>())
        return sequence(value, depth);
    if (value.canConvert<QString>())
        return value.toString();
    if (value.metaType().hasRegisteredDebugStreamOperator())
        return printed(value);
    return refused(value, "since it can neither be converted to text nor printed");
}

QJsonValue convert(const QVariant &value, int depth)
{
    if (depth > kDeepestValue)
        return refused(value, "since it is nested too deeply");
    if (value.metaType() == QMetaType::fromType<VariantItems>())
        return list(value.value<VariantItems>().toList(), depth);
    if (value.typeId() == QMetaType::QJsonValue)
        return convert(fromJson(value.toJsonValue()), depth);
    if (value.isNull())
        return QJsonValue::Null;

    switch (value.typeId()) {
    case QMetaType::Bool:
        return value.toBool();
    case QMetaType::Short:
    case QMetaType::Int:
    case QMetaType::Long:
    case QMetaType::LongLong:
    case QMetaType::SChar:
        return integer(value.toLongLong());
    case QMetaType::UShort:
    case QMetaType::UInt:
    case QMetaType::ULong:
    case QMetaType::ULongLong:
    case QMetaType::UChar:
        return unsignedInteger(value.toULongLong());
    case QMetaType::Float:
        return real(widened(value.toFloat()));
    case QMetaType::Double:
        return real(value.toDouble());
    case QMetaType::QString:
        return value.toString();
    case QMetaType::QByteArray:
        return bytes(value.toByteArray());
    case QMetaType::QTime:
        return value.toTime().toString(Qt::ISODateWithMs);
    case QMetaType::QDateTime:
        return dateTime(value.toDateTime());
    case QMetaType::QVariantList:
        return list(value.toList(), depth);
    case QMetaType::QJsonArray:
        return list(fromJson(QJsonValue(value.toJsonArray())).toList(), depth);
    case QMetaType::QJsonObject:
        return convert(fromJson(QJsonValue(value.toJsonObject())), depth);
    case QMetaType::QJsonDocument:
        return value.toJsonDocument().isArray() ? convert(value.toJsonDocument().array(), depth)
                                                : convert(value.toJsonDocument().object(), depth);
    default:
        return convertOther(value, depth);
    }
}

QString joined(const QJsonArray &array)
{
    QStringList texts;
    for (const auto &item : array)
        texts.append(item.isArray() ? u'[' + joined(item.toArray()) + u']' : toText(item));
    return texts.join(", "_L1);
}

QString joined(const QJsonObject &object)
{
    QStringList texts;
    for (auto entry = object.constBegin(); entry != object.constEnd(); ++entry) {
        const QJsonValue value = entry.value();
        texts.append(entry.key() + ": "_L1 + (value.isArray() ? u'[' + toText(value) + u']' : toText(value)));
    }
    return u'{' + texts.join(", "_L1) + u'}';
}

QString doubleToText(double number)
{
    return QString::number(number, 'g', QLocale::FloatingPointShortest);
}

QVariant readNumber(const QJsonValue &value)
{
    QVariant number = value.toVariant();
    const qint64 integer = number.toLongLong();
    if (number.typeId() != QMetaType::LongLong || isExact(integer))
        return number;
    // Integers of this size are written as text, so this was most likely a double without a fraction.
    const auto real = static_cast<double>(integer);
    return doubleToText(real) == QString::number(integer) ? QVariant(real) : number;
}

QString numberToText(const QJsonValue &value)
{
    const QVariant number = readNumber(value);
    return number.typeId() == QMetaType::LongLong ? QString::number(number.toLongLong())
                                                  : doubleToText(number.toDouble());
}

} // namespace

void registerVariantItems()
{
    [[maybe_unused]] static const bool once = [] {
        qRegisterMetaType<VariantItems>("VariantItems");
        if (!QMetaType::hasRegisteredConverterFunction<VariantItems, QVariantList>())
            QMetaType::registerConverter<VariantItems, QVariantList>(
                [](const VariantItems &items) { return items.toList(); });
        if (!QMetaType::hasRegisteredConverterFunction<QVariantList, VariantItems>())
            QMetaType::registerConverter<QVariantList, VariantItems>(
                [](const QVariantList &items) { return VariantItems(items); });
        return true;
    }();
}

QJsonValue toJson(const QVariant &value)
{
    registerVariantItems();
    return convert(value, 0);
}

QJsonObject toJson(const QMap<QString, QVariant> &values)
{
    QJsonObject object;
    for (auto value = values.constBegin(); value != values.constEnd(); ++value)
        object.insert(value.key(), toJson(value.value()));
    return object;
}

QVariant fromJson(const QJsonValue &value)
{
    if (value.isObject())
        return fromJson(value.toObject());
    if (value.isArray()) {
        QVariantList items;
        const QJsonArray array = value.toArray();
        for (const auto &item : array)
            items.append(fromJson(item));
        return items;
    }
    if (value.isDouble())
        return readNumber(value);
    return value.isNull() || value.isUndefined() ? QVariant() : value.toVariant();
}

QMap<QString, QVariant> fromJson(const QJsonObject &values)
{
    QMap<QString, QVariant> map;
    for (auto value = values.constBegin(); value != values.constEnd(); ++value)
        map.insert(value.key(), fromJson(value.value()));
    return map;
}

QString toText(const QJsonValue &value)
{
    switch (value.type()) {
    case QJsonValue::Bool:
        return value.toBool() ? u"true"_s : u"false"_s;
    case QJsonValue::Double:
        return numberToText(value);
    case QJsonValue::String:
        return value.toString();
    case QJsonValue::Array:
        return joined(value.toArray());
    case QJsonValue::Object:
        return value.toObject().isEmpty() ? QString() : joined(value.toObject());
    case QJsonValue::Null:
    case QJsonValue::Undefined:
        break;
    }
    return {};
}

bool isEmpty(const QJsonValue &value)
{
    switch (value.type()) {
    case QJsonValue::String:
        return value.toString().isEmpty();
    case QJsonValue::Array:
        return value.toArray().isEmpty();
    case QJsonValue::Object:
        return value.toObject().isEmpty();
    case QJsonValue::Null:
    case QJsonValue::Undefined:
        return true;
    case QJsonValue::Bool:
    case QJsonValue::Double:
        break;
    }
    return false;
}

} // namespace ozm::logvalue
