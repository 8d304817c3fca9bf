#include "templates/scripts/ScriptProtocol.h"

#include <QtEndian>

namespace ozm::scriptprotocol {

namespace {

constexpr qsizetype kLengthSize = sizeof(quint32);
constexpr quint32 kGreetingMark = 0x6f7a6d53; // "ozmS"

} // namespace

QByteArray greeting()
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream << static_cast<quint32>(2 * sizeof(quint32)) << kGreetingMark << kVersion;
    return bytes;
}

std::optional<quint32> greetedVersion(const QByteArray &payload)
{
    QDataStream stream(payload);
    quint32 mark = 0;
    quint32 version = 0;
    stream >> mark >> version;
    return stream.status() == QDataStream::Ok && mark == kGreetingMark ? std::optional(version)
                                                                       : std::nullopt;
}

std::optional<QByteArray> Frames::next()
{
    if (m_broken || m_bytes.size() - m_read < kLengthSize)
        return std::nullopt;
    const auto length = qFromBigEndian<quint32>(m_bytes.constData() + m_read);
    m_broken = length > kLongestFrame;
    if (m_broken || m_bytes.size() - m_read - kLengthSize < qsizetype(length))
        return std::nullopt;
    const QByteArray payload = m_bytes.sliced(m_read + kLengthSize, length);
    m_read += kLengthSize + length;
    if (m_read == m_bytes.size()) {
        m_bytes.clear();
        m_read = 0;
    }
    return payload;
}

} // namespace ozm::scriptprotocol
