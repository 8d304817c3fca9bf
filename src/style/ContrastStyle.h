#pragma once

#include <QProxyStyle>

namespace ozm {

/**
 * Fusion, with the outlines of check boxes and radio buttons, on black those of buttons and fields as well, and the
 * arrow of a tool bar without room, drawn to be seen on every palette.
 *
 * Fusion derives them from the colour of the window by a fixed step, which is next to nothing on dark.
 */
class ContrastStyle : public QProxyStyle
{
public:
    ContrastStyle();

    [[nodiscard]] QIcon standardIcon(StandardPixmap icon, const QStyleOption *option,
                                     const QWidget *widget) const override;
    [[nodiscard]] int pixelMetric(PixelMetric metric, const QStyleOption *option,
                                  const QWidget *widget) const override;
    /// Ends the text of a combo box that has no room for it with an ellipsis.
    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget) const override;
};

} // namespace ozm
