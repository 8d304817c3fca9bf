#include "templates/paper/PageBreaks.h"

#include <QAbstractTextDocumentLayout>
#include <QTextBlock>
#include <QTextFrame>
#include <QTextLayout>
#include <QTextTable>

#include <algorithm>
#include <limits>
#include <optional>
#include <vector>

namespace ozm::paper {

namespace {

// Heights of lines are rounded in the layout.
constexpr double kSameHeight = 0.5;
// Heading rows that take more of a page than this are not repeated.
constexpr double kLargestHeading = 0.5;
constexpr int kSplitLines = 2; // of a paragraph on either page, at least
constexpr double kUnitsPerInch = 96;

/// The reasons that keep a part whole; the later, the sooner one gives way.
enum class Holding
{
    Line,
    Row,
    Together
};

struct Held
{
    Slice slice;
    Holding holding;
};

struct TableRows
{
    Slice heading; ///< Empty without heading rows.
    Slice body;
};

class Outline
{
public:
    explicit Outline(const QTextDocument &document)
        : m_layout(*document.documentLayout())
        , m_unit(m_layout.paintDevice() ? m_layout.paintDevice()->logicalDpiY() / kUnitsPerInch : 1)
    {
        collect(document.rootFrame()->begin(), document.rootFrame()->end());
        std::ranges::sort(m_held, {}, [](const Held &held) { return held.slice.top; });
        std::ranges::sort(m_breaks);
        m_end = m_layout.documentSize().height();
        // The line that a document has behind a table at its end gets no page of its own.
        const QTextBlock last = document.lastBlock();
        if (last.length() <= 1 && last != document.begin()) {
            // It stands beside the end of the table rather than below it.
            double end = m_layout.blockBoundingRect(last).top();
            for (const TableRows &table : m_tables)
                end = std::max(end, table.body.bottom);
            m_end = std::min(m_end, end);
        }
    }

    [[nodiscard]] double end() const { return m_end; }

    /// The table that goes on at @p top; null where none does.
    [[nodiscard]] const TableRows *tableAt(double top) const
    {
        const auto found = std::ranges::find_if(m_tables, [top](const TableRows &table) {
            return table.body.top + kSameHeight < top && top < table.body.bottom - kSameHeight;
        });
        return found == m_tables.end() ? nullptr : &*found;
    }

    /// Where a page ends that begins at @p top and has room until @p limit.
    [[nodiscard]] double pageEnd(double top, double limit) const
    {
        const auto forced = std::ranges::lower_bound(m_breaks, top + kSameHeight);
        if (forced != m_breaks.end() && *forced < limit)
            return *forced;
        if (m_end <= limit)
            return m_end;
        for (const Holding holding : {Holding::Together, Holding::Row, Holding::Line})
            if (const double end = wholeEnd(top, limit, holding); end > top + kSameHeight)
                return end;
        return limit;
    }

    /// Where the page begins that follows one that ended at @p end: the space between the two is left out.
    [[nodiscard]] double nextTop(double end) const
    {
        const auto next = std::ranges::lower_bound(m_held, end - kSameHeight, {},
                                                   [](const Held &held) { return held.slice.top; });
        return next == m_held.end() ? m_end : std::max(end, next->slice.top);
    }

private:
    /// The lowest place before @p limit at which nothing is cut that is kept by @p holding or what is stronger.
    [[nodiscard]] double wholeEnd(double top, double limit, Holding holding) const
    {
        double end = limit;
        const auto first = std::ranges::lower_bound(m_held, top - kSameHeight, {},
                                                    [](const Held &held) { return held.slice.top; });
        for (bool isCut = true; isCut && end > top + kSameHeight;) {
            isCut = false;
            for (auto held = first; held != m_held.end() && held->slice.top < end - kSameHeight; ++held) {
                if (held->holding <= holding && held->slice.bottom > end + kSameHeight) {
                    end = held->slice.top;
                    isCut = true;
                    break;
                }
            }
        }
        return end;
    }

    void hold(const Slice &slice, Holding holding)
    {
        if (slice.bottom > slice.top)
            m_held.push_back({slice, holding});
    }

    void collect(QTextFrame::iterator at, const QTextFrame::iterator &end)
    {
        std::optional<double> heading;
        for (; at != end; ++at) {
            QTextFrame *frame = at.currentFrame();
            const Slice first = frame ? collectFrame(*frame) : collectBlock(at.currentBlock());
            if (m_breaksNext && first.bottom > first.top) {
                addBreak(first.top);
                m_breaksNext = false;
            }
            if (heading && first.bottom > first.top)
                hold({*heading, first.bottom}, Holding::Together);
            const bool isHeading = !frame && at.currentBlock().blockFormat().headingLevel() > 0;
            if (isHeading)
                heading = first.top;
            else if (first.bottom > first.top)
                heading.reset();
            if (!frame &&
                at.currentBlock().blockFormat().pageBreakPolicy() & QTextFormat::PageBreak_AlwaysAfter)
                m_breaksNext = true;
        }
    }

    void addBreak(double top) { m_breaks.push_back(m_rowTop.value_or(top)); }

    /// Returns its first part, which something before it may have to stay with.
    Slice collectBlock(const QTextBlock &block)
    {
        const QTextLayout *layout = block.layout();
        const QRectF rect = m_layout.blockBoundingRect(block);
        const double top = rect.top() - layout->boundingRect().top();
        const int lines = layout->lineCount();
        const auto part = [&](int from, int to) {
            return Slice{top + layout->lineAt(from).y(), top + layout->lineAt(to).rect().bottom()};
        };
        if (block.blockFormat().pageBreakPolicy() & QTextFormat::PageBreak_AlwaysBefore)
            addBreak(rect.top());
        if (lines == 0)
            return {rect.top(), rect.top()};
        for (int line = 0; line < lines; ++line)
            hold(part(line, line), Holding::Line);
        if (lines > 1 && (block.blockFormat().nonBreakableLines() || lines < 2 * kSplitLines)) {
            hold(part(0, lines - 1), Holding::Together);
            return part(0, lines - 1);
        }
        if (lines > 1) {
            hold(part(0, kSplitLines - 1), Holding::Together);
            hold(part(lines - kSplitLines, lines - 1), Holding::Together);
        }
        return part(0, std::min(lines, kSplitLines) - 1);
    }

    Slice collectFrame(QTextFrame &frame)
    {
        const QTextFormat::PageBreakFlags breaks = frame.frameFormat().pageBreakPolicy();
        const QRectF rect = rectOf(frame);
        Slice first{rect.top(), rect.bottom()};
        if (auto *table = qobject_cast<QTextTable *>(&frame))
            first = collectTable(*table, rect.height());
        else
            collect(frame.begin(), frame.end());
        if (breaks & QTextFormat::PageBreak_AlwaysBefore)
            addBreak(first.top);
        if (breaks & QTextFormat::PageBreak_AlwaysAfter)
            m_breaksNext = true;
        return first;
    }

    /// The layout counts the spaces around a table to its height, but gives it the place of its first row.
    [[nodiscard]] QRectF rectOf(QTextFrame &frame) const
    {
        QRectF rect = m_layout.frameBoundingRect(&frame);
        const QTextFrameFormat format = frame.frameFormat();
        if (qobject_cast<QTextTable *>(&frame))
            rect.setHeight(rect.height() - (format.topMargin() + format.bottomMargin()) * m_unit);
        return rect;
    }

    Slice collectTable(QTextTable &table, double height)
    {
        const std::vector<double> tops = rowTops(table, height);
        const Slice whole{tops.front(), tops.back()};
        const int rows = table.rows();
        const int headings = std::clamp(table.format().headerRowCount(), 0, rows);
        const std::optional<double> outerRow = m_rowTop;
        for (int row = 0; row < rows; ++row) {
            m_rowTop = outerRow ? outerRow : tops[size_t(row)];
            for (int column = 0; column < table.columns(); ++column) {
                const QTextTableCell cell = table.cellAt(row, column);
                if (cell.row() != row || cell.column() != column)
                    continue;
                hold({tops[size_t(row)], tops[size_t(row) + size_t(cell.rowSpan())]}, Holding::Row);
                collect(cell.begin(), cell.end());
            }
        }
        m_rowTop = outerRow;
        const Slice first{whole.top, tops[std::min(size_t(headings) + 1, size_t(rows))]};
        if (headings > 0)
            hold(first, Holding::Together);
        // In a cell, the rows beside it would be drawn along.
        if (!outerRow)
            m_tables.push_back({{whole.top, tops[size_t(headings)]}, {tops[size_t(headings)], whole.bottom}});
        return first;
    }

    /// The tops of the rows, and the bottom of the last: halfway between what the cells of two rows hold, as the layout
    /// does not tell. Of a table it tells the height, but not where it begins.
    [[nodiscard]] std::vector<double> rowTops(const QTextTable &table, double height) const
    {
        const auto rows = size_t(table.rows());
        std::vector<Slice> held(rows, {std::numeric_limits<double>::max(), 0});
        for (int row = 0; row < table.rows(); ++row) {
            for (int column = 0; column < table.columns(); ++column) {
                const QTextTableCell cell = table.cellAt(row, column);
                if (cell.row() != row || cell.column() != column)
                    continue;
                const Slice content = contentOf(table, cell);
                double &top = held[size_t(row)].top;
                double &bottom = held[size_t(row) + size_t(cell.rowSpan()) - 1].bottom;
                top = std::min(top, content.top);
                bottom = std::max(bottom, content.bottom);
            }
        }
        const double edge = (height - (held.back().bottom - held.front().top)) / 2;
        std::vector<double> tops{held.front().top - edge};
        for (size_t row = 1; row < rows; ++row) {
            // Without a cell of its own, a row has no height of its own.
            const double next = std::min(held[row].top, held.back().bottom);
            tops.push_back(std::max(tops.back(), (held[row - 1].bottom + next) / 2));
        }
        tops.push_back(tops.front() + height);
        return tops;
    }

    [[nodiscard]] Slice contentOf(const QTextTable &table, const QTextTableCell &cell) const
    {
        const QTextTableCellFormat format = cell.format().toTableCellFormat();
        const auto padding = [&](int property, double own) {
            return (format.hasProperty(property) ? own : table.format().cellPadding()) * m_unit;
        };
        Slice held{m_layout.blockBoundingRect(cell.firstCursorPosition().block()).top(),
                   m_layout.blockBoundingRect(cell.lastCursorPosition().block()).bottom()};
        for (auto at = cell.begin(); at != cell.end(); ++at) {
            if (!at.currentFrame())
                continue;
            const QRectF inner = rectOf(*at.currentFrame());
            held = {std::min(held.top, inner.top()), std::max(held.bottom, inner.bottom())};
        }
        return {held.top - padding(QTextFormat::TableCellTopPadding, format.topPadding()),
                held.bottom + padding(QTextFormat::TableCellBottomPadding, format.bottomPadding())};
    }

    const QAbstractTextDocumentLayout &m_layout;
    const double m_unit;
    double m_end = 0;
    std::vector<Held> m_held;
    std::vector<double> m_breaks;
    std::vector<TableRows> m_tables;
    std::optional<double> m_rowTop; ///< Of the outermost row that is collected.
    bool m_breaksNext = false;
};

} // namespace

QList<PageSlices> cutIntoPages(const QTextDocument &document, double height)
{
    const Outline outline(document);
    QList<PageSlices> pages;
    double top = 0;
    do {
        const TableRows *before = outline.tableAt(top);
        const bool repeats = before && before->heading.height() <= height * kLargestHeading;
        const Slice heading = repeats ? before->heading : Slice();
        const double end = outline.pageEnd(top, top + height - heading.height());
        pages.append({heading, {top, end}, before != nullptr, outline.tableAt(end) != nullptr});
        top = outline.nextTop(end);
    } while (top < outline.end() - kSameHeight);
    return pages;
}

} // namespace ozm::paper
