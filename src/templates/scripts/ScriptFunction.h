#pragma once

#include "templates/scripts/ScriptLexer.h"

namespace ozm {

/**
 * An expression for a function that does what @p code does, and returns the value of the expression with which it ends.
 * Empty when it does not end with one, or that is in doubt.
 *
 * The value of a script is that of its last statement, whatever stands before. Lines stay what they are.
 *
 * @param tokens those of @p code.
 */
[[nodiscard]] QString functionOf(const QString &code, const std::vector<ScriptToken> &tokens);

} // namespace ozm
