#pragma once

#include <QCache>
#include <QColor>
#include <QFont>
#include <QHashFunctions>
#include <QImage>
#include <QString>

#include <array>
#include <memory>

class QPainter;
class QTextLayout;

namespace ozm::editor {

/// A chip's label, laid out once and drawn as QPainter draws a line in the middle of an area.
class ChipLabel
{
public:
    explicit ChipLabel(const QString &text);
    ~ChipLabel();
    Q_DISABLE_COPY(ChipLabel)
    ChipLabel(ChipLabel &&other) noexcept;
    ChipLabel &operator=(ChipLabel &&other) noexcept;

    [[nodiscard]] const QString &text() const { return m_text; }
    /// With the font and pen of @p painter, whose clipping it changes.
    void draw(QPainter &painter, const QRectF &area);

private:
    void layOut(const QPainter &painter);

    QString m_text;
    QFont m_font; ///< Of m_line, on the device that it was laid out for.
    std::unique_ptr<QTextLayout> m_line;
};

/// The frames of chips. Those that lie alike on the dots of the screen are painted once.
class ChipFrames
{
public:
    ChipFrames();

    /// With the pen and brush of @p painter.
    void draw(QPainter &painter, const QRectF &frame);

private:
    /// All that such a picture depends on; lengths are in parts of a dot.
    struct Key
    {
        std::array<qint64, 8> values;

        friend bool operator==(const Key &, const Key &) = default;
        friend size_t qHash(const Key &key, size_t seed) noexcept
        {
            return qHashRange(key.values.cbegin(), key.values.cend(), seed);
        }
    };

    QCache<Key, QImage> m_pictures;
};

} // namespace ozm::editor
