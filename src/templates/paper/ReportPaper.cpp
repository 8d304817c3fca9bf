#include <ozm_widgets/ReportPaper.h>

#include "templates/instructions/InstructionTree.h"
#include "templates/syntax/ScriptTags.h"

#include <ozm_widgets/TemplateDocument.h>
#include <platform/Errors.h>

#include <QAbstractTextDocumentLayout>
#include <QCoreApplication>
#include <QDir>
#include <QPainter>
#include <QPdfWriter>
#include <QSaveFile>
#include <QTextBlock>
#include <QTextTable>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <optional>
#include <utility>

using namespace Qt::StringLiterals;

namespace ozm {

namespace {

constexpr double kFooterMm = 9.0;
constexpr double kHeaderMm = 9.0;
constexpr double kMmPerInch = 25.4;
constexpr int kPdfDotsPerInch = 300;
// Lengths in a document are in this unit.
constexpr double kScreenDotsPerInch = 96;
constexpr int kFooterPoints = 7;

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

/// Makes the row higher at its foot, by a distance on paper.
void stretchRow(QTextTable &table, int row, double distance, double dotsPerInch)
{
    for (int column = 0; column < table.columns(); ++column) {
        QTextTableCell cell = table.cellAt(row, column);
        QTextTableCellFormat format = cell.format().toTableCellFormat();
        const double padding = format.hasProperty(QTextFormat::TableCellBottomPadding)
                                   ? format.bottomPadding()
                                   : table.format().cellPadding();
        format.setBottomPadding(padding + distance * kScreenDotsPerInch / dotsPerInch);
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

/// Draws the line below the last row on this sheet of a table that goes on, which has none of its own.
void closeTables(QPainter &painter, const QTextFrame &frame, const QRectF &sheet, double pixel)
{
    const QAbstractTextDocumentLayout *layout = frame.document()->documentLayout();
    for (QTextFrame *child : frame.childFrames()) {
        closeTables(painter, *child, sheet, pixel);
        const auto *table = qobject_cast<QTextTable *>(child);
        const QRectF area = layout->frameBoundingRect(child);
        if (!table || area.top() > sheet.bottom() || area.bottom() <= sheet.bottom())
            continue;
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

} // namespace

class ReportPaper::Private
{
public:
    Private(const QString &decoded, const ReportPaperOptions &given)
        : text(syntax::withoutScriptTags(decoded))
        , options(given)
        , page(instructions::pageOf(text))
    {
        if (page && !page->header.isEmpty())
            options.header = page->header;
        if (page && !page->footer.isEmpty())
            options.footer = page->footer;
    }

    /// @p layout with what the template says about it.
    [[nodiscard]] QPageLayout laidOut(QPageLayout layout) const
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

    [[nodiscard]] std::unique_ptr<TemplateDocument> document() const
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

    void drawEdges(QPainter &painter, const QRectF &area, int number, int pages) const
    {
        QFont font = options.font;
        font.setPointSize(kFooterPoints);
        painter.setFont(font);
        painter.setPen(QColor(0x51, 0x60, 0x6d));
        painter.drawText(
            area, Qt::AlignRight | Qt::AlignBottom,
            QCoreApplication::translate("ozm::ReportPaper", "Page %1 of %2").arg(number).arg(pages));
        painter.drawText(area, Qt::AlignLeft | Qt::AlignBottom, options.footer);
        painter.drawText(area, Qt::AlignLeft | Qt::AlignTop, options.header);
    }

    QString text;
    ReportPaperOptions options;
    const std::optional<instructions::Page> page;
};

ReportPaper::ReportPaper(const QString &decoded, const ReportPaperOptions &options)
    : d(std::make_unique<Private>(decoded, options))
{}

ReportPaper::~ReportPaper() = default;

int ReportPaper::print(QPagedPaintDevice &device) const
{
    if (d->page)
        device.setPageLayout(d->laidOut(device.pageLayout()));
    const double dotsPerInch = device.logicalDpiX();
    const QRectF sheet(0, 0, device.width(), device.height());
    const double dotsPerMm = dotsPerInch / kMmPerInch;
    const double top = d->options.header.isEmpty() ? 0 : kHeaderMm * dotsPerMm;
    const QSizeF body(sheet.width(), sheet.height() - kFooterMm * dotsPerMm - top);
    const auto document = d->document();
    document->documentLayout()->setPaintDevice(&device);
    document->setPageSize(body);
    keepRowsTogether(*document->rootFrame(), body.height(), dotsPerInch);
    // Text behind a table is not moved along with the table's rows.
    document->markContentsDirty(0, document->characterCount());

    QPainter painter(&device);
    const int pages = document->pageCount();
    const QPageRanges wanted = device.pageRanges();
    bool isFirst = true;
    for (int page = 0; page < pages; ++page) {
        if (!wanted.isEmpty() && !wanted.contains(page + 1))
            continue;
        if (!std::exchange(isFirst, false))
            device.newPage();
        const QRectF part(0, page * body.height(), body.width(), body.height());
        painter.save();
        painter.translate(0, top - part.top());
        painter.setClipRect(part);
        document->drawContents(&painter, part);
        closeTables(painter, *document->rootFrame(), part, dotsPerInch / kScreenDotsPerInch);
        painter.restore();
        d->drawEdges(painter, sheet, page + 1, pages);
    }
    return pages;
}

Error ReportPaper::writePdf(const QString &path) const
{
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly)) {
        QPdfWriter writer(&file);
        writer.setResolution(kPdfDotsPerInch);
        writer.setPageLayout(d->options.layout);
        writer.setTitle(d->options.title);
        writer.setCreator(QCoreApplication::applicationName());
        print(writer);
    }
    if (file.commit())
        return {};
    return Error(codes::FileAccess,
                 QCoreApplication::translate("ozm::ReportPaper", "\"%1\" cannot be written.")
                     .arg(QDir::toNativeSeparators(path)))
        .ecatch(OZM_PLACE);
}

} // namespace ozm
