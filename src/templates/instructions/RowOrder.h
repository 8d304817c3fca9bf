#pragma once

#include <QList>
#include <QString>

class RowNode;

namespace ozm::instructions {

/// @p rows by their values of the code @p name: numbers by their size, then texts, then rows without a value. Rows of
/// the same value keep their order.
[[nodiscard]] QList<RowNode *> sorted(const QList<RowNode *> &rows, const QString &name, bool isDescending);

} // namespace ozm::instructions
