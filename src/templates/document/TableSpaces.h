#pragma once

class QTextDocument;

namespace ozm::editor {

/// Gives each table of @p document at least the space that the lines beside it have on that side: the toolkit's layout
/// leaves theirs out beside a table. Nothing of it is written into a source.
void spaceTables(QTextDocument &document);

} // namespace ozm::editor
