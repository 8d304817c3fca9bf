#include "SampleRules.h"

#include <ozm_common_core_mini/ColumnNames.h>

#include <QCoreApplication>
#include <QLocale>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;
using ozm::Error;
using ozm::ErrorCode;

namespace workbench::rules {

namespace {

using Parsed = ozm::Result<QVariant>;

// More than any protein carries in a source; a larger number is a mass in the wrong column.
constexpr int kHighestCharge = 200;

Error refusal(const QString &text)
{
    return Error(ErrorCode::BadParameter, text).ecatch(OZM_HERE);
}

/// With what was typed in the place of "%1".
Error refusal(const char *text, const QString &typed)
{
    return refusal(QCoreApplication::translate("SampleRules", text).arg(typed));
}

bool isAsciiLetter(QChar c)
{
    return (c >= u'A' && c <= u'Z') || (c >= u'a' && c <= u'z');
}

bool isAsciiDigit(QChar c)
{
    return c >= u'0' && c <= u'9';
}

Parsed parseName(const QString &text)
{
    if (text.isEmpty())
        return refusal(QCoreApplication::translate("SampleRules", "The name must not be empty."));
    return QVariant(text);
}

Parsed parseSequence(const QString &text)
{
    if (!std::ranges::all_of(text, isAsciiLetter))
        return refusal(QT_TRANSLATE_NOOP("SampleRules", "The sequence may hold letters only, not \"%1\"."),
                       text);
    return QVariant(text);
}

Parsed parseCharge(const QString &text)
{
    if (text.isEmpty())
        return QVariant();
    bool ok = false;
    const int charge = text.toInt(&ok);
    if (!ok || !std::ranges::all_of(text, isAsciiDigit) || charge < 1 || charge > kHighestCharge) {
        return refusal(
            QT_TRANSLATE_NOOP("SampleRules",
                              "The charge must be a whole number from 1 to 200, or empty, not \"%1\"."),
            text);
    }
    return QVariant(charge);
}

Parsed parseMass(const QString &text)
{
    bool ok = false;
    const double mass = text.toDouble(&ok);
    if (!ok || !std::isfinite(mass) || mass <= 0.0) {
        return refusal(QT_TRANSLATE_NOOP("SampleRules", "The mass must be a positive number, not \"%1\"."),
                       text);
    }
    return QVariant(mass);
}

} // namespace

Parsed parse(const QString &column, const QString &text)
{
    if (column == kComment)
        return QVariant(text);
    const QString trimmed = text.trimmed();
    if (column == kName)
        return parseName(trimmed);
    if (column == kSequence)
        return parseSequence(trimmed);
    if (column == kCharge)
        return parseCharge(trimmed);
    if (column == kMass)
        return parseMass(trimmed);
    return refusal(QT_TRANSLATE_NOOP("SampleRules", "There is no column \"%1\"."), column);
}

QString toText(const QVariant &value)
{
    if (value.typeId() == QMetaType::Double)
        return QString::number(value.toDouble(), 'g', QLocale::FloatingPointShortest);
    return value.toString();
}

} // namespace workbench::rules
