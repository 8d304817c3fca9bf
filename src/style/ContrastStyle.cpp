#include "style/ContrastStyle.h"

#include <ozm_widgets/OZMStyle.h>

#include <QApplication>
#include <QFontMetrics>
#include <QPainter>
#include <QStyleOption>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace ozm {

namespace {

// Of the text's colour; the rest is that of the window. More than 3 to 1 on any palette that can be read.
constexpr float kOutline = 0.7F;
// As Fusion leaves around a text.
constexpr int kTextMargin = 4;
// A round line lies between the pixels and needs more than one of them.
constexpr qreal kRoundLine = 1.5;
// A little more than Fusion has, for an icon that is sharp.
constexpr int kExtensionExtent = 16;

// An application has a few: of itself, of tool tips, of menus, of what is marked as wrong.
constexpr std::size_t kMostPalettes = 16;

// Of the font that the sizes of the toolkit are made for, in pixels.
constexpr int kUsualTextHeight = 15;

/// Icons, the marks of boxes and radio buttons, and the room around the text of a button.
bool growsWithText(QStyle::PixelMetric metric)
{
    switch (metric) {
    case QStyle::PM_SmallIconSize:
    case QStyle::PM_ButtonIconSize:
    case QStyle::PM_ButtonMargin:
    case QStyle::PM_ToolBarIconSize:
    case QStyle::PM_ListViewIconSize:
    case QStyle::PM_TabBarIconSize:
    case QStyle::PM_IndicatorWidth:
    case QStyle::PM_IndicatorHeight:
    case QStyle::PM_ExclusiveIndicatorWidth:
    case QStyle::PM_ExclusiveIndicatorHeight:
        return true;
    default:
        return false;
    }
}

/// @p size for the text of the application, from half again as high as usual on: up to there it fits.
int grown(int size)
{
    const int height = QFontMetrics(QApplication::font()).height();
    return height * 2 < kUsualTextHeight * 3 ? size : size * height / kUsualTextHeight;
}

/// Nothing is darker than this window, which is how Fusion makes its outlines.
bool isBlack(const QPalette &palette)
{
    constexpr int kNearlyBlack = 16;
    return palette.color(QPalette::Window).lightness() < kNearlyBlack;
}

QColor outlineColor(const QStyleOption &option)
{
    const auto *button = qstyleoption_cast<const QStyleOptionButton *>(&option);
    const bool isDefault = button && button->features.testFlag(QStyleOptionButton::DefaultButton);
    if (isDefault || (option.state.testFlag(QStyle::State_HasFocus) &&
                      option.state.testFlag(QStyle::State_KeyboardFocusChange)))
        return option.palette.color(QPalette::Highlight);
    const QColor text = option.palette.color(QPalette::WindowText);
    const QColor ground = option.palette.color(QPalette::Window);
    const auto mixed = [](int a, int b) { return qRound(kOutline * float(a) + (1 - kOutline) * float(b)); };
    return QColor(mixed(text.red(), ground.red()), mixed(text.green(), ground.green()),
                  mixed(text.blue(), ground.blue()));
}

/// Between marks that let its first letter decide on its direction, where that is not the direction of the window.
QString isolated(const QString &text, Qt::LayoutDirection direction)
{
    constexpr QChar kIsolate(0x2068);
    constexpr QChar kIsolateEnd(0x2069);
    const bool isSame = text.isRightToLeft() == (direction == Qt::RightToLeft);
    return isSame || text.isEmpty() ? text : kIsolate + text + kIsolateEnd;
}

} // namespace

/// Puts the known palette of the same colours into an option, and the option's own back at the end.
class ContrastStyle::LentPalette
{
public:
    LentPalette(const ContrastStyle &style, const QStyleOption *option)
        // A copy would need to know which of the many options it is.
        : m_option(const_cast<QStyleOption *>(option)) // NOLINT(cppcoreguidelines-pro-type-const-cast)
    {
        if (!m_option)
            return;
        m_own = m_option->palette;
        m_option->palette = style.known(m_own);
        m_option->palette.setCurrentColorGroup(m_own.currentColorGroup());
    }
    ~LentPalette()
    {
        if (m_option)
            m_option->palette = m_own;
    }
    Q_DISABLE_COPY_MOVE(LentPalette)

private:
    QStyleOption *const m_option;
    QPalette m_own;
};

const QPalette &ContrastStyle::known(const QPalette &palette) const
{
    const auto found = std::find(m_palettes.rbegin(), m_palettes.rend(), palette);
    if (found == m_palettes.rend()) {
        if (m_palettes.size() == kMostPalettes)
            m_palettes.erase(m_palettes.begin());
        m_palettes.push_back(palette);
    } else if (found != m_palettes.rbegin()) {
        std::rotate(std::prev(found.base()), found.base(), m_palettes.end());
    }
    return m_palettes.back();
}

ContrastStyle::ContrastStyle()
    : QProxyStyle(u"fusion"_s)
{}

QIcon ContrastStyle::standardIcon(StandardPixmap icon, const QStyleOption *option,
                                  const QWidget *widget) const
{
    // The toolkit's own is a picture in black.
    if (icon == SP_ToolBarHorizontalExtensionButton)
        return OZMStyle::icon(u"toolbar-more"_s);
    if (icon == SP_ToolBarVerticalExtensionButton)
        return OZMStyle::icon(u"go-down"_s);
    return QProxyStyle::standardIcon(icon, option, widget);
}

int ContrastStyle::pixelMetric(PixelMetric metric, const QStyleOption *option, const QWidget *widget) const
{
    if (metric == PM_ToolBarExtensionExtent)
        return kExtensionExtent;
    const int usual = QProxyStyle::pixelMetric(metric, option, widget);
    return growsWithText(metric) ? grown(usual) : usual;
}

void ContrastStyle::drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                                const QWidget *widget) const
{
    const LentPalette lent(*this, option);
    if (const auto *item = qstyleoption_cast<const QStyleOptionViewItem *>(option)) {
        QStyleOptionViewItem ordered = *item;
        ordered.text = isolated(item->text, item->direction);
        QProxyStyle::drawControl(element, &ordered, painter, widget);
    } else if (const auto *combo = qstyleoption_cast<const QStyleOptionComboBox *>(option);
               combo && element == CE_ComboBoxLabel && !combo->editable) {
        drawComboText(*combo, painter, widget);
    } else if (const auto *button = qstyleoption_cast<const QStyleOptionButton *>(option);
               button && element == CE_PushButtonLabel && !button->icon.isNull()) {
        drawButtonText(*button, painter, widget);
    } else {
        QProxyStyle::drawControl(element, option, painter, widget);
    }
}

void ContrastStyle::drawComboText(const QStyleOptionComboBox &combo, QPainter *painter,
                                  const QWidget *widget) const
{
    QStyleOptionComboBox elided = combo;
    const int icon = combo.currentIcon.isNull() ? 0 : combo.iconSize.width() + kTextMargin;
    const int room = subControlRect(CC_ComboBox, &combo, SC_ComboBoxEditField, widget).width();
    elided.currentText =
        isolated(combo.fontMetrics.elidedText(combo.currentText, Qt::ElideRight, room - icon - kTextMargin),
                 combo.direction);
    QProxyStyle::drawControl(CE_ComboBoxLabel, &elided, painter, widget);
}

void ContrastStyle::drawButtonText(const QStyleOptionButton &button, QPainter *painter,
                                   const QWidget *widget) const
{
    // Fusion asks for the right side, where the icon is, and a painter that mirrors takes that for the left.
    QStyleOptionButton ordered = button;
    ordered.text = isolated(button.text, Qt::LeftToRight);
    painter->save();
    painter->setLayoutDirection(Qt::LeftToRight);
    QProxyStyle::drawControl(CE_PushButtonLabel, &ordered, painter, widget);
    painter->restore();
}

void ContrastStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex *option,
                                       QPainter *painter, const QWidget *widget) const
{
    const LentPalette lent(*this, option);
    QProxyStyle::drawComplexControl(control, option, painter, widget);
}

void ContrastStyle::drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                                  const QWidget *widget) const
{
    const LentPalette lent(*this, option);
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    const bool isIndicator = element == PE_IndicatorCheckBox || element == PE_IndicatorRadioButton;
    const bool isField = element == PE_PanelButtonCommand || element == PE_FrameLineEdit;
    if (!isIndicator && !(isField && isBlack(option->palette)))
        return;
    // Over the outline that Fusion has drawn, as it has drawn it.
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(outlineColor(*option));
    painter->setBrush(Qt::NoBrush);
    const QRectF place = option->rect;
    if (element != PE_IndicatorRadioButton) {
        painter->drawRoundedRect(place.adjusted(0.5, 0.5, -0.5, -0.5), isField ? 2 : 0, isField ? 2 : 0);
    } else {
        const QPointF middle = option->rect.center() + QPoint(1, 1);
        const qreal radius = (option->rect.width() + (option->rect.width() + 1) % 2) / 2.0 - 1;
        painter->setPen(QPen(painter->pen().color(), kRoundLine));
        painter->drawEllipse(middle, radius, radius);
    }
    painter->restore();
}

} // namespace ozm
