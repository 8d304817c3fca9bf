#include "editor/SectionPlaces.h"

#include <algorithm>

namespace ozm::editor {

namespace {

using instructions::Condition;
using instructions::Else;
using instructions::End;
using instructions::Extent;
using instructions::Instruction;
using instructions::Repeat;

bool beginsSection(const Instruction &instruction)
{
    const auto *repeat = std::get_if<Repeat>(&instruction);
    const auto *condition = std::get_if<Condition>(&instruction);
    return (repeat && repeat->extent == Extent::Section) ||
           (condition && condition->extent == Extent::Section);
}

} // namespace

std::optional<SectionPlaces> sectionAround(const QList<InstructionMark> &marks, int position)
{
    QList<SectionPlaces> open;
    // Right behind a section is at its end, unless another one begins there.
    const bool isAtBegin = std::ranges::any_of(marks, [position](const InstructionMark &mark) {
        return mark.start == position && beginsSection(mark.instruction);
    });
    for (const InstructionMark &mark : marks) {
        if (beginsSection(mark.instruction)) {
            open.append({mark, {}, {}});
        } else if (!open.isEmpty() && std::holds_alternative<Else>(mark.instruction)) {
            open.last().otherwise = mark;
        } else if (!open.isEmpty() && std::holds_alternative<End>(mark.instruction)) {
            SectionPlaces section = open.takeLast();
            section.end = mark;
            // Those within it ended before.
            if (section.begin.start <= position && position < mark.end + (isAtBegin ? 0 : 1))
                return section;
        }
    }
    return std::nullopt;
}

} // namespace ozm::editor
