#pragma once

#include <QString>

#include <algorithm>
#include <optional>
#include <vector>

namespace ozm {

template <typename List>
[[nodiscard]] bool isOneOf(QStringView text, const List &list)
{
    return std::ranges::any_of(list, [text](QLatin1StringView each) { return text == each; });
}

/// True for what ends a line of a script.
[[nodiscard]] inline bool isScriptLineEnd(QChar character)
{
    return character == u'\n' || character == u'\r' || character == QChar::LineSeparator ||
           character == QChar::ParagraphSeparator;
}

struct ScriptToken
{
    enum class Kind
    {
        Name, ///< An identifier or a keyword.
        Number,
        Text, ///< A string literal with its quotes, a regular expression, or a part of a template literal.
        Operator, ///< Brackets and separators, too.
    };

    Kind kind;
    QStringView text;

    bool operator==(QStringView other) const { return kind != Kind::Text && text == other; }
};

/**
 * The tokens of a script; nothing when it cannot be taken apart beyond doubt: a slash that may divide or begin a
 * regular expression, an escape outside of texts, a character beyond ASCII there, or a text without an end.
 *
 * The views are of @p code. The parts of a template literal stand as texts around "${" and "}".
 */
[[nodiscard]] std::optional<std::vector<ScriptToken>> scriptTokens(QStringView code);

} // namespace ozm
