#include "templates/document/VectorImages.h"

#include <QAbstractTextDocumentLayout>
#include <QPainter>
#include <QRegularExpression>
#include <QSvgRenderer>
#include <QTextDocument>
#include <QTextFormat>

using namespace Qt::StringLiterals;

namespace ozm::editor {

namespace {

constexpr auto kSvgStart = "data:image/svg+xml"_L1;
constexpr auto kBase64 = ";base64"_L1;
// As many as a report shows on a screen; others are read again.
constexpr int kKeptRenderers = 50;

/// True for an SVG that could have a file read by its path, as the toolkit reads the images in it.
bool reachesOut(const QByteArray &svg)
{
    static const QRegularExpression outward(u"href\\s*=\\s*[\"'](?!\\s*(?:#|data:))|<!entity"_s,
                                            QRegularExpression::CaseInsensitiveOption);
    // It may be packed, or written in a character set of two or four bytes.
    const bool isPacked = svg.startsWith("\x1f\x8b");
    return isPacked || outward.match(QString::fromLatin1(QByteArray(svg).replace('\0', ""))).hasMatch();
}

} // namespace

bool isSvgName(const QString &name)
{
    return name.startsWith(kSvgStart, Qt::CaseInsensitive);
}

QByteArray svgIn(const QString &name)
{
    const qsizetype comma = isSvgName(name) ? name.indexOf(u',') : -1;
    if (comma < 0)
        return {};
    const QByteArray data = QByteArray::fromPercentEncoding(QStringView(name).sliced(comma + 1).toUtf8());
    const QByteArray svg = QStringView(name).first(comma).endsWith(kBase64, Qt::CaseInsensitive)
                               ? QByteArray::fromBase64(data)
                               : data;
    return reachesOut(svg) ? QByteArray() : svg;
}

VectorImages::VectorImages(QTextDocument &document)
    : QObject(&document)
    , m_usual(document.documentLayout()->handlerForObject(QTextFormat::ImageObject))
    , m_renderers(kKeptRenderers)
{
    document.documentLayout()->registerHandler(QTextFormat::ImageObject, this);
}

VectorImages::~VectorImages() = default;

QSizeF VectorImages::intrinsicSize(QTextDocument *document, int position, const QTextFormat &format)
{
    const QSizeF size = m_usual->intrinsicSize(document, position, format);
    QTextImageFormat own = format.toImageFormat();
    const bool hasWidth = own.width() > 0;
    if (hasWidth == (own.height() > 0))
        return size;
    // Beside the GUI thread, the toolkit would leave the other length as that of the image.
    own.clearProperty(QTextFormat::ImageWidth);
    own.clearProperty(QTextFormat::ImageHeight);
    const QSizeF whole = m_usual->intrinsicSize(document, position, own);
    if (whole.isEmpty())
        return size;
    return hasWidth ? QSizeF(size.width(), size.width() * whole.height() / whole.width())
                    : QSizeF(size.height() * whole.width() / whole.height(), size.height());
}

void VectorImages::drawObject(QPainter *painter, const QRectF &area, QTextDocument *document, int position,
                              const QTextFormat &format)
{
    const QString name = format.toImageFormat().name();
    if (!isSvgName(name)) {
        m_usual->drawObject(painter, area, document, position, format);
        return;
    }
    QSvgRenderer *renderer = m_renderers.object(name);
    if (!renderer) {
        renderer = new QSvgRenderer(svgIn(name));
        m_renderers.insert(name, renderer);
    }
    if (renderer->isValid())
        renderer->render(painter, area);
    else
        m_usual->drawObject(painter, area, document, position, format);
}

} // namespace ozm::editor
