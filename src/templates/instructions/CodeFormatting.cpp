#include "templates/instructions/CodeFormatting.h"

#include "templates/decoding/TokenReplacement.h"

#include <QBuffer>
#include <QDateTime>
#include <QImage>
#include <QImageReader>
#include <QLocale>

#include <algorithm>
#include <cmath>
#include <numeric>

using namespace Qt::StringLiterals;

namespace ozm::instructions {

namespace {

constexpr int kGroup = 3;

QString grouped(const QString &digits, const QString &separator)
{
    QString result = digits;
    for (qsizetype at = result.size() - kGroup; at > 0; at -= kGroup)
        result.insert(at, separator);
    return result;
}

/// The digits that a number has by itself, never with an exponent.
QString plainDigits(double number)
{
    return QString::number(number, 'f', QLocale::FloatingPointShortest);
}

QString dateText(const CodeFormat &format, const TemplateField &field)
{
    QDateTime moment = field.value.toDateTime();
    const QString text = textOf(field);
    if (field.value.typeId() == QMetaType::QString || !moment.isValid()) {
        static constexpr std::array kForms{"yyyy-MM-dd"_L1, "yyyy-MM-dd HH:mm"_L1, "yyyy-MM-dd HH:mm:ss"_L1};
        moment = QDateTime::fromString(text.trimmed(), Qt::ISODate);
        for (const QLatin1StringView form : kForms)
            if (!moment.isValid())
                moment = QDateTime::fromString(text.trimmed(), QString(form));
    }
    const QString pattern = format.pattern.isEmpty() ? u"yyyy-MM-dd"_s : format.pattern;
    return moment.isValid() ? QLocale::c().toString(moment.toLocalTime(), pattern) : text;
}

QString numberText(const CodeFormat &format, const TemplateField &field)
{
    const auto number = numberOf(field);
    if (!number)
        return textOf(field);
    const QString text = formattedNumber(format, *number);
    return format.unit.isEmpty() ? text : text + u'\u00a0' + format.unit;
}

QByteArray imageBytes(const QVariant &value, QByteArray *type)
{
    QByteArray bytes = value.toByteArray();
    *type = "png";
    if (value.typeId() == QMetaType::QImage) {
        bytes.clear();
        QBuffer buffer(&bytes);
        if (!buffer.open(QIODevice::WriteOnly) || !value.value<QImage>().save(&buffer, "PNG"))
            return {};
        return bytes;
    }
    if (value.typeId() != QMetaType::QByteArray)
        return {};
    QBuffer buffer(&bytes);
    *type = QImageReader(&buffer).format();
    if (*type == "svg" || bytes.startsWith("<svg"))
        *type = "svg+xml";
    return type->isEmpty() ? QByteArray() : bytes;
}

QString inHtmlText(const QString &text)
{
    QString html = text.toHtmlEscaped();
    return html.replace(u'\n', "<br/>"_L1);
}

/// An element that carries the image; empty where the value is none.
QString imageElement(const CodeFormat &format, const TemplateField &field)
{
    QByteArray type;
    const QByteArray bytes = imageBytes(field.value, &type);
    if (bytes.isEmpty())
        return {};
    const QString width = format.width > 0 ? u" width=\"%1\""_s.arg(format.width) : QString();
    return "<img src=\"data:image/"_L1 + QString::fromLatin1(type) + ";base64,"_L1 +
           QString::fromLatin1(bytes.toBase64()) + u'"' + width + " alt=\""_L1 +
           format.alternative.toHtmlEscaped() + "\"/>"_L1;
}

QString inCase(LetterCase letterCase, const QString &text)
{
    switch (letterCase) {
    case LetterCase::Upper:
        return text.toUpper();
    case LetterCase::Lower:
        return text.toLower();
    case LetterCase::AsIs:
        break;
    }
    return text;
}

QString plainText(const CodeFormat &format, const TemplateField &field)
{
    switch (format.kind) {
    case FormatKind::Number:
        return numberText(format, field);
    case FormatKind::Date:
        return dateText(format, field);
    case FormatKind::Image:
        return format.alternative;
    case FormatKind::Text:
        break;
    }
    return inCase(format.letterCase, textOf(field));
}

double totalOf(Total total, const QList<double> &numbers)
{
    // In the order of the rows, so that a report can be made once more to the last digit.
    const double sum = std::accumulate(numbers.begin(), numbers.end(), 0.0);
    switch (total) {
    case Total::Mean:
        return sum / double(numbers.size());
    case Total::Smallest:
        return *std::ranges::min_element(numbers);
    case Total::Largest:
        return *std::ranges::max_element(numbers);
    case Total::None:
    case Total::Sum:
    case Total::Count:
        break;
    }
    return sum;
}

} // namespace

QString textOf(const TemplateField &field)
{
    return tokens::textOf(field.shown);
}

bool isEmpty(const TemplateField &field)
{
    if (field.value.typeId() == QMetaType::QImage)
        return field.value.value<QImage>().isNull();
    return textOf(field).trimmed().isEmpty();
}

std::optional<double> numberOf(const TemplateField &field)
{
    if (field.value.typeId() == QMetaType::Bool)
        return std::nullopt;
    bool ok = false;
    const double number = field.value.toDouble(&ok);
    // A text such as "0x10" or "1e400" is none of the numbers that a report would show otherwise.
    return ok && std::isfinite(number) ? std::optional(number) : std::nullopt;
}

bool holds(const Condition &condition, const std::optional<TemplateField> &field)
{
    const bool hasValue = field && !isEmpty(*field);
    if (condition.test == Test::Present || condition.test == Test::Absent)
        return hasValue == (condition.test == Test::Present);
    if (!hasValue)
        return condition.test == Test::Differs;
    const auto number = numberOf(*field);
    const auto wanted = numberOf({condition.value, condition.value});
    const bool areNumbers = number && wanted;
    const bool isEqual = areNumbers ? *number == *wanted : textOf(*field) == condition.value;
    switch (condition.test) {
    case Test::Equals:
        return isEqual;
    case Test::Differs:
        return !isEqual;
    case Test::Above:
        return areNumbers && *number > *wanted;
    case Test::Below:
        return areNumbers && *number < *wanted;
    case Test::Present:
    case Test::Absent:
        break;
    }
    return false;
}

QString formattedNumber(const CodeFormat &format, double number)
{
    const double value = number * format.factor;
    QString text = format.digits < 0 ? plainDigits(std::abs(value))
                                     : QString::number(std::abs(value), 'f', format.digits);
    const qsizetype point = text.indexOf(u'.');
    const QString whole = point < 0 ? text : text.first(point);
    const QString rest = point < 0 ? QString() : format.decimal + text.sliced(point + 1);
    const bool isZero = std::ranges::all_of(text, [](QChar c) { return c == u'0' || c == u'.'; });
    const QString sign = value < 0 && !isZero ? u"-"_s : QString();
    return sign + (format.thousands.isEmpty() ? whole : grouped(whole, format.thousands)) + rest;
}

QString formatted(const CodeFormat &format, const std::optional<TemplateField> &field, bool inHtml)
{
    if (!field || isEmpty(*field))
        return inHtml ? inHtmlText(format.empty) : format.empty;
    if (format.kind == FormatKind::Image && inHtml) {
        const QString element = imageElement(format, *field);
        return element.isEmpty() ? inHtmlText(format.alternative) : element;
    }
    const QString text = plainText(format, *field);
    return inHtml && !format.isHtml ? inHtmlText(text) : text;
}

std::optional<TemplateField> totalOf(Total total, const QList<TemplateField> &fields, QString *error)
{
    QList<double> numbers;
    for (const TemplateField &field : fields) {
        if (isEmpty(field) || total == Total::Count)
            continue;
        const auto number = numberOf(field);
        if (!number) {
            *error = Texts::tr("\"%1\" is not a number.").arg(textOf(field));
            return std::nullopt;
        }
        numbers.append(*number);
    }
    if (total == Total::Count) {
        const auto count = fields.size() - std::ranges::count_if(fields, &isEmpty);
        return TemplateField{count, count};
    }
    if (numbers.isEmpty())
        return TemplateField();
    const double result = totalOf(total, numbers);
    return TemplateField{result, QString::number(result, 'g', QLocale::FloatingPointShortest)};
}

} // namespace ozm::instructions
