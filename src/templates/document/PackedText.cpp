#include "templates/document/PackedText.h"

#include <QStringDecoder>

namespace ozm::editor {

PackedText::PackedText(const QString &text)
    : m_isUtf8(text.isValidUtf16())
{
    m_bytes.reserve(m_isUtf8 ? text.size() : text.size() * qsizetype(sizeof(QChar)));
}

void PackedText::append(QStringView part)
{
    if (m_isUtf8)
        m_bytes.append(part.toUtf8());
    else
        m_bytes.append(reinterpret_cast<const char *>(part.utf16()), part.size() * qsizetype(sizeof(QChar)));
}

QString PackedText::sliced(qsizetype start, qsizetype end) const
{
    const QByteArrayView bytes = QByteArrayView(m_bytes).sliced(start, end - start);
    if (!m_isUtf8)
        return QString(reinterpret_cast<const QChar *>(bytes.data()),
                       bytes.size() / qsizetype(sizeof(QChar)));
    // QString::fromUtf8() would drop a byte order mark, which is a character like others within a text.
    QStringDecoder decoder(QStringConverter::Utf8, QStringConverter::Flag::ConvertInitialBom);
    return decoder.decode(bytes);
}

} // namespace ozm::editor
