#pragma once

#include <ozm_widgets/MessageBoxDescription.h>

#include <functional>
#include <optional>

namespace ozm {

class OzmMessageBox;

/// Changes a box that is built before it is shown.
using BoxTouch = void (*)(OzmMessageBox &box);

/// The application's icon beside a text that can be selected and whose links open.
void makeAboutBox(OzmMessageBox &box);

/// The answer of a warning over a @p parent that is not shown on screen, which is written to the log
/// instead; none for all others.
[[nodiscard]] std::optional<QMessageBox::StandardButton>
answerOffScreen(const MessageBoxDescription &description, const QWidget *parent);

/// Builds and runs the box, on the GUI thread whichever this one is.
[[nodiscard]] QMessageBox::StandardButton runMessageBox(const MessageBoxDescription &description,
                                                        QWidget *parent, BoxTouch touch = nullptr);

/// Calls @p work on the thread of @p parent and waits; the answer of a box that was not shown when that was
/// not possible. Off the GUI thread @p parent may be dying, or dead.
[[nodiscard]] QMessageBox::StandardButton
askOnThreadOf(QWidget *parent, const MessageBoxDescription &description,
              const std::function<QMessageBox::StandardButton()> &work);

/// Builds and opens the box, and does not wait; see OZMStyle::open().
void openMessageBox(const MessageBoxDescription &description, QWidget *parent, QObject *context,
                    const std::function<void(QMessageBox::StandardButton)> &answered);

} // namespace ozm
