#pragma once

#include <QIconEngine>
#include <QPixmap>

#include <memory>

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

    [[nodiscard]] QPixmap render(const QSize &pixels, const QColor &color) const;

private:
    QString m_name;
    QByteArray m_svg;
};

/// The engine of one of the library's own icons; null when there is none of that name.
[[nodiscard]] std::unique_ptr<StyleIconEngine> loadStyleIcon(const QString &name);

/// True once OZMStyle::apply() has given the application its look.
[[nodiscard]] bool isStyleApplied();

} // namespace ozm
