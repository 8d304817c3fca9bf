#include "editor/TableEditing.h"

#include "editor/RichTextView.h"

#include <QCoreApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QSpinBox>
#include <QTextTable>

using namespace Qt::StringLiterals;

namespace ozm::editor {

namespace {

constexpr int kMostRows = 500;
constexpr int kMostColumns = 50;
constexpr int kPadding = 4;

QSpinBox *makeCount(const char *name, int value, int most, const QString &text, QFormLayout *form)
{
    auto *count = new QSpinBox(form->parentWidget());
    count->setObjectName(QString::fromLatin1(name));
    count->setRange(1, most);
    count->setValue(value);
    form->addRow(text, count);
    return count;
}

} // namespace

bool TableEditing::isInTable() const
{
    return m_view->textCursor().currentTable() != nullptr;
}

bool TableEditing::canMerge() const
{
    const Range cells = selected();
    return cells.table && (cells.rows > 1 || cells.columns > 1);
}

bool TableEditing::canSplit() const
{
    const QTextCursor cursor = m_view->textCursor();
    const QTextTable *table = cursor.currentTable();
    const QTextTableCell cell = table ? table->cellAt(cursor) : QTextTableCell();
    return cell.isValid() && (cell.rowSpan() > 1 || cell.columnSpan() > 1);
}

TableEditing::Range TableEditing::selected() const
{
    const QTextCursor cursor = m_view->textCursor();
    Range cells{cursor.currentTable()};
    if (!cells.table)
        return cells;
    cursor.selectedTableCells(&cells.row, &cells.rows, &cells.column, &cells.columns);
    if (cells.rows < 1) {
        const QTextTableCell cell = cells.table->cellAt(cursor);
        cells.row = cell.row();
        cells.rows = cell.rowSpan();
        cells.column = cell.column();
        cells.columns = cell.columnSpan();
    }
    return cells;
}

bool TableEditing::mayRemove(const Range &cells) const
{
    for (int row = cells.row; row < cells.row + cells.rows; ++row) {
        for (int column = cells.column; column < cells.column + cells.columns; ++column) {
            const QTextTableCell cell = cells.table->cellAt(row, column);
            QTextCursor content = cell.firstCursorPosition();
            content.setPosition(cell.lastPosition(), QTextCursor::KeepAnchor);
            if (!m_view->mayRemove(content))
                return false;
        }
    }
    return true;
}

void TableEditing::askInsert()
{
    QDialog dialog(m_view->window());
    dialog.setObjectName(u"tableDialog"_s);
    dialog.setWindowTitle(tr("Insert table"));
    auto *form = new QFormLayout(&dialog);
    const auto *rows = makeCount("tableRows", 3, kMostRows, tr("&Rows:"), form);
    const auto *columns = makeCount("tableColumns", 2, kMostColumns, tr("&Columns:"), form);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, &dialog);
    form->addRow(buttons);
    QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    if (dialog.exec() == QDialog::Accepted)
        insert(rows->value(), columns->value());
}

void TableEditing::insert(int rows, int columns)
{
    QTextCursor cursor = m_view->textCursor();
    if (m_view->isReadOnly() || !m_view->mayRemove(cursor))
        return;
    QTextTableFormat format;
    format.setBorder(1);
    format.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
    format.setBorderCollapse(true);
    format.setCellPadding(kPadding);
    format.setCellSpacing(0);
    format.setWidth(QTextLength(QTextLength::PercentageLength, 100));
    cursor.beginEditBlock();
    cursor.removeSelectedText();
    QTextTable *table = cursor.insertTable(rows, columns, format);
    cursor.endEditBlock();
    m_view->setTextCursor(table->cellAt(0, 0).firstCursorPosition());
}

void TableEditing::insertRow(Side side)
{
    if (const Range cells = selected(); cells.table)
        insertBeside(side, [&](bool isBefore) {
            cells.table->insertRows(isBefore ? cells.row : cells.row + cells.rows, 1);
        });
}

void TableEditing::insertColumn(Side side)
{
    if (const Range cells = selected(); cells.table)
        insertBeside(side, [&](bool isBefore) {
            cells.table->insertColumns(isBefore ? cells.column : cells.column + cells.columns, 1);
        });
}

void TableEditing::insertBeside(Side side, const std::function<void(bool isBefore)> &insertCells)
{
    // At the end of its cell the caret would go along with the cells that are put behind it.
    QTextCursor caret = m_view->textCursor();
    const bool isSelecting = caret.hasSelection();
    caret.setKeepPositionOnInsert(side == Side::After);
    insertCells(side == Side::Before);
    caret.setKeepPositionOnInsert(false);
    if (!isSelecting)
        caret.clearSelection();
    m_view->setTextCursor(caret);
}

void TableEditing::removeRows()
{
    Range cells = selected();
    if (!cells.table)
        return;
    const Range whole{cells.table, cells.row, cells.rows, 0, cells.table->columns()};
    if (mayRemove(whole))
        cells.table->removeRows(cells.row, cells.rows);
}

void TableEditing::removeColumns()
{
    Range cells = selected();
    if (!cells.table)
        return;
    const Range whole{cells.table, 0, cells.table->rows(), cells.column, cells.columns};
    if (mayRemove(whole))
        cells.table->removeColumns(cells.column, cells.columns);
}

void TableEditing::mergeCells()
{
    if (const Range cells = selected(); cells.table)
        cells.table->mergeCells(cells.row, cells.column, cells.rows, cells.columns);
}

void TableEditing::splitCell()
{
    if (canSplit()) {
        const Range cells = selected();
        cells.table->splitCell(cells.row, cells.column, 1, 1);
    }
}

} // namespace ozm::editor
