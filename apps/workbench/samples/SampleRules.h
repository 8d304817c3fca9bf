#pragma once

#include <ozm_common_core_mini/RowNode.h>
#include <ozm_common_stable/Result.h>

#include <QString>
#include <QVariant>

/**
 * The values that a cell of the sample table may hold, and how they are written.
 *
 * Charge: a whole number from 1 to 200, or nothing. Mass: a positive number; nothing only for a sample with
 * data. Name: not empty. Sequence: letters, or nothing. Comment: any text. Numbers are written with a point,
 * whatever the locale, so that a file means the same everywhere. That names are unique is the table's own
 * rule.
 *
 * A sample with data has a format, a kind ("file" or "folder") and a path; a description, and a size in bytes
 * if that is known. A sample without has none of them.
 */
namespace workbench::rules {

/// The value that @p text stands for in @p column; an error (BadParameter) with a text for the user when it
/// stands for none.
[[nodiscard]] ozm::Result<QVariant> parse(const QString &column, const QString &text);

/// True when values that may each be in their column may be in one row together.
[[nodiscard]] ozm::Error checkRow(const RowNode &row);

/// The text that parse() reads as @p value.
[[nodiscard]] QString toText(const QVariant &value);

} // namespace workbench::rules
