#include <ozm_widgets/OZMDockWidgetTitleBar.h>

#include <ozm_widgets/OZMStyle.h>

#include <QBoxLayout>
#include <QDockWidget>
#include <QHelpEvent>
#include <QPainter>
#include <QPointer>
#include <QStyle>
#include <QToolButton>
#include <QToolTip>

using namespace Qt::StringLiterals;

namespace {

constexpr int kMargin = 4;
constexpr int kTextMargin = 4;
constexpr int kIconSize = 16;
constexpr float kShade = 0.08F;
// This much of the title is always shown, in characters of average width.
constexpr int kLeastCharacters = 4;
const QString kModifiedMark = u"[*]"_s;

/// The title of @p dock as windows show it: the mark is a star while it is modified, and nothing else; twice,
/// it stands for itself.
QString titleOf(const QDockWidget &dock)
{
    const QString title = dock.windowTitle();
    QString shown;
    for (qsizetype at = 0; at < title.size();) {
        const bool isMark = QStringView(title).sliced(at).startsWith(kModifiedMark);
        const bool isDouble = isMark && QStringView(title).sliced(at + 3).startsWith(kModifiedMark);
        if (isDouble)
            shown += kModifiedMark;
        else if (!isMark)
            shown += title.at(at);
        else if (dock.isWindowModified())
            shown += u'*';
        at += isDouble ? 6 : isMark ? 3 : 1;
    }
    return shown;
}

} // namespace

class OZMDockWidgetTitleBar::Private
{
public:
    Private(OZMDockWidgetTitleBar *owner, QDockWidget *ownDock)
        : qptr(owner)
        , guard(ownDock)
        , layout(new QBoxLayout(QBoxLayout::LeftToRight, owner))
        , floating(addButton(u"floatButton"_s))
        , closing(addButton(u"closeButton"_s))
    {
        layout->setContentsMargins(kMargin, 2, kMargin, 2);
        layout->setSpacing(2);
        layout->insertStretch(0, 1);
        closing->setIcon(OZMStyle::icon(u"window-close"_s));
    }

    QToolButton *addButton(const QString &name) const
    {
        auto *button = new QToolButton(qptr);
        button->setObjectName(name);
        button->setAutoRaise(true);
        button->setFocusPolicy(Qt::TabFocus);
        button->setIconSize({kIconSize, kIconSize});
        layout->addWidget(button);
        return button;
    }

    /// Null also for a dock that is being destroyed, and is only a widget by then.
    [[nodiscard]] QDockWidget *dock() const { return qobject_cast<QDockWidget *>(guard.data()); }

    [[nodiscard]] QString title() const { return dock() ? titleOf(*dock()) : QString(); }

    [[nodiscard]] bool isVertical() const
    {
        return dock() && dock()->features().testFlag(QDockWidget::DockWidgetVerticalTitleBar);
    }

    void follow() const
    {
        if (!dock())
            return;
        const QDockWidget::DockWidgetFeatures features = dock()->features();
        layout->setDirection(isVertical() ? QBoxLayout::BottomToTop : QBoxLayout::LeftToRight);
        layout->setContentsMargins(isVertical() ? QMargins(2, kMargin, 2, kMargin)
                                                : QMargins(kMargin, 2, kMargin, 2));
        floating->setVisible(features.testFlag(QDockWidget::DockWidgetFloatable));
        closing->setVisible(features.testFlag(QDockWidget::DockWidgetClosable));
        floating->setIcon(OZMStyle::icon(dock()->isFloating() ? u"window-dock"_s : u"window-float"_s));
        nameButtons();
        qptr->updateGeometry();
        qptr->update();
    }

    void nameButtons() const
    {
        if (!dock())
            return;
        const QString title = this->title();
        qptr->setAccessibleName(title);
        closing->setToolTip(OZMDockWidgetTitleBar::tr("Close"));
        closing->setAccessibleName(OZMDockWidgetTitleBar::tr("Close %1").arg(title));
        const bool isFloating = dock()->isFloating();
        floating->setToolTip(isFloating ? OZMDockWidgetTitleBar::tr("Dock")
                                        : OZMDockWidgetTitleBar::tr("Float"));
        floating->setAccessibleName(
            (isFloating ? OZMDockWidgetTitleBar::tr("Dock %1") : OZMDockWidgetTitleBar::tr("Float %1"))
                .arg(title));
    }

    /// The room that the buttons leave, in the direction of reading.
    [[nodiscard]] int textLength() const
    {
        int length = isVertical() ? qptr->height() : qptr->width();
        for (const QToolButton *button : {floating, closing})
            length -= button->isHidden() ? 0 : button->sizeHint().width() + layout->spacing();
        return length - 2 * kMargin - kTextMargin;
    }

    [[nodiscard]] QString shownTitle() const
    {
        return qptr->fontMetrics().elidedText(title(), Qt::ElideRight, textLength());
    }

    [[nodiscard]] QSize sizeFor(int textWidth) const
    {
        const int buttons =
            closing->sizeHint().width() + floating->sizeHint().width() + 2 * layout->spacing();
        const int thickness = qMax(closing->sizeHint().height(), qptr->fontMetrics().height()) + 6;
        const QSize lying(textWidth + kTextMargin + buttons + 2 * kMargin, thickness);
        return isVertical() ? lying.transposed() : lying;
    }

    OZMDockWidgetTitleBar *const qptr;
    /// A bar that was given another parent may outlive its dock.
    const QPointer<QObject> guard;
    QBoxLayout *const layout;
    QToolButton *const floating;
    QToolButton *const closing;
};

OZMDockWidgetTitleBar::OZMDockWidgetTitleBar(QDockWidget *dock)
    : QWidget(dock)
    , d(std::make_unique<Private>(this, dock))
{
    setObjectName(u"dockTitleBar"_s);
    const auto follow = [this] { d->follow(); };
    connect(dock, &QDockWidget::featuresChanged, this, follow);
    connect(dock, &QDockWidget::topLevelChanged, this, follow);
    connect(dock, &QWidget::windowTitleChanged, this, follow);
    connect(d->closing, &QToolButton::clicked, dock, &QDockWidget::close);
    connect(d->floating, &QToolButton::clicked, dock, [dock] { dock->setFloating(!dock->isFloating()); });
    // That the dock is modified or not, no signal tells.
    dock->installEventFilter(this);
    follow();
}

OZMDockWidgetTitleBar::~OZMDockWidgetTitleBar() = default;

QSize OZMDockWidgetTitleBar::sizeHint() const
{
    return d->sizeFor(fontMetrics().horizontalAdvance(d->title()) + 1);
}

QSize OZMDockWidgetTitleBar::minimumSizeHint() const
{
    return d->sizeFor(kLeastCharacters * fontMetrics().averageCharWidth());
}

void OZMDockWidgetTitleBar::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    QRect bar = rect();
    // A little of the text's colour stands out on every palette, and never much.
    QColor shade = palette().color(QPalette::WindowText);
    shade.setAlphaF(kShade);
    painter.fillRect(bar, shade);
    const QString text = d->shownTitle();
    QRect place(kMargin + kTextMargin, 0, d->textLength(), height());
    if (d->isVertical()) {
        // Read from below, as the labels of an axis are.
        painter.translate(0, height());
        painter.rotate(-90);
        place = QRect(kMargin + kTextMargin, 0, d->textLength(), width());
        painter.setPen(palette().color(foregroundRole()));
        painter.drawText(place, Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine, text);
        return;
    }
    style()->drawItemText(&painter, QStyle::visualRect(layoutDirection(), bar, place),
                          int(QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft | Qt::AlignVCenter)),
                          palette(), isEnabled(), text, foregroundRole());
}

void OZMDockWidgetTitleBar::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        d->nameButtons();
    QWidget::changeEvent(event);
}

bool OZMDockWidgetTitleBar::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::ModifiedChange && watched == d->dock())
        d->follow();
    return QWidget::eventFilter(watched, event);
}

bool OZMDockWidgetTitleBar::event(QEvent *event)
{
    // Where the title is cut off, it is told in full.
    if (event->type() == QEvent::ToolTip) {
        const QString title = d->title();
        QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(),
                           d->shownTitle() == title ? QString() : title, this);
        return true;
    }
    return QWidget::event(event);
}

OZMDockWidget::OZMDockWidget(QWidget *parent)
    : QDockWidget(parent)
{
    setTitleBarWidget(new OZMDockWidgetTitleBar(this));
}
