#pragma once

#include "templates/instructions/InstructionSyntax.h"

#include <QList>

class RowNode;

namespace ozm::instructions {

/// @p rows by their values of the codes in @p by: numbers by their size, then texts, then rows without a value. Rows of
/// the same value stand in the order of the next code; at last they keep their order.
[[nodiscard]] QList<RowNode *> sorted(const QList<RowNode *> &rows, const QList<SortKey> &by);

} // namespace ozm::instructions
