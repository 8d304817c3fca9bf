#include "style/StyleIconEngine.h"

#include <QGuiApplication>
#include <QPainter>
#include <QPalette>
#include <QPixmapCache>
#include <QSvgRenderer>

#include <algorithm>
#include <array>
#include <utility>

using namespace Qt::StringLiterals;

namespace ozm {

namespace {

// At this many pixels and fewer, the usual line is thinner than one of them and would be half as strong.
constexpr int kSmall = 20;
constexpr auto kStroke = "stroke-width=\"1.75\"";
constexpr auto kStrokeWhenSmall = "stroke-width=\"2.25\"";

// They point along a line of text, or show where one begins.
constexpr std::array kMirrored{
    "document-export"_L1, "document-import"_L1,    "edit-clear"_L1,          "edit-redo"_L1,
    "edit-undo"_L1,       "format-indent-less"_L1, "format-indent-more"_L1,  "format-list-unordered"_L1,
    "go-next"_L1,         "go-previous"_L1,        "table-column-delete"_L1, "table-column-insert"_L1,
    "toolbar-more"_L1,    "view-list"_L1,          "window-dock"_L1,
};

QColor colorOf(QIcon::Mode mode)
{
    const QPalette palette = QGuiApplication::palette();
    switch (mode) {
    case QIcon::Disabled:
        return palette.color(QPalette::Disabled, QPalette::WindowText);
    case QIcon::Selected:
        return palette.color(QPalette::Active, QPalette::HighlightedText);
    case QIcon::Normal:
    case QIcon::Active:
        break;
    }
    return palette.color(QPalette::Active, QPalette::WindowText);
}

} // namespace

StyleIconEngine::StyleIconEngine(QString name, QByteArray svg)
    : m_name(std::move(name))
    , m_svg(std::move(svg))
{}

void StyleIconEngine::paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state)
{
    const qreal ratio = painter->device() ? painter->device()->devicePixelRatioF() : 1.0;
    painter->drawPixmap(rect, scaledPixmap(rect.size() * ratio, mode, state, ratio));
}

QPixmap StyleIconEngine::pixmap(const QSize &size, QIcon::Mode mode, QIcon::State)
{
    return render(size, colorOf(mode));
}

QPixmap StyleIconEngine::scaledPixmap(const QSize &size, QIcon::Mode mode, QIcon::State state, qreal)
{
    // The size is in device pixels already.
    return pixmap(size, mode, state);
}

QPixmap StyleIconEngine::render(const QSize &pixels, const QColor &color) const
{
    if (pixels.isEmpty())
        return {};
    const bool isMirrored =
        QGuiApplication::isRightToLeft() && std::ranges::find(kMirrored, m_name) != kMirrored.end();
    const QString id = u"ozm-icon/%1%2/%3x%4/%5"_s.arg(m_name, isMirrored ? u"/mirrored"_s : QString())
                           .arg(pixels.width())
                           .arg(pixels.height())
                           .arg(color.rgba(), 0, 16);
    QPixmap pixmap;
    if (QPixmapCache::find(id, &pixmap))
        return pixmap;
    QByteArray svg = m_svg;
    svg.replace("currentColor", color.name().toLatin1());
    if (qMin(pixels.width(), pixels.height()) <= kSmall)
        svg.replace(kStroke, kStrokeWhenSmall);
    QSvgRenderer renderer(svg);
    renderer.setAspectRatioMode(Qt::KeepAspectRatio);
    pixmap = QPixmap(pixels);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setOpacity(color.alphaF());
    if (isMirrored) {
        painter.translate(pixels.width(), 0);
        painter.scale(-1, 1);
    }
    renderer.render(&painter);
    painter.end();
    QPixmapCache::insert(id, pixmap);
    return pixmap;
}

QIconEngine *StyleIconEngine::clone() const
{
    return new StyleIconEngine(m_name, m_svg);
}

QString StyleIconEngine::key() const
{
    return u"ozm-style"_s;
}

QString StyleIconEngine::iconName()
{
    return m_name;
}

bool StyleIconEngine::isNull()
{
    return m_svg.isEmpty();
}

} // namespace ozm
