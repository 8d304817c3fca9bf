#pragma once

#include <ozm_common_core_mini/ozm_common_core_mini_export.h>

#include <QMap>
#include <QString>
#include <QVariant>

/**
 * The names of RowNode columns on screen, and how their values are shown there.
 *
 *     header->setText(ColumnFriendlyName::friendlyName(kCalcMr)); // "Calculated mass (Da)"
 *
 * The table is built on first use and never changes; any thread may ask.
 */
class OZM_COMMON_CORE_MINI_EXPORT ColumnFriendlyName
{
public:
    /// The text of a column in a row that summarises several; their value, where all have the same.
    enum class Summary
    {
        Values, ///< The different values, in order of appearance, joined with "; ".
        Range,  ///< The smallest and the largest number: "2 – 5".
        Sum,    ///< Of all values, equal ones too.
        Mean,   ///< Of all values, equal ones too.
        Count   ///< How many different values there are.
    };

    /// How a column is called and summed up on screen.
    struct OZM_COMMON_CORE_MINI_EXPORT FriendlyNameStruct
    {
        QString friendlyName;              ///< The header's text.
        QString toolTip;                   ///< The header's explanation.
        int decimals = -1;                 ///< Digits shown after the point; -1 shows a number as it is.
        Summary summary = Summary::Values; ///< How several values become one.

        /// The value as a reader sees it: numbers with the column's digits, lists joined with "; ".
        [[nodiscard]] QString valueToString(const QVariant &value) const;
    };

    /// All known columns, by their name in the data.
    [[nodiscard]] static const QMap<QString, FriendlyNameStruct> &getColumnFriendlyNames();

    /// The display name of @p column; the column's own name when the table does not know it.
    [[nodiscard]] static QString friendlyName(const QString &column);

    /// A few words about the contents of @p column; the column's own name when the table does not know it.
    [[nodiscard]] static QString toolTip(const QString &column);
};
