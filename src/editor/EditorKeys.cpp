#include "editor/EditorKeys.h"

#include <QKeyEvent>

#include <algorithm>
#include <array>

namespace ozm::editor {

namespace {

constexpr std::array kChangingKeys{Qt::Key_Return, Qt::Key_Enter, Qt::Key_Tab, Qt::Key_Backspace,
                                   Qt::Key_Delete};
constexpr std::array kChangingShortcuts{QKeySequence::Cut,
                                        QKeySequence::Paste,
                                        QKeySequence::Delete,
                                        QKeySequence::DeleteEndOfLine,
                                        QKeySequence::DeleteEndOfWord,
                                        QKeySequence::DeleteStartOfWord};

} // namespace

bool isHistoryKey(const QKeyEvent &event)
{
    return event.matches(QKeySequence::Undo) || event.matches(QKeySequence::Redo);
}

bool isHistoryShortcut(const QEvent *event)
{
    return event->type() == QEvent::ShortcutOverride && isHistoryKey(*static_cast<const QKeyEvent *>(event));
}

bool changesText(const QKeyEvent &event)
{
    return (!event.text().isEmpty() && event.text().at(0).isPrint()) ||
           std::find(kChangingKeys.begin(), kChangingKeys.end(), event.key()) != kChangingKeys.end() ||
           std::any_of(kChangingShortcuts.begin(), kChangingShortcuts.end(),
                       [&event](QKeySequence::StandardKey key) { return event.matches(key); });
}

} // namespace ozm::editor
