#include "templates/document/ChipPictures.h"

#include <QPaintEngine>
#include <QPainter>
#include <QTextLayout>

#include <algorithm>
#include <cmath>

namespace ozm::editor {

namespace {

constexpr double kCornerRadius = 3.0;
// Of all pictures together: what is seen on one screen, several times.
constexpr qsizetype kMostPictureBytes = 1 << 20;
// Finer than text is laid out, so that equal pictures are equal to the dot.
constexpr double kPartsOfDot = 4096;
constexpr int kLargestPicture = 1024;
// As the toolkit's for lines that are never broken.
constexpr double kEndlessLine = 0x01000000;

bool isPlainText(const QString &text)
{
    return std::ranges::none_of(text, [](QChar c) {
        return c.category() == QChar::Other_Control || c.category() == QChar::Separator_Line ||
               c.category() == QChar::Separator_Paragraph;
    });
}

void drawFrame(QPainter &painter, const QRectF &frame)
{
    painter.drawRoundedRect(frame, kCornerRadius, kCornerRadius);
}

/// True where a picture lies on the dots of the device as it was painted.
bool keepsDots(const QPainter &painter)
{
    const QTransform &transform = painter.deviceTransform();
    return painter.paintEngine()->type() == QPaintEngine::Raster && painter.opacity() == 1 &&
           transform.type() <= QTransform::TxScale && transform.m11() > 0 &&
           transform.m11() == transform.m22();
}

} // namespace

ChipLabel::ChipLabel(const QString &text)
    : m_text(text)
{}

ChipLabel::~ChipLabel() = default;
ChipLabel::ChipLabel(ChipLabel &&other) noexcept = default;
ChipLabel &ChipLabel::operator=(ChipLabel &&other) noexcept = default;

void ChipLabel::layOut(const QPainter &painter)
{
    m_font = painter.font();
    m_line = std::make_unique<QTextLayout>(m_text, m_font, painter.device());
    QTextOption option;
    option.setTextDirection(Qt::LeftToRight);
    m_line->setTextOption(option);
    m_line->setCacheEnabled(true);
    m_line->beginLayout();
    m_line->createLine().setLineWidth(kEndlessLine);
    m_line->endLayout();
}

void ChipLabel::draw(QPainter &painter, const QRectF &area)
{
    if (m_text.isEmpty())
        return;
    if (!isPlainText(m_text)) {
        painter.drawText(area, Qt::AlignCenter | Qt::TextSingleLine | Qt::TextForceLeftToRight, m_text);
        return;
    }
    if (!m_line || m_font != painter.font())
        layOut(painter);
    const QTextLine line = m_line->lineAt(0);
    const QPointF place((area.width() - line.horizontalAdvance()) / 2,
                        (area.height() - line.ascent() - line.descent()) / 2);
    painter.setClipRect(area, Qt::IntersectClip);
    line.draw(&painter, area.topLeft() + place);
}

ChipFrames::ChipFrames()
    : m_pictures(kMostPictureBytes)
{}

void ChipFrames::draw(QPainter &painter, const QRectF &frame)
{
    const QTransform &transform = painter.deviceTransform();
    const QRectF onDevice = transform.mapRect(frame);
    if (!keepsDots(painter) || std::max(onDevice.width(), onDevice.height()) > kLargestPicture) {
        drawFrame(painter, frame);
        return;
    }
    const double scale = transform.m11();
    // Half of what the pen draws is outside of the frame.
    const int margin = int(std::ceil(scale * painter.pen().widthF())) + 1;
    const QPoint corner(int(std::floor(onDevice.left())) - margin, int(std::floor(onDevice.top())) - margin);
    const auto parts = [](double length) { return qint64(std::llround(length * kPartsOfDot)); };
    const Key key{{parts(onDevice.left() - corner.x()), parts(onDevice.top() - corner.y()),
                   parts(onDevice.width()), parts(onDevice.height()), parts(scale * kPartsOfDot),
                   qint64(painter.pen().color().rgba64()), qint64(painter.pen().style()),
                   qint64(painter.brush().color().rgba64())}};
    QImage *picture = m_pictures.object(key);
    if (!picture) {
        const QSize size(int(std::ceil(onDevice.right())) - corner.x() + margin,
                         int(std::ceil(onDevice.bottom())) - corner.y() + margin);
        picture = new QImage(size, QImage::Format_ARGB32_Premultiplied);
        picture->fill(Qt::transparent);
        QPainter on(picture);
        on.setRenderHint(QPainter::Antialiasing);
        on.setPen(painter.pen());
        on.setBrush(painter.brush());
        on.setTransform(transform * QTransform::fromTranslate(-corner.x(), -corner.y()));
        drawFrame(on, frame);
        on.end();
        if (!m_pictures.insert(key, picture, picture->sizeInBytes()))
            return;
    }
    const QTransform world = painter.worldTransform();
    if (scale != 1)
        painter.scale(1 / scale, 1 / scale);
    painter.drawImage(corner - QPointF(transform.dx(), transform.dy()), *picture);
    if (scale != 1)
        painter.setWorldTransform(world);
}

} // namespace ozm::editor
