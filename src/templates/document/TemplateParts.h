#pragma once

#include "templates/syntax/HtmlScanner.h"

#include <ozm_widgets/TemplateDocument.h>

#include <QList>
#include <QString>

namespace ozm::editor {

/// A part of a template's source that is shown as a chip, with its text to the letter.
using TemplatePart = TemplateDocument::Chip;
using PartKind = TemplateDocument::ChipKind;

/// Where a part comes from, or the run that begins where it stands: it then is a mark without a text.
struct PartPlace
{
    qsizetype start = 0;
    qsizetype end = 0;
    int run = -1;
};

/// The text of one line of a document as it stands in the source, with the formatting inside of the line.
struct SourceRun
{
    qsizetype start = 0;
    qsizetype end = 0;
    int section = -1;
    /// The element that holds this line and nothing else; empty where there is none.
    HtmlElement host = {};
    /// The elements around it, from the innermost, that can go once they hold nothing.
    QList<HtmlElement> outer = {};
    QString paragraphClass = {}; ///< The class of the element that holds this line.
    bool isRule = false;
    bool isBalanced = true; ///< It opens and closes the same inline elements.
};

/// A line that has no mark, as its text tells where it is.
struct PlainLine
{
    int run = -1;
    qsizetype start = 0; ///< In the text of all such lines.
    qsizetype end = 0;
};

/// A part of the source that stands by itself.
struct SourceSection
{
    qsizetype start = 0;
    qsizetype end = 0;
    int firstRun = 0;
    int runs = 0;
};

/**
 * A template's source taken apart for a rich-text document: HTML that such a document understands, in which
 * one character, a marker, stands for each part that it would drop or split: one for text, another for the rest. An empty
 * part is a line without text.
 *
 * Parts are codes, scripts, and markup that rich text has no form for: comments, style sheets, form
 * controls, and whole tables or lists in which a script or code stands where only rows, cells or
 * attributes may.
 */
struct SplitTemplate
{
    QString html;
    /// One without kind and source is a line without text; one without kind is text as it stands.
    QList<TemplatePart> parts;
    QList<PartPlace> places; ///< Of the parts, in their order.
    QList<SourceRun> runs;
    QList<SourceSection> sections; ///< Cover the source without a gap.
    QString around;                ///< The start tags of the page and its body.
    QChar textMarker;
    QChar chipMarker;
    QList<PlainLine> plainLines; ///< The lines without a mark, in their order.
    QString plainText;           ///< Of all of them, without tags and with markers for parts.
};

/// Which lines get a mark: each costs as much as a chip.
enum class LineMarks
{
    All,
    WhereNeeded, ///< Not those that a reader can tell by their text.
};

[[nodiscard]] SplitTemplate splitTemplate(const QString &source, LineMarks marks = LineMarks::All);

/// The part that @p text is as a whole: a code in its brackets, a script in its tags, else markup.
[[nodiscard]] TemplatePart partOf(const QString &text);

} // namespace ozm::editor

Q_DECLARE_TYPEINFO(ozm::editor::SourceRun, Q_RELOCATABLE_TYPE);
