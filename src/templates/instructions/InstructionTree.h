#pragma once

#include "templates/instructions/InstructionSyntax.h"

#include <ozm_widgets/TemplateDiagnostics.h>

#include <QList>
#include <QString>

#include <optional>
#include <variant>

namespace ozm::instructions {

/// From @p start up to, but without, @p end.
struct SourceRange
{
    qsizetype start = 0;
    qsizetype end = 0;

    [[nodiscard]] bool isEmpty() const { return end <= start; }
    [[nodiscard]] bool holds(const SourceRange &other) const
    {
        return start <= other.start && other.end <= end;
    }
};

/// A part of a template with an instruction about it.
struct InstructedPart
{
    Instruction instruction; ///< Never an End or Else.
    SourceRange range;
    SourceRange mark;         ///< The instruction itself.
    QList<int> children = {}; ///< Indexes of the parts in this one, in their order.
    SourceRange otherwise =
        {}; ///< The end of the range where it has another part; the instruction Else before it.
    SourceRange held = {}; ///< The range up to that instruction; all of it where there is none.
};

/**
 * The instructions of a template, with the parts that they are about. An instruction that cannot be followed has no
 * part, and is listed as faulty.
 */
struct InstructionTree
{
    QList<InstructedPart> parts;
    QList<int> roots;
    /// The parts that the filled text leaves out: the instructions, and the lines that hold nothing else.
    QList<SourceRange> cuts;
    QList<FaultyInstruction> faulty; ///< In order of position.
};

[[nodiscard]] InstructionTree instructionsOf(const QString &content);

/// The set-up of the pages that @p content asks for.
[[nodiscard]] std::optional<Page> pageOf(const QString &content);

/// True for a text with tags, other than those of codes with a format.
[[nodiscard]] bool isHtml(const QString &source);

/// The table row or list item in @p range with @p text in the place of all that is in it.
[[nodiscard]] QString rowWithText(const QString &content, const SourceRange &range, const QString &text);

} // namespace ozm::instructions
