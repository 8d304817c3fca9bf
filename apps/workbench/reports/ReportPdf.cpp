#include "reports/Report.h"

#include <QAbstractTextDocumentLayout>
#include <QCoreApplication>
#include <QDir>
#include <QPainter>
#include <QPdfWriter>
#include <QSaveFile>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextTable>

#include <algorithm>
#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;
using ozm::Error;
using ozm::ErrorCode;

namespace workbench {

namespace {

const QMarginsF kMarginsMm(20, 16, 18, 14);
constexpr double kFooterMm = 9.0;
constexpr int kDotsPerInch = 300;
// Lengths in a document are in this unit.
constexpr double kScreenDotsPerInch = 96;
constexpr int kFooterPoints = 7;

QString tr(const char *text)
{
    return QCoreApplication::translate("workbench", text);
}

void preparePaper(QPdfWriter &writer)
{
    writer.setResolution(kDotsPerInch);
    writer.setPageSize(QPageSize(QPageSize::A4));
    writer.setPageMargins(kMarginsMm, QPageLayout::Millimeter);
    writer.setTitle(tr("Report"));
    writer.setCreator(QCoreApplication::applicationName());
}

void drawFooter(QPainter &painter, const QRectF &area, int page, int pages)
{
    painter.setFont(QFont(u"DejaVu Sans"_s, kFooterPoints));
    painter.setPen(QColor(0x51, 0x60, 0x6d));
    painter.drawText(area, Qt::AlignRight | Qt::AlignBottom, tr("Page %1 of %2").arg(page).arg(pages));
    painter.drawText(area, Qt::AlignLeft | Qt::AlignBottom, tr("Made by the workbench"));
}

struct Extent
{
    double top = std::numeric_limits<double>::max();
    double bottom = 0;
};

Extent extentOf(QTextTable &table, int row)
{
    const QAbstractTextDocumentLayout *layout = table.document()->documentLayout();
    Extent extent;
    for (int column = 0; column < table.columns(); ++column) {
        const QTextTableCell cell = table.cellAt(row, column);
        const QTextBlock first = cell.firstCursorPosition().block();
        const QTextBlock last = cell.lastCursorPosition().block();
        extent.top = std::min(extent.top, layout->blockBoundingRect(first).top());
        extent.bottom = std::max(extent.bottom, layout->blockBoundingRect(last).bottom());
    }
    return extent;
}

/// Makes the row higher at its foot, by a distance on paper.
void stretchRow(QTextTable &table, int row, double distance)
{
    for (int column = 0; column < table.columns(); ++column) {
        QTextTableCell cell = table.cellAt(row, column);
        QTextTableCellFormat format = cell.format().toTableCellFormat();
        const double padding = format.hasProperty(QTextFormat::TableCellBottomPadding)
                                   ? format.bottomPadding()
                                   : table.format().cellPadding();
        format.setBottomPadding(padding + distance * kScreenDotsPerInch / kDotsPerInch);
        cell.setFormat(format);
    }
}

/// Has each row that would be cut by the end of a sheet begin on the next one. Rows are laid out line by
/// line otherwise, and nothing can be set on a table to prevent it.
void keepRowsTogether(QTextTable &table, double sheetHeight)
{
    for (int row = std::max(1, table.format().headerRowCount() + 1); row < table.rows(); ++row) {
        const Extent extent = extentOf(table, row);
        const double sheetEnd = (std::floor(extent.top / sheetHeight) + 1) * sheetHeight;
        if (extent.bottom > sheetEnd && extent.bottom - extent.top < sheetHeight)
            stretchRow(table, row - 1, sheetEnd - extent.top);
    }
}

void keepRowsTogether(const QTextFrame &frame, double sheetHeight)
{
    for (QTextFrame *child : frame.childFrames()) {
        if (auto *table = qobject_cast<QTextTable *>(child))
            keepRowsTogether(*table, sheetHeight);
        keepRowsTogether(*child, sheetHeight);
    }
}

/// Draws the line below the last row on this sheet of a table that goes on, which has none of its own.
void closeTables(QPainter &painter, const QTextFrame &frame, const QRectF &sheet)
{
    const QAbstractTextDocumentLayout *layout = frame.document()->documentLayout();
    for (QTextFrame *child : frame.childFrames()) {
        closeTables(painter, *child, sheet);
        const auto *table = qobject_cast<QTextTable *>(child);
        const QRectF area = layout->frameBoundingRect(child);
        if (!table || area.top() > sheet.bottom() || area.bottom() <= sheet.bottom())
            continue;
        const double pixel = kDotsPerInch / kScreenDotsPerInch;
        const double padding = table->format().cellPadding() * pixel;
        const auto cell = [&](int column) {
            return layout->blockBoundingRect(table->cellAt(0, column).firstCursorPosition().block());
        };
        const double y = sheet.bottom() - padding;
        painter.setPen(QPen(table->format().borderBrush(), pixel));
        painter.drawLine(QPointF(cell(0).left() - padding, y),
                         QPointF(cell(table->columns() - 1).right() + padding, y));
    }
}

void drawPages(QTextDocument &document, QPdfWriter &writer)
{
    const double footer = kFooterMm * kDotsPerInch / 25.4;
    const QRectF sheet(0, 0, writer.width(), writer.height());
    const QSizeF body(sheet.width(), sheet.height() - footer);
    document.documentLayout()->setPaintDevice(&writer);
    document.setPageSize(body);
    keepRowsTogether(*document.rootFrame(), body.height());
    // Text behind a table is not moved along with the table's rows.
    document.markContentsDirty(0, document.characterCount());

    QPainter painter(&writer);
    const int pages = document.pageCount();
    for (int page = 0; page < pages; ++page) {
        if (page > 0)
            writer.newPage();
        const QRectF part(0, page * body.height(), body.width(), body.height());
        painter.save();
        painter.translate(0, -part.top());
        painter.setClipRect(part);
        document.drawContents(&painter, part);
        closeTables(painter, *document.rootFrame(), part);
        painter.restore();
        drawFooter(painter, sheet, page + 1, pages);
    }
}

} // namespace

Error saveReportPdf(const ReportPages &report, const QString &path)
{
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly)) {
        QTextDocument document;
        document.setDocumentMargin(0);
        document.setDefaultFont(QFont(u"DejaVu Sans"_s, 9));
        document.setHtml(reportHtml(report));
        QPdfWriter writer(&file);
        preparePaper(writer);
        drawPages(document, writer);
    }
    if (file.commit())
        return {};
    return Error(ErrorCode::FileAccess, tr("\"%1\" cannot be written.").arg(QDir::toNativeSeparators(path)))
        .ecatch(OZM_HERE);
}

} // namespace workbench
