#include "templates/paper/PaperLayout.h"

#include "templates/document/LetterSizes.h"
#include "templates/document/TableSpaces.h"
#include "templates/instructions/InstructionTree.h"
#include "templates/syntax/ScriptTags.h"

#include <ozm_widgets/TemplateDocument.h>

#include <QCoreApplication>
#include <QFontMetricsF>
#include <QPainter>
#include <QTextBlock>
#include <QTextLayout>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace ozm::paper {

namespace {

constexpr double kEdgeMm = 9.0;
constexpr double kMmPerInch = 25.4;
constexpr double kPointsPerInch = 72;
constexpr double kEdgePoints = 7;
constexpr double kTouch = 1;
constexpr int kMostPasses = 4;
// The lines of most tables; half of one stands on either side of where it is.
constexpr double kBorder = kDotsPerInch / editor::kPixelsPerInch;
constexpr QColor kEdgeColor(0x51, 0x60, 0x6d);

struct PaperSize
{
    QLatin1StringView name;
    QPageSize::PageSizeId id;
};

constexpr std::array kPaperSizes{PaperSize{"A3"_L1, QPageSize::A3}, PaperSize{"A4"_L1, QPageSize::A4},
                                 PaperSize{"A5"_L1, QPageSize::A5}, PaperSize{"Letter"_L1, QPageSize::Letter},
                                 PaperSize{"Legal"_L1, QPageSize::Legal}};

QImage layoutDevice()
{
    QImage device(1, 1, QImage::Format_RGB32);
    const int dotsPerMeter = qRound(kDotsPerInch * 1000 / kMmPerInch);
    device.setDotsPerMeterX(dotsPerMeter);
    device.setDotsPerMeterY(dotsPerMeter);
    return device;
}

void takeOver(const instructions::Page &page, ReportPaperOptions &options)
{
    const auto take = [](const QString &said, QString &option) {
        if (!said.isEmpty())
            option = said;
    };
    take(page.header, options.header);
    take(page.footer, options.footer);
    take(page.name, options.document);
    take(page.version, options.version);
}

} // namespace

PaperLayout::PaperLayout(const QString &decoded, const ReportPaperOptions &options)
    : m_options(options)
    , m_device(layoutDevice())
    , m_document(std::make_unique<TemplateDocument>())
{
    const QString text = syntax::withoutScriptTags(decoded);
    m_page = instructions::pageOf(text);
    if (m_page)
        takeOver(*m_page, m_options);
    m_document->setUndoRedoEnabled(false);
    m_document->setDocumentMargin(0);
    m_document->setDefaultFont(options.font);
    m_document->setDefaultStyleSheet(paragraphStyleSheet() + options.styleSheet);
    m_document->documentLayout()->setPaintDevice(const_cast<QImage *>(&m_device));
    if (TemplateDocument::isHtml(text))
        m_document->setHtml(text);
    else
        m_document->setPlainText(text);
    if (asksForContents(text) && TemplateDocument::isHtml(text))
        m_contents.emplace(text, *m_document);
    editor::sizeLettersInPoints(*m_document);
    editor::spaceTables(*m_document);
}

PaperLayout::~PaperLayout() = default;

QPageLayout PaperLayout::pageLayout(QPageLayout usual) const
{
    if (!m_page)
        return usual;
    for (const PaperSize &size : kPaperSizes)
        if (m_page->size == size.name)
            usual.setPageSize(QPageSize(size.id), usual.minimumMargins());
    usual.setOrientation(m_page->isLandscape ? QPageLayout::Landscape : QPageLayout::Portrait);
    usual.setUnits(QPageLayout::Millimeter);
    const QList<int> &margins = m_page->margins;
    if (margins.size() == 4)
        usual.setMargins(QMarginsF(margins.at(3), margins.at(0), margins.at(1), margins.at(2)));
    return usual;
}

double PaperLayout::top() const
{
    return m_options.header.isEmpty() ? 0 : kEdgeMm * kDotsPerInch / kMmPerInch;
}

void PaperLayout::layOut(const QSizeF &sheet)
{
    if (sheet == m_sheet)
        return;
    m_sheet = sheet;
    m_document->setTextWidth(sheet.width());
    cut();
    // Numbers could have moved what they tell the pages of.
    const auto pageOf = [this](const Heading &heading) { return pageAt(topOf(heading)) + 1; };
    for (int pass = 0; m_contents && pass < kMostPasses && m_contents->setNumbers(pageOf); ++pass)
        cut();
}

void PaperLayout::cut()
{
    m_pages = cutIntoPages(*m_document, m_sheet.height() - kEdgeMm * kDotsPerInch / kMmPerInch - top());
}

double PaperLayout::topOf(const Heading &heading) const
{
    return m_document->documentLayout()->blockBoundingRect(heading.block).top();
}

void PaperLayout::layOutOnOwnSheets()
{
    layOut(pageLayout(m_options.layout).paintRectPixels(kDotsPerInch).size());
}

void PaperLayout::moveTo(QThread &thread)
{
    // The letters that lines remember are those of the present thread, and go with it.
    for (QTextBlock block = m_document->begin(); block.isValid(); block = block.next())
        block.layout()->setFont(block.layout()->font());
    m_document->moveToThread(&thread);
}

void PaperLayout::drawSlice(QPainter &painter, const Slice &slice, const Slice &withBorders, double at,
                            const Selections &selections) const
{
    QAbstractTextDocumentLayout::PaintContext context;
    // Paper is white, whatever the desktop is.
    context.palette.setColor(QPalette::Text, Qt::black);
    context.selections = selections;
    // Lines that only touch it would be drawn as well, and be found in a PDF though nobody sees them.
    context.clip = QRectF(0, slice.top + kTouch, m_sheet.width(), slice.height() - 2 * kTouch);
    painter.save();
    painter.translate(0, at - slice.top);
    painter.setClipRect(QRectF(0, withBorders.top, m_sheet.width(), withBorders.height()), Qt::IntersectClip);
    m_document->documentLayout()->draw(&painter, context);
    painter.restore();
}

QString PaperLayout::foot() const
{
    QStringList parts{m_options.document};
    if (!m_options.version.isEmpty())
        parts.append(QCoreApplication::translate("ozm::ReportPaper", "Version %1").arg(m_options.version));
    parts.append(m_options.footer);
    parts.removeAll(QString());
    return parts.join(u" · "_s);
}

void PaperLayout::drawEdges(QPainter &painter, int page) const
{
    QFont font = m_options.font;
    font.setPixelSize(qRound(kEdgePoints * kDotsPerInch / kPointsPerInch));
    painter.setFont(font);
    painter.setPen(kEdgeColor);
    const QRectF sheet(QPointF(), m_sheet);
    const QString numbers =
        QCoreApplication::translate("ozm::ReportPaper", "Page %1 of %2").arg(page + 1).arg(pageCount());
    painter.drawText(sheet, Qt::AlignRight | Qt::AlignBottom, numbers);
    const QFontMetricsF metrics(font);
    const double room = sheet.width() - metrics.horizontalAdvance(numbers + u"  "_s);
    painter.drawText(sheet, Qt::AlignLeft | Qt::AlignBottom,
                     metrics.elidedText(foot(), Qt::ElideRight, room));
    painter.drawText(sheet, Qt::AlignLeft | Qt::AlignTop,
                     metrics.elidedText(m_options.header, Qt::ElideRight, sheet.width()));
}

void PaperLayout::draw(QPainter &painter, int page, const Selections &selections) const
{
    const PageSlices &slices = m_pages.at(page);
    const Slice &heading = slices.heading;
    const Slice &body = slices.body;
    if (heading.height() > 0)
        drawSlice(painter, heading, {heading.top - kBorder, heading.bottom}, top(), {});
    drawSlice(
        painter, body,
        {body.top - (slices.beginsInTable ? kBorder : 0), body.bottom + (slices.endsInTable ? kBorder : 0)},
        top() + heading.height(), selections);
    drawEdges(painter, page);
}

QList<Bookmark> PaperLayout::headings(const QPageLayout &sheets) const
{
    constexpr double points = kPointsPerInch / kDotsPerInch;
    const double sheetHeight = sheets.fullRect(QPageLayout::Point).height();
    const double margin = sheets.paintRectPixels(kDotsPerInch).top();
    QList<Bookmark> headings;
    for (const Heading &heading : headingsOf(*m_document)) {
        const double y = topOf(heading);
        const int sheet = pageAt(y);
        headings.append(
            {heading.text, heading.level, sheet, (margin + toPage(sheet, {0, y}).y()) * points, sheetHeight});
    }
    return headings;
}

QList<PdfLink> PaperLayout::links(const QPageLayout &sheets, const QList<Bookmark> &headings) const
{
    constexpr double points = kPointsPerInch / kDotsPerInch;
    const QPointF margin = sheets.paintRectPixels(kDotsPerInch).topLeft();
    QList<PdfLink> links;
    for (const ContentsList::Entry &entry :
         m_contents ? m_contents->entries() : QList<ContentsList::Entry>()) {
        const int sheet = pageAt(entry.area.top());
        const QPointF corner = (margin + toPage(sheet, entry.area.topLeft())) * points;
        links.append({sheet, {corner, entry.area.size() * points}, headings.at(entry.heading)});
    }
    return links;
}

int PaperLayout::pageAt(double y) const
{
    const auto after =
        std::ranges::upper_bound(m_pages, y, {}, [](const PageSlices &page) { return page.body.top; });
    return std::max(0, int(after - m_pages.begin()) - 1);
}

QPointF PaperLayout::toDocument(int page, const QPointF &point) const
{
    const PageSlices &slices = m_pages.at(page);
    const double y = point.y() - top() - slices.heading.height() + slices.body.top;
    // At its very end the next page begins.
    const double last = std::max(slices.body.top, slices.body.bottom - kTouch);
    return {point.x(), std::clamp(y, slices.body.top, last)};
}

QPointF PaperLayout::toPage(int page, const QPointF &place) const
{
    const PageSlices &slices = m_pages.at(page);
    return {place.x(), place.y() - slices.body.top + slices.heading.height() + top()};
}

} // namespace ozm::paper
