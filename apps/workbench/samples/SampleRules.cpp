#include "samples/SampleRules.h"

#include "data/DataColumns.h"
#include "samples/SampleTable.h"

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

Error massRefusal(const QString &text)
{
    return refusal(QT_TRANSLATE_NOOP("SampleRules", "The mass must be a positive number, not \"%1\"."), text);
}

Parsed parseMass(const QString &text)
{
    if (text.isEmpty())
        return QVariant();
    bool ok = false;
    const double mass = text.toDouble(&ok);
    if (!ok || !std::isfinite(mass) || mass <= 0.0)
        return massRefusal(text);
    return QVariant(mass);
}

Parsed parseKind(const QString &text)
{
    if (text.isEmpty())
        return QVariant();
    for (const QString &kind : {kFileKind, kFolderKind})
        if (kind.compare(text, Qt::CaseInsensitive) == 0)
            return QVariant(kind);
    return refusal(
        QT_TRANSLATE_NOOP("SampleRules", "The kind must be \"file\", \"folder\" or empty, not \"%1\"."),
        text);
}

Parsed parseSize(const QString &text)
{
    if (text.isEmpty())
        return QVariant();
    bool ok = false;
    const qint64 size = text.toLongLong(&ok);
    if (!ok || !std::ranges::all_of(text, isAsciiDigit)) {
        return refusal(
            QT_TRANSLATE_NOOP("SampleRules", "The size must be a number of bytes, or empty, not \"%1\"."),
            text);
    }
    return QVariant(size);
}

bool isFilled(const RowNode &row, const QString &column)
{
    return !row.getDataAt(column).toString().isEmpty();
}

} // namespace

Parsed parse(const QString &column, const QString &text)
{
    // A path may begin or end with a blank.
    if (column == kComment || column == kPath)
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
    if (column == kFormat || column == kDescription)
        return QVariant(trimmed);
    if (column == kKind)
        return parseKind(trimmed);
    if (column == kSize)
        return parseSize(trimmed);
    return refusal(QT_TRANSLATE_NOOP("SampleRules", "The column \"%1\" does not exist."), column);
}

Error checkRow(const RowNode &row)
{
    const bool hasData = SampleTable::hasData(row);
    if (!hasData && !row.getDataAt(kMass).isValid())
        return massRefusal({});
    for (const QString &column : SampleTable::dataColumns()) {
        const bool isNeeded = column == kKind || column == kPath;
        if (hasData && isNeeded && !isFilled(row, column))
            return refusal(QT_TRANSLATE_NOOP("SampleRules", "A sample with data needs its \"%1\"."), column);
        if (!hasData && isFilled(row, column)) {
            return refusal(QT_TRANSLATE_NOOP("SampleRules", "\"%1\" is for samples with a data format only."),
                           column);
        }
    }
    return {};
}

QString toText(const QVariant &value)
{
    if (value.typeId() == QMetaType::Double)
        return QString::number(value.toDouble(), 'g', QLocale::FloatingPointShortest);
    return value.toString();
}

} // namespace workbench::rules
