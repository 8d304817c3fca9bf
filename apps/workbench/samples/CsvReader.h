#pragma once

#include <ozm_common_stable/Result.h>

#include <QList>
#include <QString>
#include <QStringList>

namespace workbench {

/// One record of a CSV file, with the line it begins on.
struct CsvRow
{
    int line = 0;
    QStringList cells;
};

/**
 * Reads comma-separated text: UTF-8 with or without a byte-order mark, lines ended in any common way, cells
 * in double quotes that may hold commas, line breaks and doubled quotes. Empty lines are passed over.
 *
 * Any other text is an error that names the line: bytes that are not UTF-8, a quote that is never
 * closed, and text after a closing quote.
 */
[[nodiscard]] ozm::Result<QList<CsvRow>> readCsv(const QByteArray &bytes);

} // namespace workbench
