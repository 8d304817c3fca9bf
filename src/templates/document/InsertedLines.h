#pragma once

class QTextCursor;
class QTextDocument;

namespace ozm::editor {

/**
 * Puts @p lines, which were read from a source, at @p cursor, which selects nothing.
 *
 * The first line goes on with what stands before the cursor, the last one with what stands behind it. The first line has
 * its own looks only where nothing stands before it. Items go on with the list of the same kind above or below them.
 */
void insertLines(QTextCursor &cursor, const QTextDocument &lines);

} // namespace ozm::editor
