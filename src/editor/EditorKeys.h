#pragma once

class QEvent;
class QKeyEvent;

namespace ozm::editor {

/// Undo and redo, which the window does for its views.
[[nodiscard]] bool isHistoryKey(const QKeyEvent &event);
[[nodiscard]] bool isHistoryShortcut(const QEvent *event);

/// True when a text field changes its text at this key, other than by undoing.
[[nodiscard]] bool changesText(const QKeyEvent &event);

} // namespace ozm::editor
