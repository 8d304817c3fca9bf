#include "NumberList.h"

#include <algorithm>

namespace ozm::audit {

namespace {

constexpr quint64 kMore = 0x80;
constexpr int kBits = 7;

} // namespace

QList<qint64> NumberList::mid(qint64 position, qint64 count) const
{
    QList<qint64> numbers;
    const qint64 end = qMin(position + count, m_count);
    numbers.reserve(qMax<qint64>(0, end - position));
    while (position < end) {
        const QList<qint64> block = unpacked(m_blocks.at(position / kBlock));
        for (qint64 i = position % kBlock; i < block.size() && position < end; ++i, ++position)
            numbers.append(block.at(i));
    }
    return numbers;
}

qint64 NumberList::lowerBound(qint64 number) const
{
    const auto after = std::ranges::upper_bound(m_blocks, number, {}, &Block::first);
    if (after == m_blocks.begin())
        return 0;
    const auto block = std::prev(after);
    const QList<qint64> numbers = unpacked(*block);
    const auto found = std::ranges::lower_bound(numbers, number);
    return (block - m_blocks.begin()) * kBlock + (found - numbers.begin());
}

qint64 NumberList::bytes() const
{
    qint64 sum = m_blocks.size() * qint64(sizeof(Block));
    for (const Block &block : m_blocks)
        sum += block.steps.capacity();
    return sum;
}

void NumberList::append(qint64 number)
{
    if (m_count++ % kBlock == 0) {
        if (!m_blocks.isEmpty())
            m_blocks.last().steps.squeeze();
        m_blocks.append(Block{number, {}});
    } else {
        auto step = quint64(number - m_last);
        for (; step >= kMore; step >>= kBits)
            m_blocks.last().steps.append(char(step | kMore));
        m_blocks.last().steps.append(char(step));
    }
    m_last = number;
}

void NumberList::append(const QList<qint64> &numbers)
{
    for (const qint64 number : numbers)
        append(number);
}

QList<qint64> NumberList::unpacked(const Block &block)
{
    QList<qint64> numbers{block.first};
    quint64 step = 0;
    int shift = 0;
    for (const char byte : block.steps) {
        step |= (quint64(quint8(byte)) & (kMore - 1)) << shift;
        shift += kBits;
        if ((quint8(byte) & kMore) != 0)
            continue;
        numbers.append(numbers.constLast() + qint64(step));
        step = 0;
        shift = 0;
    }
    return numbers;
}

} // namespace ozm::audit
