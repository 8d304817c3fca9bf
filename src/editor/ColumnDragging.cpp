#include "editor/ColumnDragging.h"

#include "editor/RichTextView.h"

#include <QAbstractTextDocumentLayout>
#include <QKeyEvent>
#include <QLocale>
#include <QMouseEvent>
#include <QRubberBand>
#include <QTextBlock>
#include <QToolTip>

#include <algorithm>
#include <utility>

namespace ozm::editor {

namespace {

// Of a border to either side, in pixels of the screen.
constexpr double kReach = 4;
constexpr double kLeastColumn = 16;
constexpr int kLineWidth = 2;

QString toldLength(const QTextLength &length)
{
    const QString value = QLocale().toString(length.rawValue(), 'g', 4);
    return length.type() == QTextLength::FixedLength ? ColumnDragging::tr("%1 pixels").arg(value)
                                                     : ColumnDragging::tr("%1 %").arg(value);
}

} // namespace

ColumnDragging::ColumnDragging(RichTextView *view)
    : m_view(view)
    , m_line(new QRubberBand(QRubberBand::Line, view->viewport()))
{
    m_line->setObjectName(QStringLiteral("columnLine"));
    m_line->hide();
    view->installEventFilter(this);
    view->viewport()->installEventFilter(this);
}

bool ColumnDragging::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_view->viewport()) {
        switch (event->type()) {
        case QEvent::MouseMove:
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonRelease:
            return filterMouse(*static_cast<QMouseEvent *>(event));
        case QEvent::Leave:
            showShape(false);
            return false;
        default:
            return m_table && event->type() == QEvent::Wheel;
        }
    }
    if (!m_table) {
        m_line->hide(); // of a table that went while it was dragged
        return false;
    }
    if (event->type() == QEvent::FocusOut)
        end(false);
    const bool isKey = event->type() == QEvent::KeyPress || event->type() == QEvent::ShortcutOverride;
    if (isKey && static_cast<QKeyEvent *>(event)->key() == Qt::Key_Escape) {
        event->accept();
        if (event->type() == QEvent::KeyPress)
            end(false);
        return true;
    }
    // Nothing else is typed meanwhile.
    return event->type() == QEvent::KeyPress;
}

bool ColumnDragging::filterMouse(const QMouseEvent &event)
{
    const QPoint point = event.position().toPoint();
    if (m_table && event.type() == QEvent::MouseMove) {
        showLine(point);
        return true;
    }
    if (m_table) {
        end(event.type() == QEvent::MouseButtonRelease && event.button() == Qt::LeftButton);
        return true;
    }
    if (event.type() == QEvent::MouseButtonPress && event.button() == Qt::LeftButton)
        return begin(point);
    if (event.type() == QEvent::MouseMove && event.buttons() == Qt::NoButton)
        showShape(!m_view->isReadOnly() &&
                  columnBorderAt(*m_view->document(), toDocument(point), kReach).has_value());
    return false;
}

bool ColumnDragging::begin(const QPoint &point)
{
    const QPointF place = toDocument(point);
    const auto border =
        m_view->isReadOnly() ? std::nullopt : columnBorderAt(*m_view->document(), place, kReach);
    m_edges = border ? columnEdges(*border->table) : ColumnEdges();
    if (m_edges.isEmpty())
        return false;
    m_table = border->table;
    m_column = border->column;
    m_x = m_edges.at.at(m_column);
    m_grip = place.x() - m_x;
    const auto leastOf = [this](int column) {
        const double least = std::max(kLeastColumn, leastColumnWidth(*m_table, column));
        return m_edges.between + std::min(least, m_edges.width(column));
    };
    m_leastX = m_edges.at.at(m_column - 1) + leastOf(m_column - 1);
    m_mostX = std::max(m_leastX, m_edges.at.at(m_column + 1) - leastOf(m_column));
    m_view->setFocus();
    showLine(point);
    return true;
}

void ColumnDragging::showLine(const QPoint &point)
{
    m_x = std::clamp(toDocument(point).x() - m_grip, m_leastX, m_mostX);
    const QAbstractTextDocumentLayout &layout = *m_view->document()->documentLayout();
    const double top = layout.blockBoundingRect(m_table->firstCursorPosition().block()).top();
    const QPoint start = toView({m_x, top});
    const double spaces = m_table->format().topMargin() + m_table->format().bottomMargin();
    const int height = int(layout.frameBoundingRect(m_table).height() - spaces);
    m_line->setGeometry(QRect(start.x() - kLineWidth / 2, start.y(), kLineWidth, height)
                            .intersected(m_view->viewport()->rect()));
    m_line->show();
    QToolTip::showText(m_view->viewport()->mapToGlobal(point), toldWidths(), m_view->viewport());
}

QString ColumnDragging::toldWidths() const
{
    const QList<QTextLength> lengths = withBorderAt(columnLengths(*m_table, m_edges), m_edges, m_column, m_x);
    return toldLength(lengths.at(m_column - 1)) + QStringLiteral(" | ") + toldLength(lengths.at(m_column));
}

void ColumnDragging::end(bool keep)
{
    const QPointer<QTextTable> table = std::exchange(m_table, nullptr);
    m_line->hide();
    QToolTip::hideText();
    const bool isMoved = qRound(m_x) != qRound(m_edges.at.at(m_column));
    if (keep && isMoved)
        moveBorder(*table, m_edges, m_column, m_x);
}

void ColumnDragging::showShape(bool isAtBorder)
{
    if (std::exchange(m_isAtBorder, isAtBorder) != isAtBorder)
        m_view->viewport()->setCursor(isAtBorder ? Qt::SplitHCursor : Qt::IBeamCursor);
}

QPointF ColumnDragging::toDocument(const QPoint &point) const
{
    return point + m_view->scrolled();
}

QPoint ColumnDragging::toView(const QPointF &place) const
{
    return (place - m_view->scrolled()).toPoint();
}

} // namespace ozm::editor
