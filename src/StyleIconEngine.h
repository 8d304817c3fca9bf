#pragma once

#include <QIconEngine>

namespace ozm {

/**
 * Draws an icon of one colour, anew for each size and device pixel ratio, in the text colour that the
 * application's palette has at that moment for the mode.
 */
class StyleIconEngine : public QIconEngine
{
public:
    /// @p svg draws in "currentColor".
    StyleIconEngine(QString name, QByteArray svg);

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override;
    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override;
    QPixmap scaledPixmap(const QSize &size, QIcon::Mode mode, QIcon::State state, qreal scale) override;
    [[nodiscard]] QIconEngine *clone() const override;
    [[nodiscard]] QString key() const override;
    [[nodiscard]] QString iconName() override;
    [[nodiscard]] bool isNull() override;

private:
    [[nodiscard]] QPixmap render(const QSize &pixels, const QColor &color) const;

    QString m_name;
    QByteArray m_svg;
};

} // namespace ozm
