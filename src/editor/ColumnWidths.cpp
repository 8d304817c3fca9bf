#include "editor/ColumnWidths.h"

#include <QAbstractTextDocumentLayout>
#include <QPaintDevice>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextLayout>
#include <QTextList>
#include <QTextTable>

#include <algorithm>
#include <cmath>

namespace ozm::editor {

namespace {

constexpr double kWholeShare = 100;
// Of a percentage: finer than a line is wide on any paper.
constexpr double kShareSteps = 10;
constexpr double kSameShare = 0.05;
constexpr double kUnitDotsPerInch = 96;
// The layout has whole dots, and each column the rounding of the one before.
constexpr double kRounding = 1.5;

bool isShare(const QTextLength &length)
{
    return length.type() == QTextLength::PercentageLength;
}

QTextLength rounded(QTextLength::Type type, double value)
{
    if (type == QTextLength::FixedLength)
        return QTextLength(type, std::max(1.0, std::round(value)));
    return QTextLength(type, std::max(1.0, std::round(value * kShareSteps)) / kShareSteps);
}

double unitOf(const QTextDocument &document)
{
    const QPaintDevice *device = document.documentLayout()->paintDevice();
    return device ? device->logicalDpiY() / kUnitDotsPerInch : 1;
}

/// Borders and spacing between columns, which their padding does not count.
double betweenOf(const QTextTable &table)
{
    const QTextTableFormat format = table.format();
    const double between = format.borderCollapse() ? 0 : 2 * format.border() + format.cellSpacing();
    return between * unitOf(*table.document());
}

/// Borders and spacing outside the columns, on both sides together.
double outsideOf(const QTextTable &table)
{
    // Collapsed borders stand half in the columns; the toolkit keeps room for them whole, too.
    const bool collapses = table.format().borderCollapse();
    return collapses ? 2 * std::round(1.5 * table.format().border() * unitOf(*table.document()))
                     : betweenOf(table);
}

/// How much of a collapsed border stands in @p cell, before what it holds.
double collapsedBorderOf(const QTextTable &table, const QTextTableCell &cell)
{
    if (!table.format().borderCollapse())
        return 0;
    const double beside =
        cell.column() == 0
            ? table.format().border()
            : table.cellAt(cell.row(), cell.column() - 1).format().toTableCellFormat().rightBorder();
    return std::max(cell.format().toTableCellFormat().leftBorder(), beside) / 2;
}

double paddingOf(const QTextTable &table, const QTextTableCell &cell, QTextFormat::Property side)
{
    const QTextFormat own = cell.format();
    return own.hasProperty(side) ? own.doubleProperty(side) : table.format().cellPadding();
}

/// The edge before @p cell: halfway between what it holds and what the cell before does.
double edgeOf(const QTextTable &table, const QTextTableCell &cell)
{
    const double inside =
        paddingOf(table, cell, QTextFormat::TableCellLeftPadding) + collapsedBorderOf(table, cell);
    const QTextDocument &document = *table.document();
    const QTextBlock first = cell.firstCursorPosition().block();
    return document.documentLayout()->blockBoundingRect(first).left() - inside * unitOf(document) -
           betweenOf(table) / 2;
}

double marginsOf(const QTextTable &table)
{
    return (table.format().leftMargin() + table.format().rightMargin()) * unitOf(*table.document());
}

/// Of all between its margins.
double widthOf(const QTextTable &table)
{
    // The layout reads it.
    auto *frame = const_cast<QTextTable *>(&table);
    return table.document()->documentLayout()->frameBoundingRect(frame).width() - marginsOf(table);
}

/// The width from which the layout takes the shares of columns.
double wholeOf(const QTextTable &table)
{
    const QTextDocument &document = *table.document();
    const QTextBlock before = document.findBlock(table.firstPosition() - 1);
    const double unit = unitOf(document);
    // Its lines begin behind its indent. The layout leaves margins of lines as they are on any device.
    double whole = before.layout()->boundingRect().right() + before.blockFormat().rightMargin();
    const QTextLength width = table.format().width();
    // A table in a table always gets the width of its cell.
    const bool isInner = qobject_cast<const QTextTable *>(table.parentFrame());
    if (!isInner && width.type() != QTextLength::VariableLength)
        whole = width.type() == QTextLength::FixedLength ? width.rawValue() * unit : width.value(whole);
    return whole - marginsOf(table) - outsideOf(table) - table.columns() * betweenOf(table);
}

double leastWidthOf(const QTextTable &table, int column);

/// The width of the longest piece that cannot be broken between @p begin and @p end.
double leastWidthOf(const QTextDocument &document, QTextFrame::iterator begin, QTextFrame::iterator end)
{
    const double unit = unitOf(document);
    double least = 0;
    for (; begin != end; ++begin) {
        double width = 0;
        if (const auto *table = qobject_cast<const QTextTable *>(begin.currentFrame())) {
            width = outsideOf(*table) + marginsOf(*table) + table->columns() * betweenOf(*table);
            for (int column = 0; column < table->columns(); ++column)
                width += leastWidthOf(*table, column);
        } else if (const QTextBlock block = begin.currentBlock(); block.isValid()) {
            const QTextBlockFormat format = block.blockFormat();
            const int indent = format.indent() + (block.textList() ? block.textList()->format().indent() : 0);
            width = block.layout()->minimumWidth() + format.leftMargin() + format.rightMargin() +
                    indent * document.indentWidth() * unit;
        }
        least = std::max(least, width);
    }
    return least;
}

double leastWidthOf(const QTextTable &table, int column)
{
    const QTextLength length = table.format().columnWidthConstraints().value(column);
    const bool isFixed = length.type() == QTextLength::FixedLength;
    return std::max(isFixed ? length.rawValue() * unitOf(*table.document()) : 0,
                    leastColumnWidth(table, column));
}

bool hasPlainRow(const QTextTable &table, int row)
{
    for (int column = 0; column < table.columns(); ++column)
        if (table.cellAt(row, column).columnSpan() > 1)
            return false;
    return true;
}

QList<QTextLength> constraintsOf(const QTextTable &table)
{
    QList<QTextLength> lengths = table.format().columnWidthConstraints();
    lengths.resize(table.columns());
    return lengths;
}

} // namespace

std::optional<ColumnBorder> columnBorderAt(const QTextDocument &document, const QPointF &place, double reach)
{
    const int position = document.documentLayout()->hitTest(place, Qt::FuzzyHit);
    if (position < 0)
        return std::nullopt;
    QTextCursor cursor(const_cast<QTextDocument *>(&document));
    cursor.setPosition(position);
    for (QTextFrame *frame = cursor.currentFrame(); frame; frame = frame->parentFrame()) {
        auto *table = qobject_cast<QTextTable *>(frame);
        if (!table)
            continue;
        const int row = table->cellAt(position).row();
        for (int column = 1; column < table->columns(); ++column) {
            const QTextTableCell cell = table->cellAt(row, column);
            const bool begins = cell.column() == column;
            if (begins && std::abs(edgeOf(*table, cell) - place.x()) <= reach)
                return ColumnBorder{table, column};
        }
    }
    return std::nullopt;
}

double ColumnEdges::share(qsizetype column) const
{
    return kWholeShare * width(column) / whole;
}

ColumnEdges columnEdges(const QTextTable &table)
{
    for (int row = 0; row < table.rows(); ++row) {
        if (!hasPlainRow(table, row))
            continue;
        ColumnEdges edges{{}, betweenOf(table), std::max(1.0, wholeOf(table))};
        for (int column = 0; column < table.columns(); ++column)
            edges.at.append(edgeOf(table, table.cellAt(row, column)));
        edges.at.append(edges.at.constFirst() + widthOf(table) - outsideOf(table));
        return std::ranges::is_sorted(edges.at) ? edges : ColumnEdges();
    }
    return {};
}

double leastColumnWidth(const QTextTable &table, int column)
{
    double least = 0;
    for (int row = 0; row < table.rows(); ++row) {
        const QTextTableCell cell = table.cellAt(row, column);
        const double padding = paddingOf(table, cell, QTextFormat::TableCellLeftPadding) +
                               paddingOf(table, cell, QTextFormat::TableCellRightPadding) +
                               2 * collapsedBorderOf(table, cell);
        if (cell.columnSpan() == 1)
            least = std::max(least, leastWidthOf(*table.document(), cell.begin(), cell.end()) +
                                        padding * unitOf(*table.document()));
    }
    return least;
}

QList<QTextLength> columnLengths(const QTextTable &table, const ColumnEdges &edges)
{
    QList<QTextLength> lengths = constraintsOf(table);
    const double unit = unitOf(*table.document());
    for (qsizetype column = 0; column < lengths.size(); ++column) {
        QTextLength &length = lengths[column];
        const bool isFixed = length.type() == QTextLength::FixedLength;
        const double asked = isFixed ? length.rawValue() * unit : length.value(edges.whole);
        // Some are laid out otherwise than they ask for, as where all together ask for more than there is.
        if (length.type() != QTextLength::VariableLength &&
            std::abs(asked - edges.width(column)) <= kRounding)
            continue;
        length = isFixed ? rounded(QTextLength::FixedLength, edges.width(column) / unit)
                         : rounded(QTextLength::PercentageLength, edges.share(column));
    }
    return lengths;
}

QList<QTextLength> withBorderAt(QList<QTextLength> lengths, ColumnEdges edges, int column, double x)
{
    QTextLength &left = lengths[column - 1];
    QTextLength &right = lengths[column];
    const double before = edges.width(column - 1);
    const double behind = edges.width(column);
    const double sum = left.rawValue() + right.rawValue();
    const bool isSameUnit = left.type() == right.type();
    edges.at[column] = x;
    left = rounded(left.type(), isSameUnit ? sum * edges.width(column - 1) / (before + behind)
                                           : left.rawValue() * edges.width(column - 1) / before);
    right = rounded(right.type(),
                    isSameUnit ? sum - left.rawValue() : right.rawValue() * edges.width(column) / behind);
    return lengths;
}

void setColumnLengths(QTextTable &table, const QList<QTextLength> &lengths)
{
    QTextTableFormat format = table.format();
    const bool isAny = std::ranges::any_of(
        lengths, [](const QTextLength &each) { return each.type() != QTextLength::VariableLength; });
    if (isAny)
        format.setColumnWidthConstraints(lengths);
    else
        format.clearColumnWidthConstraints();
    table.setFormat(format);
}

void moveBorder(QTextTable &table, const ColumnEdges &edges, int column, double x)
{
    ColumnEdges wanted = edges;
    wanted.at[column] = x;
    QList<QTextLength> lengths = withBorderAt(columnLengths(table, edges), edges, column, x);
    const QList<QTextLength> asked = constraintsOf(table);
    const auto isOf = [](QTextLength::Type type) {
        return [type](const QTextLength &length) { return length.type() == type; };
    };
    // Shares before columns of pixels get less than they ask for. One column that takes the rest keeps the table as wide
    // as it was.
    const auto rest = std::ranges::find_if(asked.crbegin(), asked.crend(), isOf(QTextLength::VariableLength));
    if (rest != asked.crend() && table.format().width().type() != QTextLength::VariableLength &&
        std::ranges::any_of(asked, isOf(QTextLength::FixedLength)))
        lengths[asked.crend() - rest - 1] = QTextLength();
    setColumnLengths(table, lengths);
    const auto isNear = [](double a, double b) { return std::abs(a - b) <= kRounding; };
    if (std::ranges::equal(columnEdges(table).at, wanted.at, isNear))
        return;
    for (qsizetype each = 0; each < lengths.size(); ++each)
        lengths[each] = rounded(QTextLength::PercentageLength, wanted.share(each));
    QTextCursor step = table.firstCursorPosition();
    step.joinPreviousEditBlock();
    setColumnLengths(table, lengths);
    step.endEditBlock();
}

double shareOf(const QTextTable &table)
{
    double share = 0;
    for (const QTextLength &length : constraintsOf(table))
        share += isShare(length) ? length.rawValue() : 0;
    return share;
}

void keepShare(QTextTable &table, double share)
{
    QList<QTextLength> lengths = constraintsOf(table);
    const double now = shareOf(table);
    const double target = std::ranges::all_of(lengths, isShare) ? share : std::min(now, share);
    if (now <= 0 || target <= 0 || std::abs(now - target) < kSameShare)
        return;
    for (QTextLength &length : lengths)
        if (isShare(length))
            length = rounded(QTextLength::PercentageLength, length.rawValue() * target / now);
    setColumnLengths(table, lengths);
}

} // namespace ozm::editor
