#pragma once

#include <QString>

class QTextCursor;

namespace ozm::editor {

/// The source of what @p selection holds; of one line without the line's own tag. Read by itself, it gives the same text.
[[nodiscard]] QString selectedSource(const QTextCursor &selection);

/// Removes the empty line of @p line. The one behind it keeps its looks, and stays an item of its list.
void removeEmptyLine(QTextCursor &line);

} // namespace ozm::editor
