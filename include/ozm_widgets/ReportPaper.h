#pragma once

#include <ozm_common_stable/Error.h>
#include <ozm_widgets/ozm_widgets_export.h>

#include <QFont>
#include <QPageLayout>
#include <QString>

#include <memory>

class QPagedPaintDevice;

namespace ozm {

/// How a report is laid out on paper, unless its template says otherwise.
struct ReportPaperOptions
{
    QString title;         ///< Of the file; not printed.
    QString footer;        ///< At the left of each sheet's foot; the number of the page is at its right.
    QString header = {};   ///< At the left of each sheet's top.
    QString document = {}; ///< Name of the document, at the left of each sheet's foot, before the footer.
    QString version = {};  ///< Of the document, behind its name.

    /// For text that names none itself.
    QFont font = QFont(QStringLiteral("DejaVu Sans"), 9);
    /// The sheet and its margins for PDF; a printer has its own.
    QPageLayout layout = QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait,
                                     QMarginsF(20, 16, 18, 14), QPageLayout::Millimeter);
    /// For elements and classes of the template, in the CSS that QTextDocument::setDefaultStyleSheet() reads. The
    /// template's own styles stand above it. Rules for the classes of paragraphStyleSheet() replace those there; any
    /// other class with a rule of its own is offered by the template editor as a style of paragraphs, too.
    QString styleSheet = {};
};

/// The rules of the paragraph styles that the template editor offers, from title to note. Paper reads them before
/// ReportPaperOptions::styleSheet; a report that is stored as a page carries them in the same order.
[[nodiscard]] OZM_WIDGETS_EXPORT QString paragraphStyleSheet();

/**
 * Brings a filled template onto paper, by a printer or as PDF, always in the same way.
 *
 * Rows of tables are not cut by the end of a sheet, headings stay with what follows them, the heading rows of a table
 * stand on each of its sheets, and each sheet has its number. The lines are the same on every device, and in
 * ReportView. Size, orientation, margins, header, footer, name and version are those of the template where it has an
 * instruction "page", see docs/report-templates.md; a printer is set to them. ReportBook puts several reports into one
 * PDF. Only what the text carries itself is shown: nothing is loaded from disk or from a network.
 *
 *     const QString decoded = AbstractTemplateEditor::decodeTEC(content, &row, {});
 *     ozm::ReportPaper paper(decoded, {u"Certificate"_s, u"Laboratory 3"_s});
 *     if (ozm::Error error = paper.writePdf(path); error.hasError())
 *         show(error);
 *
 * GUI thread only.
 */
class OZM_WIDGETS_EXPORT ReportPaper
{
public:
    /// @p decoded is HTML or plain text as decoding gives it; script tags in it are left out.
    explicit ReportPaper(const QString &decoded, const ReportPaperOptions &options = {});
    ~ReportPaper();
    ReportPaper(const ReportPaper &) = delete;
    ReportPaper &operator=(const ReportPaper &) = delete;

    /// Draws the pages that the device was asked for; all when it was asked for none. Returns how many pages the
    /// report has.
    int print(QPagedPaintDevice &device) const;

    /// With the headings as bookmarks, to which the entries of tables of contents lead. Replaces the file at @p path only when all of it is written; code 4 otherwise.
    [[nodiscard]] Error writePdf(const QString &path) const;

private:
    friend class ReportBook;
    class Private;
    const std::unique_ptr<Private> d;
};

} // namespace ozm
