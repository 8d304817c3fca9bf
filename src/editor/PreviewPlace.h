#pragma once

#include <QStringView>

namespace ozm::editor {

/// The position in a report that shows what stands at @p caret in @p text, the template or its source: that of the same
/// words, of which the template may have fewer than the report.
[[nodiscard]] qsizetype placeInReport(QStringView text, qsizetype caret, QStringView report);

} // namespace ozm::editor
