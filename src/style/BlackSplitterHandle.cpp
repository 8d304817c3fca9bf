#include <ozm_widgets/BlackSplitterHandle.h>

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include <utility>

namespace ozm {

namespace {

// Wide enough for a hand that is not steady.
constexpr int kGrabWidth = 7;
constexpr int kLine = 1;
constexpr int kLitLine = 3;
constexpr int kStep = 20;
constexpr int kSmallStep = 1;

int stepOf(const QKeyEvent &event, Qt::Orientation orientation)
{
    const int step = event.modifiers().testFlag(Qt::ShiftModifier) ? kSmallStep : kStep;
    const bool lying = orientation == Qt::Horizontal;
    if (event.key() == (lying ? Qt::Key_Left : Qt::Key_Up))
        return -step;
    return event.key() == (lying ? Qt::Key_Right : Qt::Key_Down) ? step : 0;
}

} // namespace

class BlackSplitterHandle::Private
{
public:
    explicit Private(BlackSplitterHandle *owner)
        : qptr(owner)
    {}

    /// The next neighbour in the direction that is there to be seen; -1 when there is none.
    [[nodiscard]] int neighbour(int direction) const
    {
        const QSplitter *splitter = qptr->splitter();
        const int own = splitter->indexOf(qptr);
        for (int i = direction < 0 ? own - 1 : own; i >= 0 && i < splitter->count(); i += direction)
            if (!splitter->widget(i)->isHidden())
                return i;
        return -1;
    }

    static void restore(QList<int> &sizes, int collapsed, int from, int size)
    {
        const int room = sizes.at(from);
        sizes[collapsed] = size > 0 && size < room ? size : room / 2;
        sizes[from] = room - sizes.at(collapsed);
    }

    [[nodiscard]] bool isMirrored() const
    {
        return qptr->orientation() == Qt::Horizontal && qptr->splitter()->isRightToLeft();
    }

    /// The place of the handle as moveSplitter() takes it: right to left, that is its right edge.
    [[nodiscard]] int position() const
    {
        if (qptr->orientation() == Qt::Vertical)
            return qptr->y();
        return isMirrored() ? qptr->x() + qptr->width() : qptr->x();
    }

    [[nodiscard]] bool mayCollapse(int index) const
    {
        // A pane that nothing was said of answers true, whatever holds for all panes.
        return qptr->splitter()->childrenCollapsible() && qptr->splitter()->isCollapsible(index);
    }

    BlackSplitterHandle *const qptr;
    int grabbedAt = 0;
    int sizeBefore = 0;
    bool hovered = false;
};

BlackSplitterHandle::BlackSplitterHandle(Qt::Orientation orientation, QSplitter *parent)
    : QSplitterHandle(orientation, parent)
    , d(std::make_unique<Private>(this))
{
    setFocusPolicy(Qt::TabFocus);
    setAccessibleName(tr("Divider"));
}

BlackSplitterHandle::~BlackSplitterHandle() = default;

QSize BlackSplitterHandle::sizeHint() const
{
    return orientation() == Qt::Horizontal ? QSize(kGrabWidth, 0) : QSize(0, kGrabWidth);
}

void BlackSplitterHandle::toggleCollapsed()
{
    const int before = d->neighbour(-1);
    const int after = d->neighbour(1);
    if (before < 0 || after < 0)
        return;
    QList<int> sizes = splitter()->sizes();
    if (sizes.at(before) == 0 || sizes.at(after) == 0) {
        const bool isBefore = sizes.at(before) == 0;
        d->restore(sizes, isBefore ? before : after, isBefore ? after : before, d->sizeBefore);
    } else {
        int victim = sizes.at(before) <= sizes.at(after) ? before : after;
        if (!d->mayCollapse(victim))
            victim = victim == before ? after : before;
        if (!d->mayCollapse(victim))
            return;
        d->sizeBefore = std::exchange(sizes[victim], 0);
        sizes[victim == before ? after : before] += d->sizeBefore;
    }
    splitter()->setSizes(sizes);
    // From where the panes begin, as the splitter itself tells it.
    const int moved = d->isMirrored() ? splitter()->contentsRect().width() - d->position() : d->position();
    Q_EMIT splitter()->splitterMoved(moved, splitter()->indexOf(this));
}

void BlackSplitterHandle::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const bool lit = d->hovered || hasFocus();
    QColor color = palette().color(lit ? QPalette::Highlight : QPalette::WindowText);
    // Black would be too much beside text, and vanish on dark.
    color.setAlphaF(lit ? 1.0F : 0.35F);
    const int width = lit ? kLitLine : kLine;
    QRect line = rect();
    if (orientation() == Qt::Horizontal)
        line = QRect((line.width() - width) / 2, 0, width, line.height());
    else
        line = QRect(0, (line.height() - width) / 2, line.width(), width);
    painter.fillRect(line, color);
}

void BlackSplitterHandle::mousePressEvent(QMouseEvent *event)
{
    d->grabbedAt = event->position().toPoint().x();
    QSplitterHandle::mousePressEvent(event);
}

void BlackSplitterHandle::mouseMoveEvent(QMouseEvent *event)
{
    // Right to left the toolkit jumps by the width of the handle when it is grabbed.
    if (d->isMirrored() && splitter()->opaqueResize() && event->buttons().testFlag(Qt::LeftButton))
        moveSplitter(d->position() + event->position().toPoint().x() - d->grabbedAt);
    else
        QSplitterHandle::mouseMoveEvent(event);
}

void BlackSplitterHandle::mouseDoubleClickEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        toggleCollapsed();
}

void BlackSplitterHandle::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        toggleCollapsed();
    else if (const int step = stepOf(*event, orientation()); step != 0)
        moveSplitter(d->position() + step);
    else
        QSplitterHandle::keyPressEvent(event);
}

void BlackSplitterHandle::enterEvent(QEnterEvent *event)
{
    d->hovered = true;
    update();
    QSplitterHandle::enterEvent(event);
}

void BlackSplitterHandle::leaveEvent(QEvent *event)
{
    d->hovered = false;
    update();
    QSplitterHandle::leaveEvent(event);
}

void BlackSplitterHandle::focusInEvent(QFocusEvent *event)
{
    update();
    QSplitterHandle::focusInEvent(event);
}

void BlackSplitterHandle::focusOutEvent(QFocusEvent *event)
{
    update();
    QSplitterHandle::focusOutEvent(event);
}

BlackSplitter::BlackSplitter(QWidget *parent)
    : QSplitter(parent)
{}

BlackSplitter::BlackSplitter(Qt::Orientation orientation, QWidget *parent)
    : QSplitter(orientation, parent)
{
    setHandleWidth(kGrabWidth);
}

QSplitterHandle *BlackSplitter::createHandle()
{
    return new BlackSplitterHandle(orientation(), this);
}

} // namespace ozm
