#pragma once

#include <ozm_widgets/TemplateDocument.h>

#include <QList>
#include <QString>

namespace ozm::editor {

/// A part of a template's source that is shown as a chip, with its text to the letter.
using TemplatePart = TemplateDocument::Chip;
using PartKind = TemplateDocument::ChipKind;

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

[[nodiscard]] SplitTemplate splitTemplate(const QString &source);

/// The part that @p text is as a whole: a code in its brackets, a script in its tags, else markup.
[[nodiscard]] TemplatePart partOf(const QString &text);

} // namespace ozm::editor
