#include <ozm_widgets/OzmMessageBox.h>

#include <ozm_widgets/OZMStyle.h>
#include <ozm_widgets/OzmCoreApplication.h>

#include "style/StyleIconEngine.h"

#include <QAbstractButton>
#include <QLabel>
#include <QLayout>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QShowEvent>
#include <QStyle>
#include <QTextEdit>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace ozm {

namespace {

struct IconRow
{
    QMessageBox::Icon kind;
    QLatin1StringView icon;
    QRgb onLight;
    QRgb onDark;
};

constexpr std::array kIcons{
    IconRow{QMessageBox::Information, "dialog-information"_L1, 0xff2a6fb8, 0xff6cb2f5},
    IconRow{QMessageBox::Warning, "dialog-warning"_L1, 0xffb26a00, 0xfff0b429},
    IconRow{QMessageBox::Critical, "dialog-error"_L1, 0xffc62f2b, 0xffff7670},
    IconRow{QMessageBox::Question, "dialog-question"_L1, 0xff2a6fb8, 0xff6cb2f5},
};

// Room for the frame of the window, and for some of what is behind it.
constexpr int kScreenPercent = 90;
constexpr int kLeastLines = 3;
const QString kTextArea = u"textArea"_s;

/// Also before the box is shown, when nothing in it is visible yet.
bool areDetailsOpen(const QMessageBox &box)
{
    const QWidget *details = box.findChild<QTextEdit *>();
    while (details && details->parentWidget() != &box)
        details = details->parentWidget();
    return details && !details->isHidden();
}

/// In English, or in the words of the toolkit's language.
bool namesDetails(const QString &text)
{
    return text.contains("details"_L1, Qt::CaseInsensitive) || text == QMessageBox::tr("Show Details...");
}

} // namespace

OzmMessageBox::OzmMessageBox(QWidget *parent)
    : OzmMessageBox(OzmMessageBoxSignal::Unspecified, parent)
{}

OzmMessageBox::OzmMessageBox(OzmMessageBoxSignal signal, QWidget *parent)
    : QMessageBox(parent)
    , m_signal(signal)
{}

void OzmMessageBox::showDetailsIfPresent()
{
    // The button shows and hides by turns, and must not hide what is open.
    if (detailedText().isEmpty() || areDetailsOpen(*this))
        return;
    const QList<QAbstractButton *> all = buttons();
    const auto found = std::ranges::find_if(all, [this](QAbstractButton *button) {
        return buttonRole(button) == ActionRole && namesDetails(button->text());
    });
    if (found != all.cend())
        (*found)->click();
}

void OzmMessageBox::showEvent(QShowEvent *event)
{
    drawIcon();
    QMessageBox::showEvent(event);
    if (event->spontaneous())
        return;
    keepOnScreen();
    // Not at once: a box that is answered before its event loop runs would wait in it for good.
    QMetaObject::invokeMethod(
        this, [this, show = ++m_shows] { announce(show); }, Qt::QueuedConnection);
}

void OzmMessageBox::changeEvent(QEvent *event)
{
    QMessageBox::changeEvent(event);
    if (event->type() == QEvent::StyleChange || event->type() == QEvent::PaletteChange)
        drawIcon();
}

void OzmMessageBox::drawIcon()
{
    // Only in place of what the box shows of itself, so that icon() stays what it is.
    auto *label = findChild<QLabel *>(u"qt_msgboxex_icon_label"_s);
    const auto *row = std::ranges::find(kIcons, icon(), &IconRow::kind);
    if (!label || row == kIcons.cend() || !isStyleApplied())
        return;
    const auto engine = loadStyleIcon(row->icon);
    if (!engine)
        return;
    const bool dark = OZMStyle::scheme(palette()) == OZMStyle::Scheme::Dark;
    const int size = style()->pixelMetric(QStyle::PM_MessageBoxIconSize, nullptr, this);
    QPixmap pixmap = engine->render(QSize(size, size) * devicePixelRatioF(),
                                    QColor::fromRgb(dark ? row->onDark : row->onLight));
    pixmap.setDevicePixelRatio(devicePixelRatioF());
    label->setPixmap(pixmap);
}

void OzmMessageBox::keepOnScreen()
{
    auto *text = findChild<QLabel *>(u"qt_msgbox_label"_s);
    const int tooMuch = height() - screen()->availableGeometry().height() * kScreenPercent / 100;
    if (!text || tooMuch <= 0 || findChild<QScrollArea *>(kTextArea))
        return;
    auto *area = new QScrollArea(this);
    area->setObjectName(kTextArea);
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    area->setFocusPolicy(Qt::StrongFocus);
    area->setFixedHeight(qMax(text->height() - tooMuch, kLeastLines * fontMetrics().lineSpacing()));
    area->setMinimumWidth(text->width() + area->verticalScrollBar()->sizeHint().width());
    delete layout()->replaceWidget(text, area);
    area->setWidget(text);
}

void OzmMessageBox::announce(int show)
{
    if (isVisible() && show == m_shows)
        Q_EMIT OzmCoreApplication::instance()->ozmMessageBoxShown(this);
}

} // namespace ozm
