#pragma once

#include <QByteArray>
#include <QCache>
#include <QObject>
#include <QString>
#include <QTextObjectInterface>

class QSvgRenderer;

namespace ozm::editor {

/// The bytes of the SVG that an image of this @p name carries itself; empty for any other image, and for an SVG that
/// would have another file read.
[[nodiscard]] QByteArray svgIn(const QString &name);

/// True for the name of an image that carries an SVG, whatever that is like.
[[nodiscard]] bool isSvgName(const QString &name);

/// Draws the SVG images of a document as lines and letters, sharp on any screen and in print; the toolkit would draw
/// them as a picture of dots. All other images are drawn as ever.
class VectorImages : public QObject, public QTextObjectInterface
{
    Q_OBJECT
    Q_INTERFACES(QTextObjectInterface)

public:
    /// Takes over the images of @p document, which owns it.
    explicit VectorImages(QTextDocument &document);
    ~VectorImages() override;

    QSizeF intrinsicSize(QTextDocument *document, int position, const QTextFormat &format) override;
    void drawObject(QPainter *painter, const QRectF &area, QTextDocument *document, int position,
                    const QTextFormat &format) override;

private:
    QTextObjectInterface *m_usual;
    QCache<QString, QSvgRenderer>
        m_renderers; ///< By the names of the images: reading one takes longer than drawing it.
};

} // namespace ozm::editor
