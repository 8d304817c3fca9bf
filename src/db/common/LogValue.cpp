#include "LogValue.h"

#include "support/Logging.h"

#include <ozm_common_core_mini/VariantItems.h>

#include <QAssociativeIterable>
#include <QDateTime>
#include <QDebug>
#include <QJsonArray>
#include <QJsonDocument>
#include <QSequentialIterable>

#include <algorithm>
#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;

namespace ozm::logvalue {

namespace {

// Two members tell a value that JSON has no form for from everything that has one.
constexpr auto kMarkType = "ozm:type"_L1;
constexpr auto kMarkValue = "ozm:value"_L1;
constexpr auto kRealMark = "double"_L1;
constexpr auto kUnsignedMark = "qulonglong"_L1;
constexpr auto kBytesMark = "QByteArray"_L1;
// A map that could be mistaken for a marked value is marked itself.
constexpr auto kMapMark = "map"_L1;

// Up to here every integer is a double, and both are written alike.
constexpr double kExactIntegers = 9007199254740992.0;

QJsonValue convert(const QVariant &value, int room);
QVariant readMarked(const QJsonObject &object);

QJsonValue marked(QLatin1StringView type, const QJsonValue &value)
{
    return QJsonObject{{kMarkType, type}, {kMarkValue, value}};
}

QJsonValue refused(const QVariant &value, int room, const char *why)
{
    const QByteArrayView type(value.metaType().name());
    OZM_WIDGETS_WARNING() << "Audit trail cannot record a value of type" << type.toByteArray() << why;
    const QString text = u"(value of type %1 not recorded)"_s.arg(QLatin1StringView(type));
    return room > 0 ? marked(QLatin1StringView(type), text) : QJsonValue(text);
}

/// For a type that JSON has no form for: its text, marked with the type.
QJsonValue markedText(const QVariant &value, QLatin1StringView type, const QString &text, int room)
{
    return room > 0 ? marked(type, text) : refused(value, room, "since it is nested too deeply");
}

QJsonValue unsignedInteger(const QVariant &value, int room)
{
    const quint64 number = value.toULongLong();
    if (number <= static_cast<quint64>(std::numeric_limits<qint64>::max()))
        return static_cast<qint64>(number);
    return markedText(value, kUnsignedMark, QString::number(number), room);
}

QJsonValue real(const QVariant &value, int room)
{
    const double number = value.toDouble();
    // A QJsonValue keeps -0.0 as it is, but is read back as 0.
    if (std::isfinite(number))
        return number + 0.0;
    return markedText(value, kRealMark, QString::number(number), room);
}

QJsonValue bytes(const QVariant &value, int room)
{
    const QByteArray data = value.toByteArray();
    const QString text = QString::fromUtf8(data);
    if (text.toUtf8() == data)
        return text;
    return markedText(value, kBytesMark, QString::fromLatin1(data.toBase64()), room);
}

QJsonValue dateTime(QDateTime time)
{
    // With its distance from UTC: without, a local time would mean another moment elsewhere.
    if (time.timeSpec() == Qt::LocalTime)
        time = time.toOffsetFromUtc(time.offsetFromUtc());
    return time.isValid() ? QJsonValue(time.toString(Qt::ISODateWithMs)) : QJsonValue();
}

QJsonValue enumerator(const QVariant &value)
{
    const QString name = value.toString();
    return name.isEmpty() ? QJsonValue(value.toLongLong()) : QJsonValue(name);
}

QJsonValue list(const QVariantList &items, int room)
{
    QJsonArray array;
    for (const QVariant &item : items)
        array.append(convert(item, room - 1));
    return array;
}

QJsonValue sequence(const QVariant &value, int room)
{
    QJsonArray array;
    for (const QVariant &item : value.value<QSequentialIterable>())
        array.append(convert(item, room - 1));
    return array;
}

bool isMarked(const QJsonObject &object)
{
    return object.size() == 2 && object.value(kMarkType).isString() && object.contains(kMarkValue);
}

QJsonValue map(const QVariant &value, int room)
{
    QJsonObject object;
    const auto entries = value.value<QAssociativeIterable>();
    for (auto entry = entries.begin(); entry != entries.end(); ++entry)
        object.insert(toText(convert(entry.key(), room - 1)), convert(entry.value(), room - 1));
    if (!readMarked(object).isValid())
        return object;
    return room > 1 ? marked(kMapMark, object) : refused(value, room, "since it is nested too deeply");
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

/// Containers come first, since some of them convert to text as well.
QJsonValue convertContainer(const QVariant &value, int room)
{
    if (room <= 0)
        return refused(value, room, "since it is nested too deeply");
    if (value.metaType() == QMetaType::fromType<VariantItems>())
        return list(value.value<VariantItems>().toList(), room);
    if (value.canConvert<QVariantPair>()) {
        const auto pair = value.value<QVariantPair>();
        return list({pair.first, pair.second}, room);
    }
    return value.canConvert<QAssociativeIterable>() ? map(value, room) : sequence(value, room);
}

bool isContainer(const QVariant &value)
{
    return value.metaType() == QMetaType::fromType<VariantItems>() || value.canConvert<QVariantPair>() ||
           value.canConvert<QAssociativeIterable>() || value.canConvert<QSequentialIterable>();
}

QJsonValue convertOther(const QVariant &value, int room)
{
    if (holdsPointer(value.metaType()))
        return refused(value, room, "since a pointer means nothing once the program has ended");
    if (value.metaType().flags() & QMetaType::IsEnumeration)
        return enumerator(value);
    if (isContainer(value))
        return convertContainer(value, room);
    if (value.canConvert<QString>()) {
        const QString text = value.toString();
        return text.isEmpty() ? QJsonValue() : QJsonValue(text);
    }
    if (value.metaType().hasRegisteredDebugStreamOperator())
        return markedText(value, QLatin1StringView(value.metaType().name()), printed(value), room);
    return refused(value, room, "since it can neither be converted to text nor printed");
}

/// @p value, which is JSON of one kind or another.
QJsonValue convertJson(const QJsonValue &value, int room)
{
    if (value.isObject())
        return convert(value.toObject().toVariantMap(), room);
    if (!value.isArray())
        return value.isUndefined() ? QJsonValue() : value;
    const QJsonArray items = value.toArray();
    if (room <= 0)
        return refused(items, room, "since it is nested too deeply");
    QJsonArray array;
    for (const auto &item : items)
        array.append(convertJson(item, room - 1));
    return array;
}

QJsonValue convertNumber(const QVariant &value, int room)
{
    switch (value.typeId()) {
    case QMetaType::Bool:
        return value.toBool();
    case QMetaType::UShort:
    case QMetaType::UInt:
    case QMetaType::ULong:
    case QMetaType::ULongLong:
    case QMetaType::UChar:
        return unsignedInteger(value, room);
    case QMetaType::Float:
    case QMetaType::Double:
        return real(value, room);
    default:
        return value.toLongLong();
    }
}

/// Follows QJsonValue::fromVariant() wherever that keeps the value.
QJsonValue convert(const QVariant &value, int room)
{
    if (value.typeId() == QMetaType::QJsonValue)
        return convertJson(value.toJsonValue(), room);
    if (value.isNull())
        return QJsonValue::Null;

    switch (value.typeId()) {
    case QMetaType::QString:
        return value.toString();
    case QMetaType::Bool:
    case QMetaType::Short:
    case QMetaType::UShort:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::Long:
    case QMetaType::ULong:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::SChar:
    case QMetaType::UChar:
    case QMetaType::Float:
    case QMetaType::Double:
        return convertNumber(value, room);
    case QMetaType::QByteArray:
        return bytes(value, room);
    case QMetaType::QDateTime:
        return dateTime(value.toDateTime());
    case QMetaType::QUrl:
    case QMetaType::QUuid:
        return QJsonValue::fromVariant(value);
    case QMetaType::QJsonArray:
    case QMetaType::QJsonObject:
    case QMetaType::QJsonDocument:
        return convertJson(QJsonValue::fromVariant(value), room);
    default:
        return convertOther(value, room);
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

QString numberToText(const QJsonValue &value)
{
    const QVariant number = value.toVariant();
    if (number.typeId() == QMetaType::LongLong)
        return QString::number(number.toLongLong());
    const double real = number.toDouble();
    if (std::abs(real) <= kExactIntegers)
        return QString::number(real, 'g', QLocale::FloatingPointShortest);
    // As the writer of JSON puts it: a reader may take the same digits for an integer.
    const QByteArray json = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
    return QString::fromLatin1(json.sliced(1, json.size() - 2));
}

/// Invalid when @p object is not marked, or with a type that is kept as text only.
QVariant readMarked(const QJsonObject &object)
{
    if (!isMarked(object))
        return {};
    const QString type = object.value(kMarkType).toString();
    const QJsonValue value = object.value(kMarkValue);
    const QString text = value.toString();
    if (type == kMapMark && value.isObject())
        return readEntries(value.toObject());
    bool ok = false;
    if (type == kUnsignedMark) {
        const quint64 number = text.toULongLong(&ok);
        return ok ? QVariant(number) : QVariant();
    }
    if (type == kRealMark) {
        const double number = text.toDouble(&ok);
        return ok && !std::isfinite(number) ? QVariant(number) : QVariant();
    }
    if (type == kBytesMark && value.isString()) {
        const auto decoded =
            QByteArray::fromBase64Encoding(text.toLatin1(), QByteArray::AbortOnBase64DecodingErrors);
        return decoded ? QVariant(*decoded) : QVariant();
    }
    return {};
}

QString markedToText(const QJsonObject &object)
{
    const QVariant value = readMarked(object);
    const QString text = toText(object.value(kMarkValue));
    return value.typeId() == QMetaType::QByteArray ? "base64:"_L1 + text : text;
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

QJsonValue toJson(const QVariant &value, int room)
{
    registerVariantItems();
    return convert(value, room);
}

QJsonObject toJson(const QMap<QString, QVariant> &values, int room)
{
    registerVariantItems();
    QJsonObject object;
    for (auto value = values.constBegin(); value != values.constEnd(); ++value)
        object.insert(value.key(), convert(value.value(), room - 1));
    return object;
}

QVariant fromJson(const QJsonValue &value)
{
    if (value.isObject()) {
        const QVariant marked = readMarked(value.toObject());
        return marked.isValid() ? marked : readEntries(value.toObject());
    }
    if (value.isArray()) {
        QVariantList items;
        const QJsonArray array = value.toArray();
        for (const auto &item : array)
            items.append(fromJson(item));
        return items;
    }
    return value.isNull() || value.isUndefined() ? QVariant() : value.toVariant();
}

QMap<QString, QVariant> readEntries(const QJsonObject &values)
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
        if (isMarked(value.toObject()))
            return markedToText(value.toObject());
        return value.toObject().isEmpty() ? QString() : joined(value.toObject());
    case QJsonValue::Null:
    case QJsonValue::Undefined:
        break;
    }
    return {};
}

QString onOneLine(const QString &text)
{
    const auto breaks = [](QChar c) {
        return c < u' ' || c == QChar(0x85) || c == QChar::LineSeparator || c == QChar::ParagraphSeparator;
    };
    if (std::ranges::none_of(text, breaks))
        return text;
    QString line;
    for (const QChar c : text) {
        if (!breaks(c))
            line += c;
        else if (c == u'\n')
            line += "\\n"_L1;
        else if (c == u'\r')
            line += "\\r"_L1;
        else if (c == u'\t')
            line += "\\t"_L1;
        else
            line += u"\\u%1"_s.arg(c.unicode(), 4, 16, QChar(u'0'));
    }
    return line;
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
