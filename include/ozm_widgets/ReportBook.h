#pragma once

#include <ozm_common_stable/Error.h>
#include <ozm_widgets/ozm_widgets_export.h>

#include <QString>
#include <QStringList>

#include <memory>

namespace ozm {

class ReportPaper;

/// The facts that a PDF carries about itself; none of them is printed.
struct ReportBookOptions
{
    QString title;             ///< shown by viewers in place of the file's name
    QString author = {};       ///< who answers for the content, such as the signer
    QString subject = {};      ///< in one line, such as the project or the batch
    QStringList keywords = {}; ///< words that archives find the file by
};

/**
 * Reports in one PDF, one behind the other, such as a certificate for each sample.
 *
 * Each report begins on a sheet of its own, and has its own size of sheets, header, footer and page numbers. It has a
 * bookmark, with those of its headings under it. Reports are drawn when they are added, so that only one of them is in
 * memory.
 *
 *     ozm::ReportBook book(path, {u"Certificates"_s, u"J. Doe"_s});
 *     for (const RowNode *row : rows)
 *         if (ozm::Error error = book.add(ozm::ReportPaper(filled(*row)), nameOf(*row)); error.hasError())
 *             return error;
 *     return book.finish();
 *
 * The file at the path is replaced by finish(), and only when all was written. A book that goes before, as one does
 * that the user canceled, leaves it as it was. GUI thread only.
 */
class OZM_WIDGETS_EXPORT ReportBook
{
public:
    explicit ReportBook(const QString &path, const ReportBookOptions &options);
    ~ReportBook();
    ReportBook(const ReportBook &) = delete;
    ReportBook &operator=(const ReportBook &) = delete;

    /// How many sheets there are so far.
    [[nodiscard]] int sheetCount() const;

    /// Draws @p report. Without a @p bookmark, its headings have theirs at the top. Code 4 when the file cannot be
    /// written; nothing is added from then on.
    ozm::Error add(const ReportPaper &report, const QString &bookmark = {});

    /// Replaces the file. Code 4 when it cannot be written; code 2 for a book without reports, and after finish().
    [[nodiscard]] ozm::Error finish();

private:
    class Private;
    const std::unique_ptr<Private> d;
};

} // namespace ozm
