#pragma once

#include <QCoreApplication>

#include <functional>

class QTextTable;

namespace ozm::editor {

class RichTextView;

/// Inserts a table and changes the one that the cursor stands in. Cells that hold codes which may not be
/// removed stay.
class TableEditing
{
    Q_DECLARE_TR_FUNCTIONS(ozm::editor::TableEditing)

public:
    enum class Side
    {
        Before,
        After
    };

    explicit TableEditing(RichTextView *view)
        : m_view(view)
    {}

    [[nodiscard]] bool isInTable() const;
    [[nodiscard]] bool canMerge() const;
    [[nodiscard]] bool canSplit() const;
    /// True when the row of the cursor is one of those that each page of the table begins with.
    [[nodiscard]] bool isInHeading() const;

    void askInsert();
    void insert(int rows, int columns, bool hasHeading);
    /// Makes the rows down to that of the cursor the heading of the table, or has it end before that row.
    void setHeading(bool on);
    /// Goes to the cell beside that of the cursor; after the last cell, to a new row. False outside of tables.
    bool goToCell(Side side);
    void insertRow(Side side);
    void insertColumn(Side side);
    void removeRows();
    void removeColumns();
    /// Asks for the width of the columns of the cursor.
    void askColumnWidth();
    void mergeCells();
    void splitCell();

private:
    struct Range
    {
        QTextTable *table = nullptr;
        int row = 0;
        int rows = 0;
        int column = 0;
        int columns = 0;
    };
    [[nodiscard]] Range selected() const;
    [[nodiscard]] bool mayRemove(const Range &cells) const;
    void showAsHeading(QTextTable &table, int row, bool on) const;
    void insertBeside(Side side, const std::function<void(bool isBefore)> &insertCells);
    /// Columns that come or go leave the table as wide as it is.
    void changeColumns(QTextTable &table, const std::function<void()> &change);

    RichTextView *m_view;
};

} // namespace ozm::editor
