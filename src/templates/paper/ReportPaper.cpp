#include <ozm_widgets/ReportPaper.h>

#include "templates/instructions/InstructionTree.h"
#include "templates/paper/ReportPaperPrivate.h"
#include "templates/syntax/ScriptTags.h"

#include <ozm_widgets/ReportBook.h>

#include <QAbstractTextDocumentLayout>
#include <QCoreApplication>
#include <QFontMetricsF>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QPainterPath>
#include <QTextBlock>
#include <QTextTable>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <utility>

using namespace Qt::StringLiterals;

namespace ozm {

namespace {

constexpr double kFooterMm = 9.0;
constexpr double kHeaderMm = 9.0;
constexpr double kMmPerInch = 25.4;
constexpr double kPointsPerInch = 72;
// Lengths in a document are in this unit.
constexpr double kScreenDotsPerInch = 96;
constexpr int kFooterPoints = 7;
// Of a table in a report, in the unit of documents.
constexpr double kWidestBorder = 4;
// Of a cell: the part of its padding that makes its row higher.
constexpr int kAddedPadding = QTextFormat::UserProperty + 20;

struct PaperSize
{
    QLatin1StringView name;
    QPageSize::PageSizeId id;
};

constexpr std::array kPaperSizes{PaperSize{"A3"_L1, QPageSize::A3}, PaperSize{"A4"_L1, QPageSize::A4},
                                 PaperSize{"A5"_L1, QPageSize::A5}, PaperSize{"Letter"_L1, QPageSize::Letter},
                                 PaperSize{"Legal"_L1, QPageSize::Legal}};

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

/// The distance below the text of @p row, in the unit of documents, without that which stretchRow() added.
double paddingBelow(const QTextTable &table, int row)
{
    double padding = 0;
    for (int column = 0; column < table.columns(); ++column) {
        const QTextTableCellFormat format = table.cellAt(row, column).format().toTableCellFormat();
        const bool isOwn = format.hasProperty(QTextFormat::TableCellBottomPadding);
        padding = std::max(padding, isOwn ? format.bottomPadding() - format.doubleProperty(kAddedPadding)
                                          : table.format().cellPadding());
    }
    return padding;
}

/// Makes the row higher at its foot, by a distance on paper.
void stretchRow(QTextTable &table, int row, double distance, double dotsPerInch)
{
    const double added = distance * kScreenDotsPerInch / dotsPerInch;
    for (int column = 0; column < table.columns(); ++column) {
        QTextTableCell cell = table.cellAt(row, column);
        QTextTableCellFormat format = cell.format().toTableCellFormat();
        const double padding = format.hasProperty(QTextFormat::TableCellBottomPadding)
                                   ? format.bottomPadding()
                                   : table.format().cellPadding();
        format.setBottomPadding(padding + added);
        format.setProperty(kAddedPadding, added);
        cell.setFormat(format);
    }
}

/// Has each row that would be cut by the end of a sheet begin on the next one. Rows are laid out line by
/// line otherwise, and nothing can be set on a table to prevent it.
void keepRowsTogether(QTextTable &table, double sheetHeight, double dotsPerInch)
{
    for (int row = std::max(1, table.format().headerRowCount() + 1); row < table.rows(); ++row) {
        const Extent extent = extentOf(table, row);
        const double sheetEnd = (std::floor(extent.top / sheetHeight) + 1) * sheetHeight;
        if (extent.bottom > sheetEnd && extent.bottom - extent.top < sheetHeight)
            stretchRow(table, row - 1, sheetEnd - extent.top, dotsPerInch);
    }
}

void keepRowsTogether(const QTextFrame &frame, double sheetHeight, double dotsPerInch)
{
    for (QTextFrame *child : frame.childFrames()) {
        if (auto *table = qobject_cast<QTextTable *>(child))
            keepRowsTogether(*table, sheetHeight, dotsPerInch);
        keepRowsTogether(*child, sheetHeight, dotsPerInch);
    }
}

/// The end on one sheet of a table that goes on.
struct TableFoot
{
    QLineF line; ///< Across the table.
    QPen pen;    ///< Without a style for a table without borders.
};

TableFoot footOf(QTextTable &table, const QRectF &sheet, double pixel)
{
    // The first row on a later sheet; the one before may go on there.
    int next = 0;
    for (int end = table.rows(); next < end;) {
        const int middle = (next + end) / 2;
        if (extentOf(table, middle).top >= sheet.bottom())
            end = middle;
        else
            next = middle + 1;
    }
    const double padding = table.format().cellPadding() * pixel;
    double y = sheet.bottom() - padding;
    if (next > 0 && extentOf(table, next - 1).bottom <= sheet.bottom())
        y = std::min(sheet.bottom(),
                     extentOf(table, next - 1).bottom + paddingBelow(table, next - 1) * pixel);
    const QAbstractTextDocumentLayout *layout = table.document()->documentLayout();
    const auto cell = [&](int column) {
        return layout->blockBoundingRect(table.cellAt(0, column).firstCursorPosition().block());
    };
    const QLineF line(cell(0).left() - padding, y, cell(table.columns() - 1).right() + padding, y);
    return {line, table.format().border() > 0 ? QPen(table.format().borderBrush(), pixel) : QPen(Qt::NoPen)};
}

/// The ends of all tables that go on behind this sheet. Rows are not to be seen below them: the last one would be higher
/// than the others.
QList<TableFoot> feetOn(const QTextFrame &frame, const QRectF &sheet, double pixel)
{
    QList<TableFoot> feet;
    for (QTextFrame *child : frame.childFrames()) {
        feet += feetOn(*child, sheet, pixel);
        auto *table = qobject_cast<QTextTable *>(child);
        const QRectF area = frame.document()->documentLayout()->frameBoundingRect(child);
        if (table && area.top() <= sheet.bottom() && area.bottom() > sheet.bottom())
            feet.append(footOf(*table, sheet, pixel));
    }
    return feet;
}

QPainterPath withoutPartsBelow(const QList<TableFoot> &feet, const QRectF &sheet, double pixel)
{
    QPainterPath shown;
    shown.addRect(sheet);
    for (const TableFoot &foot : feet) {
        QPainterPath below;
        const double border = kWidestBorder * pixel;
        below.addRect(foot.line.x1() - border, foot.line.y1(), foot.line.dx() + 2 * border,
                      sheet.bottom() - foot.line.y1());
        shown = shown.subtracted(below);
    }
    return shown;
}

/// The headings of @p document on sheets with a body as large as @p body, which begins at @p origin.
QList<paper::Bookmark> headingsOf(const QTextDocument &document, const QSizeF &body, const QPointF &origin,
                                  const QPagedPaintDevice &device)
{
    const double points = kPointsPerInch / device.logicalDpiY();
    const double sheetHeight = device.pageLayout().fullRect(QPageLayout::Point).height();
    QList<paper::Bookmark> headings;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        const QString text = block.text().remove(QChar::ObjectReplacementCharacter).simplified();
        if (block.blockFormat().headingLevel() <= 0 || text.isEmpty())
            continue;
        const double y = document.documentLayout()->blockBoundingRect(block).top();
        const int sheet = int(y / body.height());
        headings.append({text, block.blockFormat().headingLevel(), sheet,
                         (y - sheet * body.height() + origin.y()) * points, sheetHeight});
    }
    return headings;
}

} // namespace

ReportPaper::Private::Private(const QString &decoded, const ReportPaperOptions &given)
    : text(syntax::withoutScriptTags(decoded))
    , options(given)
    , page(instructions::pageOf(text))
{
    const auto take = [](const QString &said, QString &option) {
        if (!said.isEmpty())
            option = said;
    };
    if (!page)
        return;
    take(page->header, options.header);
    take(page->footer, options.footer);
    take(page->name, options.document);
    take(page->version, options.version);
}

/// @p layout with what the template says about it.
QPageLayout ReportPaper::Private::laidOut(QPageLayout layout) const
{
    for (const PaperSize &size : kPaperSizes)
        if (page->size == size.name)
            layout.setPageSize(QPageSize(size.id), layout.minimumMargins());
    layout.setOrientation(page->isLandscape ? QPageLayout::Landscape : QPageLayout::Portrait);
    layout.setUnits(QPageLayout::Millimeter);
    const QList<int> &margins = page->margins;
    if (margins.size() == 4)
        layout.setMargins(QMarginsF(margins.at(3), margins.at(0), margins.at(1), margins.at(2)));
    return layout;
}

std::unique_ptr<TemplateDocument> ReportPaper::Private::document() const
{
    auto document = std::make_unique<TemplateDocument>();
    document->setDocumentMargin(0);
    document->setDefaultFont(options.font);
    if (TemplateDocument::isHtml(text))
        document->setHtml(text);
    else
        document->setPlainText(text);
    return document;
}

QString ReportPaper::Private::foot() const
{
    QStringList parts{options.document};
    if (!options.version.isEmpty())
        parts.append(QCoreApplication::translate("ozm::ReportPaper", "Version %1").arg(options.version));
    parts.append(options.footer);
    parts.removeAll(QString());
    return parts.join(u" · "_s);
}

void ReportPaper::Private::drawEdges(QPainter &painter, const QRectF &area, int number, int sheets) const
{
    QFont font = options.font;
    font.setPointSize(kFooterPoints);
    painter.setFont(font);
    painter.setPen(QColor(0x51, 0x60, 0x6d));
    const QString numbers =
        QCoreApplication::translate("ozm::ReportPaper", "Page %1 of %2").arg(number).arg(sheets);
    painter.drawText(area, Qt::AlignRight | Qt::AlignBottom, numbers);
    const QFontMetricsF metrics(font, painter.device());
    const double room = area.width() - metrics.horizontalAdvance(numbers + u"  "_s);
    painter.drawText(area, Qt::AlignLeft | Qt::AlignBottom, metrics.elidedText(foot(), Qt::ElideRight, room));
    painter.drawText(area, Qt::AlignLeft | Qt::AlignTop,
                     metrics.elidedText(options.header, Qt::ElideRight, area.width()));
}

void ReportPaper::Private::setUp(QPagedPaintDevice &device) const
{
    if (page)
        device.setPageLayout(laidOut(device.pageLayout()));
}

ReportPaper::Private::Drawn ReportPaper::Private::draw(QPainter &painter, QPagedPaintDevice &device) const
{
    const double dotsPerInch = device.logicalDpiX();
    const QRectF sheet(0, 0, device.width(), device.height());
    const double dotsPerMm = dotsPerInch / kMmPerInch;
    const double pixel = dotsPerInch / kScreenDotsPerInch;
    const double top = options.header.isEmpty() ? 0 : kHeaderMm * dotsPerMm;
    const QSizeF body(sheet.width(), sheet.height() - kFooterMm * dotsPerMm - top);
    const auto document = this->document();
    document->documentLayout()->setPaintDevice(&device);
    document->setPageSize(body);
    keepRowsTogether(*document->rootFrame(), body.height(), dotsPerInch);
    // Text behind a table is not moved along with the table's rows.
    document->markContentsDirty(0, document->characterCount());

    const int sheets = document->pageCount();
    const QPageRanges wanted = device.pageRanges();
    bool isFirst = true;
    for (int number = 0; number < sheets; ++number) {
        if (!wanted.isEmpty() && !wanted.contains(number + 1))
            continue;
        if (!std::exchange(isFirst, false))
            device.newPage();
        const QRectF part(0, number * body.height(), body.width(), body.height());
        const QList<TableFoot> feet = feetOn(*document->rootFrame(), part, pixel);
        painter.save();
        painter.translate(0, top - part.top());
        painter.setClipPath(withoutPartsBelow(feet, part, pixel));
        // By itself, as drawContents() has a clip of its own.
        QAbstractTextDocumentLayout::PaintContext context;
        context.clip = part;
        document->documentLayout()->draw(&painter, context);
        painter.setClipRect(part);
        for (const TableFoot &foot : feet) {
            painter.setPen(foot.pen);
            painter.drawLine(foot.line);
        }
        painter.restore();
        drawEdges(painter, sheet, number + 1, sheets);
    }
    const QRect paintRect = device.pageLayout().paintRectPixels(device.logicalDpiY());
    return {sheets, headingsOf(*document, body, QPointF(0, paintRect.top() + top), device)};
}

ReportPaper::ReportPaper(const QString &decoded, const ReportPaperOptions &options)
    : d(std::make_unique<Private>(decoded, options))
{}

ReportPaper::~ReportPaper() = default;

int ReportPaper::print(QPagedPaintDevice &device) const
{
    d->setUp(device);
    QPainter painter(&device);
    return d->draw(painter, device).sheets;
}

Error ReportPaper::writePdf(const QString &path) const
{
    ReportBook book(path, {d->options.title.isEmpty() ? d->options.document : d->options.title});
    book.add(*this);
    return book.finish();
}

} // namespace ozm
