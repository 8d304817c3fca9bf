#include "editor/ColumnWidths.h"

#include <QAbstractTextDocumentLayout>
#include <QPaintDevice>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
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

/// Half of all that stands between the columns of @p table without their padding.
double halfBetween(const QTextTable &table)
{
    const QTextTableFormat format = table.format();
    const double half =
        format.borderCollapse() ? format.border() / 2 : format.border() + format.cellSpacing() / 2;
    return half * unitOf(*table.document());
}

/// The edge before @p cell: halfway between what it holds and what the cell before does.
double edgeOf(const QTextTable &table, const QTextTableCell &cell)
{
    const QTextTableCellFormat own = cell.format().toTableCellFormat();
    const double padding =
        own.hasProperty(QTextFormat::TableCellLeftPadding) ? own.leftPadding() : table.format().cellPadding();
    const QTextDocument &document = *table.document();
    const QTextBlock first = cell.firstCursorPosition().block();
    return document.documentLayout()->blockBoundingRect(first).left() - padding * unitOf(document) -
           halfBetween(table);
}

double widthOf(const QTextTable &table)
{
    // The layout reads it.
    auto *frame = const_cast<QTextTable *>(&table);
    return table.document()->documentLayout()->frameBoundingRect(frame).width();
}

bool hasPlainRow(const QTextTable &table, int row)
{
    for (int column = 0; column < table.columns(); ++column)
        if (table.cellAt(row, column).columnSpan() > 1)
            return false;
    return true;
}

/// The width that the table may have at its place.
double roomOf(const QTextTable &table)
{
    const QTextDocument &document = *table.document();
    const QTextBlock before = document.findBlock(table.firstPosition() - 1);
    return std::max(document.documentLayout()->blockBoundingRect(before).width(), widthOf(table));
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

ColumnEdges columnEdges(const QTextTable &table)
{
    for (int row = 0; row < table.rows(); ++row) {
        if (!hasPlainRow(table, row))
            continue;
        ColumnEdges edges{{}, 2 * halfBetween(table)};
        for (int column = 0; column < table.columns(); ++column)
            edges.at.append(edgeOf(table, table.cellAt(row, column)));
        edges.at.append(edges.at.constFirst() + widthOf(table) - edges.between);
        return std::ranges::is_sorted(edges.at) ? edges : ColumnEdges();
    }
    return {};
}

QList<QTextLength> columnLengths(const QTextTable &table, const ColumnEdges &edges)
{
    QList<QTextLength> lengths = constraintsOf(table);
    double whole = 0;
    for (qsizetype column = 0; column < lengths.size(); ++column)
        whole += edges.width(column);
    if (table.format().width().type() == QTextLength::VariableLength)
        whole += roomOf(table) - widthOf(table);
    for (qsizetype column = 0; column < lengths.size(); ++column)
        if (lengths.at(column).type() == QTextLength::VariableLength)
            lengths[column] =
                rounded(QTextLength::PercentageLength, kWholeShare * edges.width(column) / whole);
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
