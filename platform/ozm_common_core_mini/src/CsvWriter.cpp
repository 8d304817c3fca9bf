#include <ozm_common_core_mini/CsvWriter.h>

#include "FileReplacement.h"

#include <QStringEncoder>

#include <array>

namespace {

constexpr int kAscii = 128;
// In UTF-8 a character of 16 bits takes at most as many bytes.
constexpr qsizetype kMostBytes = 3;

/// Writes cells as UTF-8 into one buffer. Most cells are plain ASCII without anything special, and take one
/// look at each character.
class CsvText
{
public:
    CsvText(QChar qualifier, QChar separator)
        : m_qualifier(qualifier)
        , m_separator(separator)
    {
        for (const QChar special : {qualifier, separator, QChar(u'\n'), QChar(u'\r')})
            if (special.unicode() < kAscii)
                m_isSpecial[special.unicode()] = true;
        // Without the mark, common spreadsheets take the file for the system's own 8-bit text.
        append(QStringView(u"\uFEFF"));
    }

    void append(const QList<QString> &row)
    {
        for (qsizetype i = 0; i < row.size(); ++i) {
            if (i > 0)
                append(QStringView(&m_separator, 1));
            const QString &cell = row.at(i);
            if (!appendPlain(cell))
                appendSpecial(cell);
        }
        append(QStringView(u"\r\n"));
    }

    [[nodiscard]] QByteArray take()
    {
        m_bytes.truncate(m_size);
        return std::move(m_bytes);
    }

private:
    /// False, with nothing appended, for a cell that needs more than a copy of its characters.
    [[nodiscard]] bool appendPlain(const QString &cell)
    {
        if (cell.isEmpty())
            return true;
        if (cell.front().isSpace() || cell.back().isSpace())
            return false;
        char *out = room(cell.size());
        for (const QChar character : cell) {
            const char16_t code = character.unicode();
            if (code >= kAscii || m_isSpecial[code])
                return false;
            *out++ = static_cast<char>(code);
        }
        m_size += cell.size();
        return true;
    }

    void appendSpecial(const QString &cell)
    {
        if (!needsQualifier(cell)) {
            append(QStringView(cell));
            return;
        }
        QString quoted(m_qualifier);
        for (const QChar character : cell) {
            if (character == m_qualifier)
                quoted += m_qualifier;
            quoted += character;
        }
        append(QStringView(quoted += m_qualifier));
    }

    [[nodiscard]] bool needsQualifier(const QString &cell) const
    {
        return cell.front().isSpace() || cell.back().isSpace() || cell.contains(m_separator) ||
               cell.contains(m_qualifier) || cell.contains(u'\n') || cell.contains(u'\r');
    }

    void append(QStringView text)
    {
        const char *end = m_encoder.appendToBuffer(room(text.size() * kMostBytes), text);
        m_size = end - m_bytes.constData();
    }

    [[nodiscard]] char *room(qsizetype size)
    {
        if (m_bytes.size() < m_size + size)
            m_bytes.resize(qMax(2 * m_bytes.size(), m_size + size));
        return m_bytes.data() + m_size;
    }

    const QChar m_qualifier;
    const QChar m_separator;
    std::array<bool, kAscii> m_isSpecial = {};
    // Half of a character pair at the end of a cell has nothing to do with the next cell.
    QStringEncoder m_encoder{QStringEncoder::Utf8, QStringEncoder::Flag::Stateless};
    QByteArray m_bytes;
    qsizetype m_size = 0;
};

} // namespace

namespace ozm {

bool CsvWriter::writeFile(const QString &path, const QList<QList<QString>> &rows, const QString &text,
                          const QChar &separator)
{
    CsvText table(text.isEmpty() ? QChar(u'"') : text.front(), separator);
    for (const QList<QString> &row : rows)
        table.append(row);
    return replaceFile(path, table.take());
}

} // namespace ozm
