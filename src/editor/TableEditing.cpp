#include "editor/TableEditing.h"

#include "editor/ColumnWidthDialog.h"
#include "editor/ColumnWidths.h"
#include "editor/RichTextView.h"
#include "templates/document/TableSpaces.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QSpinBox>
#include <QTextList>
#include <QTextTable>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace ozm::editor {

namespace {

constexpr int kMostRows = 500;
constexpr int kMostColumns = 50;
constexpr int kPadding = 4;
constexpr double kAllColumns = 100; // in percent

QSpinBox *makeCount(const char *name, int value, int most, const QString &text, QFormLayout *form)
{
    auto *count = new QSpinBox(form->parentWidget());
    count->setObjectName(QString::fromLatin1(name));
    count->setRange(1, most);
    count->setValue(value);
    form->addRow(text, count);
    return count;
}

void addButtons(QDialog &dialog, QFormLayout &form)
{
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, &dialog);
    form.addRow(buttons);
    QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
}

/// True for an empty line that has a line of text right before it.
bool isEmptyBelowText(const QTextCursor &cursor)
{
    const QTextBlock before = cursor.block().previous();
    if (cursor.block().length() > 1 || cursor.currentList() || !before.isValid())
        return false;
    const QTextCursor end(before);
    const QTextTable *table = cursor.currentTable();
    return end.currentFrame() == cursor.currentFrame() &&
           (!table || table->cellAt(end) == table->cellAt(cursor));
}

/// A table in an empty line takes its place: the toolkit would leave the line above the table.
QTextTable *insertTableAt(QTextCursor &cursor, int rows, int columns, const QTextTableFormat &format)
{
    if (!isEmptyBelowText(cursor))
        return cursor.insertTable(rows, columns, format);
    const QTextBlockFormat block = cursor.blockFormat();
    const QTextCharFormat text = cursor.blockCharFormat();
    cursor.deletePreviousChar();
    QTextTable *table = cursor.insertTable(rows, columns, format);
    cursor.setPosition(table->lastPosition() + 1);
    cursor.setBlockFormat(block);
    cursor.setBlockCharFormat(text);
    return table;
}

} // namespace

bool TableEditing::isInTable() const
{
    return m_view->textCursor().currentTable() != nullptr;
}

bool TableEditing::isInHeading() const
{
    const Range cells = selected();
    return cells.table && cells.row < cells.table->format().headerRowCount();
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
    auto *heading = new QCheckBox(tr("The first row is the &heading, on each page"), &dialog);
    heading->setObjectName(u"tableHeading"_s);
    form->addRow(heading);
    addButtons(dialog, *form);
    if (dialog.exec() == QDialog::Accepted)
        insert(rows->value(), columns->value(), heading->isChecked());
}

void TableEditing::insert(int rows, int columns, bool hasHeading)
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
    format.setHeaderRowCount(hasHeading ? 1 : 0);
    QTextTable *table = insertTableAt(cursor, rows, columns, format);
    if (hasHeading)
        showAsHeading(*table, 0, true);
    spaceTables(*m_view->document());
    cursor.endEditBlock();
    m_view->setTextCursor(table->cellAt(0, 0).firstCursorPosition());
}

void TableEditing::setHeading(bool on)
{
    const Range cells = selected();
    if (!cells.table)
        return;
    QTextTableFormat format = cells.table->format();
    const int before = format.headerRowCount();
    const int after = on ? cells.row + cells.rows : cells.row;
    QTextCursor step = m_view->textCursor();
    step.beginEditBlock();
    format.setHeaderRowCount(after);
    cells.table->setFormat(format);
    for (int row = qMin(before, after); row < qMax(before, after); ++row)
        showAsHeading(*cells.table, row, on);
    step.endEditBlock();
}

/// As a table shows its heading where nothing else is said.
void TableEditing::showAsHeading(QTextTable &table, int row, bool on) const
{
    QTextCharFormat text;
    text.setFontWeight(on ? QFont::Bold : QFont::Normal);
    QTextBlockFormat lines;
    lines.setAlignment(on ? Qt::AlignHCenter : Qt::AlignLeft);
    for (int column = 0; column < table.columns(); ++column) {
        const QTextTableCell cell = table.cellAt(row, column);
        QTextCursor content = cell.firstCursorPosition();
        content.setPosition(cell.lastPosition(), QTextCursor::KeepAnchor);
        content.mergeCharFormat(text);
        content.mergeBlockCharFormat(text);
        content.mergeBlockFormat(lines);
    }
}

bool TableEditing::goToCell(Side side)
{
    QTextTable *table = m_view->textCursor().currentTable();
    if (!table)
        return false;
    const QTextTableCell here = table->cellAt(m_view->textCursor());
    const int step = side == Side::After ? 1 : -1;
    int place = here.row() * table->columns() + here.column();
    QTextTableCell cell;
    do {
        place += step;
        if (place < 0)
            return true;
        if (place >= table->rows() * table->columns())
            table->appendRows(1);
        cell = table->cellAt(place / table->columns(), place % table->columns());
        // Cells that go over several places count once.
    } while (cell.row() * table->columns() + cell.column() != place);
    m_view->setTextCursor(cell.lastCursorPosition());
    return true;
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
    const Range cells = selected();
    if (!cells.table)
        return;
    changeColumns(*cells.table, [&] {
        insertBeside(side, [&](bool isBefore) {
            cells.table->insertColumns(isBefore ? cells.column : cells.column + cells.columns, 1);
        });
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
    if (!mayRemove(whole))
        return;
    if (cells.columns == cells.table->columns())
        cells.table->removeColumns(cells.column, cells.columns);
    else
        changeColumns(*cells.table, [&] { cells.table->removeColumns(cells.column, cells.columns); });
}

void TableEditing::changeColumns(QTextTable &table, const std::function<void()> &change)
{
    QTextCursor step = m_view->textCursor();
    step.beginEditBlock();
    const double share = shareOf(table);
    change();
    keepShare(table, share);
    step.endEditBlock();
}

void TableEditing::askColumnWidth()
{
    const Range cells = selected();
    if (!cells.table)
        return;
    QList<QTextLength> lengths = cells.table->format().columnWidthConstraints();
    lengths.resize(cells.table->columns());
    const QTextLength now = lengths.at(cells.column);
    const ColumnEdges edges = columnEdges(*cells.table);
    const double share = edges.isEmpty() ? kAllColumns / cells.table->columns() : edges.share(cells.column);
    ColumnWidthDialog dialog(now, share, m_view->window());
    dialog.setWindowTitle(cells.columns > 1 ? tr("Width of %n column(s)", nullptr, cells.columns)
                                            : tr("Width of column %1").arg(cells.column + 1));
    if (dialog.exec() != QDialog::Accepted)
        return;
    std::fill_n(lengths.begin() + cells.column, cells.columns, dialog.length());
    setColumnLengths(*cells.table, lengths);
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
