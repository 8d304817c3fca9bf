#pragma once

#include "templates/instructions/InstructionSyntax.h"

#include <QList>

#include <optional>

namespace ozm::editor {

/// An instruction at its place in a view.
struct InstructionMark
{
    int start = 0;
    int end = 0;
    instructions::Instruction instruction;
};

/// A section by the instructions that it is made of.
struct SectionPlaces
{
    InstructionMark begin;
    std::optional<InstructionMark> otherwise; ///< The beginning of its other part.
    InstructionMark end;
};

/// The innermost section around @p position, of all instructions in their order.
[[nodiscard]] std::optional<SectionPlaces> sectionAround(const QList<InstructionMark> &marks, int position);

} // namespace ozm::editor
