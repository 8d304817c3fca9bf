#pragma once

#include "templates/instructions/InstructionSyntax.h"

#include <QString>

namespace ozm::instructions {

/// The instruction in a few words on screen.
[[nodiscard]] QString captionOf(const Instruction &instruction);

/// The test as it is chosen, with "is" or "has".
[[nodiscard]] QString testName(Test test);
[[nodiscard]] QString totalName(Total total);

} // namespace ozm::instructions
