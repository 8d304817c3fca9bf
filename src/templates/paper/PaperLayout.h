#pragma once

#include "templates/instructions/InstructionSyntax.h"
#include "templates/paper/ContentsList.h"
#include "templates/paper/PageBreaks.h"
#include "templates/paper/PdfUpdate.h"

#include <ozm_widgets/ReportPaper.h>

#include <QAbstractTextDocumentLayout>
#include <QImage>

#include <memory>
#include <optional>

class QPainter;
class QThread;

namespace ozm {
class TemplateDocument;
} // namespace ozm

namespace ozm::paper {

// The resolution in which every report is laid out, so that a screen, a printer and a PDF have the same lines.
inline constexpr int kDotsPerInch = 300;

/**
 * A filled template on its pages, in dots of kDotsPerInch.
 *
 * The one way to paper: a printer, a PDF and the preview draw what stands here.
 */
class PaperLayout
{
public:
    using Selections = QList<QAbstractTextDocumentLayout::Selection>;

    PaperLayout(const QString &decoded, const ReportPaperOptions &options);
    ~PaperLayout();
    PaperLayout(const PaperLayout &) = delete;
    PaperLayout &operator=(const PaperLayout &) = delete;

    /// Those given, with what the template says about them.
    [[nodiscard]] const ReportPaperOptions &options() const { return m_options; }
    /// @p usual with what the template says about its pages.
    [[nodiscard]] QPageLayout pageLayout(QPageLayout usual) const;

    /// Lays the report out for sheets with room for @p sheet between their margins.
    void layOut(const QSizeF &sheet);
    /// For the sheets that options() and the template ask for.
    void layOutOnOwnSheets();
    /// From the thread that laid it out to the one that draws it.
    void moveTo(QThread &thread);
    [[nodiscard]] int pageCount() const { return int(m_pages.size()); }
    /// Draws a page with its header and footer; the painter's origin is the corner between the margins.
    void draw(QPainter &painter, int page, const Selections &selections = {}) const;

    /// The headings, for sheets of @p sheets.
    [[nodiscard]] QList<Bookmark> headings(const QPageLayout &sheets) const;

    /// The areas of the lists of headings that lead to @p headings, for sheets of @p sheets.
    [[nodiscard]] QList<PdfLink> links(const QPageLayout &sheets, const QList<Bookmark> &headings) const;

    /// The page on which the height @p y of the document is.
    [[nodiscard]] int pageAt(double y) const;
    /// Where @p point of a page is in the document, and the other way round.
    [[nodiscard]] QPointF toDocument(int page, const QPointF &point) const;
    [[nodiscard]] QPointF toPage(int page, const QPointF &place) const;

    [[nodiscard]] TemplateDocument &document() const { return *m_document; }

private:
    [[nodiscard]] QString foot() const;
    void drawEdges(QPainter &painter, int page) const;
    /// Draws @p slice, and of the borders that stand on its ends all of their width, at @p at.
    void drawSlice(QPainter &painter, const Slice &slice, const Slice &withBorders, double at,
                   const Selections &selections) const;
    [[nodiscard]] double top() const;
    void cut();
    [[nodiscard]] double topOf(const Heading &heading) const;

    ReportPaperOptions m_options;
    std::optional<instructions::Page> m_page;
    const QImage m_device;
    const std::unique_ptr<TemplateDocument> m_document;
    std::optional<ContentsList> m_contents;
    QSizeF m_sheet;
    QList<PageSlices> m_pages;
};

} // namespace ozm::paper
