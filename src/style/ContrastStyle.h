#pragma once

#include <QPalette>
#include <QProxyStyle>

#include <vector>

class QStyleOptionButton;
class QStyleOptionComboBox;

namespace ozm {

/**
 * Fusion, with the outlines of check boxes and radio buttons, on black those of buttons and fields as well, and the
 * arrow of a tool bar without room, drawn to be seen on every palette; and with data that reads as it was written,
 * whatever the direction of the language around it. Icons and marks grow with large letters.
 *
 * Fusion derives the outlines from the colour of the window by a fixed step, which is next to nothing on dark.
 *
 * Palettes of equal colours are drawn with as one. Fusion keeps what it has drawn under the number of the palette, which
 * each copy that is changed has for itself: after a change of colours, and under a style sheet, that is each widget. It
 * would be drawn anew, and the toolkit never forgets the name of what it drew.
 */
class ContrastStyle : public QProxyStyle
{
public:
    ContrastStyle();

    [[nodiscard]] QIcon standardIcon(StandardPixmap icon, const QStyleOption *option,
                                     const QWidget *widget) const override;
    [[nodiscard]] int pixelMetric(PixelMetric metric, const QStyleOption *option,
                                  const QWidget *widget) const override;
    /// Ends the text of a combo box that has no room for it with an ellipsis. Keeps the order of what a cell or a combo box
    /// shows: in a window written from right to left, "-1" would otherwise read "1-".
    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex *option, QPainter *painter,
                            const QWidget *widget) const override;

private:
    class LentPalette;

    [[nodiscard]] const QPalette &known(const QPalette &palette) const;
    void drawComboText(const QStyleOptionComboBox &combo, QPainter *painter, const QWidget *widget) const;
    void drawButtonText(const QStyleOptionButton &button, QPainter *painter, const QWidget *widget) const;

    mutable std::vector<QPalette> m_palettes; ///< All different; the one asked for last at the end.
};

} // namespace ozm
