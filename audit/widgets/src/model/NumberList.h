#pragma once

#include <QByteArray>
#include <QList>

namespace ozm::audit {

/**
 * Ascending numbers at about a byte each, read by position.
 *
 * A filter over ten million entries may show most of them: as plain numbers they would take 80 MB.
 */
class NumberList
{
public:
    [[nodiscard]] qint64 count() const { return m_count; }
    /// The numbers from the one at @p position on, no more than @p count.
    [[nodiscard]] QList<qint64> mid(qint64 position, qint64 count) const;
    /// The position of the first number that is not below @p number.
    [[nodiscard]] qint64 lowerBound(qint64 number) const;
    [[nodiscard]] qint64 bytes() const;

    void append(qint64 number);
    void append(const QList<qint64> &numbers);
    void clear() { *this = {}; }

private:
    static constexpr qint64 kBlock = 256;
    struct Block
    {
        qint64 first = 0;
        QByteArray steps; ///< From each number to the next, in seven bits a byte.
    };
    [[nodiscard]] static QList<qint64> unpacked(const Block &block);

    QList<Block> m_blocks;
    qint64 m_count = 0;
    qint64 m_last = 0;
};

} // namespace ozm::audit
