#pragma once

#include <QList>
#include <QPointF>
#include <QTextLength>

#include <optional>

class QTextDocument;
class QTextTable;

/// Widths of the columns of a table: measured where the document is laid out, kept as the constraints of the table.
namespace ozm::editor {

/// The border between the columns @p column - 1 and @p column.
struct ColumnBorder
{
    QTextTable *table = nullptr;
    int column = 0;
};

/// The border within @p reach of @p place of the document; that of the innermost table.
[[nodiscard]] std::optional<ColumnBorder> columnBorderAt(const QTextDocument &document, const QPointF &place,
                                                         double reach);

/// The columns of a table as they are laid out.
struct ColumnEdges
{
    QList<double> at;   ///< From left to right, in the document: one more than there are columns.
    double between = 0; ///< Borders and spacing of each column, which its width does not count.
    double whole = 0;   ///< The width that shares are taken from.

    [[nodiscard]] bool isEmpty() const { return at.isEmpty(); }
    [[nodiscard]] double width(qsizetype column) const { return at.at(column + 1) - at.at(column) - between; }
    /// In percent.
    [[nodiscard]] double share(qsizetype column) const;
};

/// Empty for a table in which each row has cells that span columns.
[[nodiscard]] ColumnEdges columnEdges(const QTextTable &table);

/// The width below which the texts in @p column keep it from going.
[[nodiscard]] double leastColumnWidth(const QTextTable &table, int column);

/// The widths that all columns are laid out with, each in its unit; as a share of the table or of its place where it has
/// none.
[[nodiscard]] QList<QTextLength> columnLengths(const QTextTable &table, const ColumnEdges &edges);

/// @p lengths with the border before @p column moved to @p x. Both columns beside it together keep their width.
[[nodiscard]] QList<QTextLength> withBorderAt(QList<QTextLength> lengths, ColumnEdges edges, int column,
                                              double x);

/// Moves the border before @p column to @p x, in one step of the history; @p edges are those of now. Widths keep their
/// units, unless the layout gives other widths for them.
void moveBorder(QTextTable &table, const ColumnEdges &edges, int column, double x);

/// In one step of the history.
void setColumnLengths(QTextTable &table, const QList<QTextLength> &lengths);

/// The sum of all shares.
[[nodiscard]] double shareOf(const QTextTable &table);
/// Gives all shares together that of @p share again, or less than a whole, once columns have come or gone.
void keepShare(QTextTable &table, double share);

} // namespace ozm::editor
