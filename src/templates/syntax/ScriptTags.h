#pragma once

#include <QList>
#include <QString>
#include <QStringView>

#include <optional>

/// The tags that pieces of script in a template are written between. Letter case does not count.
namespace ozm::syntax {

inline constexpr QLatin1StringView kScriptOpen("<script>");
inline constexpr QLatin1StringView kScriptClose("</script>");

struct ScriptTag
{
    qsizetype position = 0;
    qsizetype length = 0;
    bool opening = false;
};

/// From @p start up to, but without, @p end.
struct ScriptRange
{
    qsizetype start = 0;
    qsizetype end = 0;
};

/// The script tag that begins just at @p position.
[[nodiscard]] std::optional<ScriptTag> scriptTagAt(QStringView text, qsizetype position);

[[nodiscard]] QList<ScriptTag> scriptTags(QStringView text);

/// The pieces that decoding runs, each without tags. Scripts nest: the text between two tags is a piece as
/// long as more scripts were opened than closed.
[[nodiscard]] QList<ScriptRange> scriptPieces(QStringView text);

/// The script that the tag at @p position opens, with its tags and the scripts nested in it. One that is
/// never closed ends with the last script tag of all, as it does when it is run.
[[nodiscard]] ScriptRange scriptFrom(QStringView text, qsizetype position);

/// The script around @p position, with its tags, found from the last opening tag before.
[[nodiscard]] std::optional<ScriptRange> scriptAround(const QString &text, qsizetype position);

/// True for a script with both of its tags.
[[nodiscard]] bool isScript(QStringView text);
[[nodiscard]] bool beginsWithScript(QStringView text);
[[nodiscard]] bool hasScript(QStringView text);

/// @p code between script tags.
[[nodiscard]] QString scriptOf(const QString &code);
/// @p script without the tags at its ends, where it has them.
[[nodiscard]] QString codeOf(const QString &script);

/// @p text without its script tags; the text between them stays.
[[nodiscard]] QString withoutScriptTags(const QString &text);

} // namespace ozm::syntax
