#pragma once

#include <QByteArray>
#include <QString>
#include <QStringView>

namespace ozm::editor {

/// The parts of a text to the letter, in half the memory of a QString where most letters are of the Latin alphabet.
class PackedText
{
public:
    PackedText() = default;
    /// For parts of @p text; none may end within a character of two units.
    explicit PackedText(const QString &text);

    void append(QStringView part);
    /// After the last part.
    void squeeze() { m_bytes.squeeze(); }
    /// Where the part begins that is appended next, in units of its own.
    [[nodiscard]] qsizetype size() const { return m_bytes.size(); }
    /// All parts that begin at @p start or behind it, and before @p end.
    [[nodiscard]] QString sliced(qsizetype start, qsizetype end) const;

private:
    QByteArray m_bytes;
    bool m_isUtf8 = true; ///< There is none for half a character.
};

} // namespace ozm::editor
