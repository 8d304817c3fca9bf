#include <ozm_widgets/ReportView.h>

#include "templates/paper/LayoutDesk.h"
#include "templates/paper/PaperLayout.h"

#include <ozm_widgets/TemplateDocument.h>

#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QMenu>
#include <QPainter>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextDocumentFragment>

#include <algorithm>
#include <array>
#include <cmath>

using namespace Qt::StringLiterals;

namespace ozm {

namespace {

constexpr int kDesk = 12; // between the pages and around them
constexpr double kPointsToInch = 1.0 / 72;
constexpr double kSameZoom = 0.005;
constexpr int kScrollStep = 40;
// A place that is scrolled to stands this far below the top of the view.
constexpr double kPlaceInView = 0.3;

constexpr std::array kZooms{0.25, 0.33, 0.5, 0.67, 0.75, 0.9, 1.0, 1.1, 1.25, 1.5, 1.75, 2.0, 2.5, 3.0, 4.0};

} // namespace

class ReportView::Private
{
public:
    explicit Private(ReportView *view)
        : q(*view)
    {}

    /// Pixels of the screen for a dot of the layout.
    [[nodiscard]] double scale() const { return zoom * q.logicalDpiX() / paper::kDotsPerInch; }

    [[nodiscard]] QSizeF sheetSize(double atZoom) const
    {
        return page.fullRectPoints().size() * (kPointsToInch * q.logicalDpiX() * atZoom);
    }

    [[nodiscard]] double pageStep() const { return sheetSize(zoom).height() + kDesk; }

    /// The sheet of @p number, from 0, in the viewport.
    [[nodiscard]] QRectF sheetRect(int number) const
    {
        const QSizeF size = sheetSize(zoom);
        const double left = std::max(double(kDesk), (q.viewport()->width() - size.width()) / 2);
        return {QPointF(left - q.horizontalScrollBar()->value(),
                        kDesk + number * pageStep() - q.verticalScrollBar()->value()),
                size};
    }

    /// The corner between the margins of a sheet.
    [[nodiscard]] QPointF origin(int number) const
    {
        return sheetRect(number).topLeft() +
               QPointF(page.paintRectPixels(paper::kDotsPerInch).topLeft()) * scale();
    }

    [[nodiscard]] int sheetAt(double y) const
    {
        const int number = int((y + q.verticalScrollBar()->value() - kDesk / 2.0) / pageStep());
        return std::clamp(number, 0, std::max(0, pages() - 1));
    }

    [[nodiscard]] int pages() const { return layout ? layout->pageCount() : 0; }

    void updateBars()
    {
        const QSizeF size = sheetSize(zoom);
        const QSize room = q.viewport()->size();
        const auto setBar = [](QScrollBar *bar, double length, int seen) {
            bar->setRange(0, std::max(0, int(std::ceil(length)) - seen));
            bar->setPageStep(seen);
            bar->setSingleStep(kScrollStep);
        };
        setBar(q.verticalScrollBar(), kDesk + pages() * pageStep(), room.height());
        setBar(q.horizontalScrollBar(), size.width() + 2 * kDesk, room.width());
        q.viewport()->update();
        tellPage();
    }

    void tellPage()
    {
        if (shownPage == q.currentPage() && shownPages == pages())
            return;
        shownPage = q.currentPage();
        shownPages = pages();
        Q_EMIT q.pageChanged(shownPage, shownPages);
    }

    void fit()
    {
        // The bar has its room always, as the width would change with it otherwise.
        const double room = q.viewport()->width() - 2 * kDesk;
        const double whole = sheetSize(1).width();
        if (isFitted && whole > 0)
            changeZoom(std::clamp(room / whole, kSmallestZoom, kLargestZoom), {0, 0});
    }

    /// Keeps @p anchor of the viewport where it is.
    void changeZoom(double newZoom, const QPointF &anchor)
    {
        const double before = zoom;
        const int sheet = sheetAt(anchor.y());
        const QPointF place = (anchor - sheetRect(sheet).topLeft()) / zoom;
        zoom = newZoom;
        updateBars();
        const QPointF moved = sheetRect(sheet).topLeft() + place * zoom - anchor;
        q.horizontalScrollBar()->setValue(q.horizontalScrollBar()->value() + qRound(moved.x()));
        q.verticalScrollBar()->setValue(q.verticalScrollBar()->value() + qRound(moved.y()));
        if (before != zoom)
            Q_EMIT q.zoomChanged(zoom);
    }

    void stepZoom(int direction, const QPointF &anchor)
    {
        isFitted = false;
        const auto larger = std::ranges::upper_bound(kZooms, zoom + kSameZoom);
        const auto same = std::ranges::lower_bound(kZooms, zoom - kSameZoom);
        if (direction > 0 && larger != kZooms.end())
            changeZoom(*larger, anchor);
        else if (direction < 0 && same != kZooms.begin())
            changeZoom(*std::prev(same), anchor);
    }

    [[nodiscard]] QPointF middle() const { return QRectF(q.viewport()->rect()).center(); }

    /// The position in the text at @p point of the viewport; -1 where there is none.
    [[nodiscard]] int positionAt(const QPointF &point) const
    {
        if (pages() == 0)
            return -1;
        const int sheet = sheetAt(point.y());
        const QPointF place = layout->toDocument(sheet, (point - origin(sheet)) / scale());
        return layout->document().documentLayout()->hitTest(place, Qt::FuzzyHit);
    }

    void select(int from, int to)
    {
        if (from < 0 || to < 0)
            return;
        selection = QTextCursor(&layout->document());
        selection.setPosition(from);
        selection.setPosition(to, QTextCursor::KeepAnchor);
        q.viewport()->update();
    }

    [[nodiscard]] paper::PaperLayout::Selections selections() const
    {
        if (!selection.hasSelection())
            return {};
        QTextCharFormat format;
        format.setBackground(q.palette().brush(QPalette::Highlight));
        format.setForeground(q.palette().brush(QPalette::HighlightedText));
        return {{selection, format}};
    }

    void show(std::unique_ptr<paper::PaperLayout> newLayout)
    {
        selection = {};
        layout = std::move(newLayout);
        page = layout->pageLayout(layout->options().layout);
        fit();
        updateBars();
    }

    ReportView &q;
    std::unique_ptr<paper::PaperLayout> layout;
    QPageLayout page = ReportPaperOptions().layout;
    QTextCursor selection;
    double zoom = 1;
    bool isFitted = true;
    int shownPage = 0;
    int shownPages = 0;
    int asked = 0; ///< Number of the last report.
};

ReportView::ReportView(QWidget *parent)
    : QAbstractScrollArea(parent)
    , d(std::make_unique<Private>(this))
{
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    setFocusPolicy(Qt::StrongFocus);
    viewport()->setBackgroundRole(QPalette::Mid);
    viewport()->setAutoFillBackground(true);
    viewport()->setCursor(Qt::IBeamCursor);
}

ReportView::~ReportView() = default;

double ReportView::zoom() const
{
    return d->zoom;
}

bool ReportView::fitsWidth() const
{
    return d->isFitted;
}

int ReportView::pageCount() const
{
    return d->pages();
}

int ReportView::currentPage() const
{
    return d->pages() == 0 ? 0 : d->sheetAt(d->middle().y()) + 1;
}

QString ReportView::toPlainText() const
{
    return d->layout ? d->layout->document().toPlainText() : QString();
}

const QTextDocument *ReportView::document() const
{
    return d->layout ? &d->layout->document() : nullptr;
}

QString ReportView::selectedText() const
{
    return d->selection.selection().toPlainText();
}

void ReportView::setReport(const QString &decoded, const ReportPaperOptions &options)
{
    ++d->asked;
    auto layout = std::make_unique<paper::PaperLayout>(decoded, options);
    layout->layOutOnOwnSheets();
    d->show(std::move(layout));
}

void ReportView::setReportSoon(const QString &decoded, const ReportPaperOptions &options)
{
    const int number = ++d->asked;
    paper::LayoutDesk::instance().ask(*this, decoded, options,
                                      [this, number](std::unique_ptr<paper::PaperLayout> layout) {
                                          if (number != d->asked)
                                              return;
                                          d->show(std::move(layout));
                                          Q_EMIT reportShown();
                                      });
}

void ReportView::setZoom(double zoom)
{
    d->isFitted = false;
    d->changeZoom(std::clamp(zoom, kSmallestZoom, kLargestZoom), d->middle());
}

void ReportView::setFitsWidth(bool fits)
{
    if (d->isFitted == fits)
        return;
    d->isFitted = fits;
    const double before = d->zoom;
    d->fit();
    if (before == d->zoom)
        Q_EMIT zoomChanged(d->zoom);
}

void ReportView::zoomIn()
{
    d->stepZoom(1, d->middle());
}

void ReportView::zoomOut()
{
    d->stepZoom(-1, d->middle());
}

void ReportView::showPosition(int position)
{
    if (!d->layout || position < 0 || position >= d->layout->document().characterCount())
        return;
    const QTextBlock block = d->layout->document().findBlock(position);
    const QTextLayout *lines = block.layout();
    const QTextLine line = lines->lineForTextPosition(position - block.position());
    const QRectF rect = d->layout->document().documentLayout()->blockBoundingRect(block);
    const double y = rect.top() + (line.isValid() ? line.y() - lines->boundingRect().top() : 0);
    const double height = (line.isValid() ? line.height() : 0) * d->scale();
    const int sheet = d->layout->pageAt(y);
    const double seen = d->origin(sheet).y() + d->layout->toPage(sheet, {0, y}).y() * d->scale();
    if (seen < 0 || seen + height > viewport()->height())
        verticalScrollBar()->setValue(verticalScrollBar()->value() +
                                      qRound(seen - viewport()->height() * kPlaceInView));
}

void ReportView::copy() const
{
    if (d->selection.hasSelection())
        QGuiApplication::clipboard()->setText(selectedText());
}

void ReportView::selectAll()
{
    if (d->layout)
        d->select(0, d->layout->document().characterCount() - 1);
}

bool ReportView::event(QEvent *event)
{
    // Before the window takes them for its own actions.
    constexpr std::array keys{QKeySequence::Copy, QKeySequence::SelectAll, QKeySequence::ZoomIn,
                              QKeySequence::ZoomOut};
    if (event->type() == QEvent::ShortcutOverride &&
        std::ranges::any_of(keys, [key = static_cast<QKeyEvent *>(event)](QKeySequence::StandardKey each) {
            return key->matches(each);
        })) {
        event->accept();
        return true;
    }
    return QAbstractScrollArea::event(event);
}

void ReportView::paintEvent(QPaintEvent *event)
{
    QPainter painter(viewport());
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing |
                           QPainter::SmoothPixmapTransform);
    const paper::PaperLayout::Selections selections = d->selections();
    for (int sheet = d->sheetAt(event->rect().top()); sheet < d->pages(); ++sheet) {
        const QRectF rect = d->sheetRect(sheet);
        if (rect.top() > event->rect().bottom())
            break;
        painter.fillRect(rect, Qt::white);
        painter.setPen(palette().color(QPalette::Dark));
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(rect);
        painter.save();
        painter.setClipRect(rect);
        painter.translate(d->origin(sheet));
        painter.scale(d->scale(), d->scale());
        d->layout->draw(painter, sheet, selections);
        painter.restore();
    }
}

void ReportView::resizeEvent(QResizeEvent *event)
{
    QAbstractScrollArea::resizeEvent(event);
    d->fit();
    d->updateBars();
}

void ReportView::scrollContentsBy(int /*dx*/, int /*dy*/)
{
    viewport()->update();
    d->tellPage();
}

void ReportView::wheelEvent(QWheelEvent *event)
{
    if (!(event->modifiers() & Qt::ControlModifier)) {
        QAbstractScrollArea::wheelEvent(event);
        return;
    }
    if (event->angleDelta().y() != 0)
        d->stepZoom(event->angleDelta().y() > 0 ? 1 : -1, event->position());
    event->accept();
}

void ReportView::keyPressEvent(QKeyEvent *event)
{
    QScrollBar *bar = verticalScrollBar();
    if (event->matches(QKeySequence::Copy))
        copy();
    else if (event->matches(QKeySequence::SelectAll))
        selectAll();
    else if (event->matches(QKeySequence::ZoomIn))
        zoomIn();
    else if (event->matches(QKeySequence::ZoomOut))
        zoomOut();
    else if (event->matches(QKeySequence::MoveToStartOfDocument) || event->key() == Qt::Key_Home)
        bar->setValue(bar->minimum());
    else if (event->matches(QKeySequence::MoveToEndOfDocument) || event->key() == Qt::Key_End)
        bar->setValue(bar->maximum());
    else
        QAbstractScrollArea::keyPressEvent(event);
}

void ReportView::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return;
    const int position = d->positionAt(event->position());
    const bool extends = event->modifiers() & Qt::ShiftModifier && !d->selection.isNull();
    d->select(extends ? d->selection.anchor() : position, position);
}

void ReportView::mouseMoveEvent(QMouseEvent *event)
{
    if (!(event->buttons() & Qt::LeftButton) || d->selection.isNull())
        return;
    const int outside = event->position().y() < 0                      ? -kScrollStep
                        : event->position().y() > viewport()->height() ? kScrollStep
                                                                       : 0;
    verticalScrollBar()->setValue(verticalScrollBar()->value() + outside);
    d->select(d->selection.anchor(), d->positionAt(event->position()));
}

void ReportView::mouseDoubleClickEvent(QMouseEvent *event)
{
    d->select(d->positionAt(event->position()), d->positionAt(event->position()));
    if (!d->selection.isNull())
        d->selection.select(QTextCursor::WordUnderCursor);
    viewport()->update();
}

void ReportView::contextMenuEvent(QContextMenuEvent *event)
{
    QMenu menu(this);
    menu.setObjectName(u"reportMenu"_s);
    QAction *copies = menu.addAction(tr("&Copy"), this, &ReportView::copy);
    copies->setShortcut(QKeySequence::Copy);
    copies->setEnabled(d->selection.hasSelection());
    QAction *all = menu.addAction(tr("Select &all"), this, &ReportView::selectAll);
    all->setShortcut(QKeySequence::SelectAll);
    menu.addSeparator();
    menu.addAction(tr("Zoom &in"), this, &ReportView::zoomIn)->setShortcut(QKeySequence::ZoomIn);
    menu.addAction(tr("Zoom &out"), this, &ReportView::zoomOut)->setShortcut(QKeySequence::ZoomOut);
    QAction *fits = menu.addAction(tr("&Fit the width"), this, [this] { setFitsWidth(!fitsWidth()); });
    fits->setCheckable(true);
    fits->setChecked(fitsWidth());
    menu.exec(event->globalPos());
}

} // namespace ozm
