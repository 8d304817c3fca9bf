#pragma once

#include <ozm_common_core_mini/ozm_common_core_mini_export.h>

#include <QList>
#include <QString>

namespace ozm {

/**
 * Writes tables in the form that spreadsheets read: UTF-8 with a byte-order mark, a line a row (ended by a
 * carriage return and a line feed), and cells that hold the separator, the text qualifier, a line break or
 * blanks at an end put between qualifiers, with every qualifier inside doubled.
 *
 *     if (!ozm::CsvWriter::writeFile(path, {{u"Name"_s, u"Mass"_s}, {u"a,b"_s, u"12.5"_s}}))
 *         report(path);
 */
class OZM_COMMON_CORE_MINI_EXPORT CsvWriter
{
public:
    /**
     * Replaces the file at @p path by @p rows, once all of them are written; false leaves it as it was. A file
     * with hard links, or of another owner or group, stays that file. Folders, pipes, and names with a null
     * character are refused. The whole table is in memory once more while it is written.
     *
     * @p text is the text qualifier, one character; empty means the double quote.
     */
    [[nodiscard]] static bool writeFile(const QString &path, const QList<QList<QString>> &rows,
                                        const QString &text = {}, const QChar &separator = u',');
};

} // namespace ozm
