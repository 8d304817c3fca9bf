#pragma once

#include <QList>
#include <QRegularExpression>
#include <QString>

namespace ozm::editor {

/// What a chip stands for, and the text that it stands for, to the letter.
enum class PartKind
{
    Code,
    Script,
    Markup
};

struct TemplatePart
{
    PartKind kind = PartKind::Code;
    QString source;
};

/**
 * A template's source taken apart for a rich-text document: HTML that such a document understands, in which
 * a marker stands for each part that it would drop or split. An empty part is a line without text.
 *
 * Parts are codes, scripts, and markup that rich text has no form for: comments, style sheets, form
 * controls, and whole tables or lists in which a script or code stands where only rows, cells or
 * attributes may.
 */
struct SplitTemplate
{
    QString html;
    QList<TemplatePart> parts;
    QChar markerStart;
    QChar markerEnd;
};

/// The innermost pair of brackets on one line, which is what decoding replaces.
[[nodiscard]] const QRegularExpression &codePattern();

[[nodiscard]] SplitTemplate splitTemplate(const QString &source);

/// The part that @p text is as a whole: "[Name]" is a code, "<script>...</script>" a script.
[[nodiscard]] TemplatePart partOf(const QString &text);

} // namespace ozm::editor
