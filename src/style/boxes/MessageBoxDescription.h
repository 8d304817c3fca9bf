#pragma once

#include <ozm_widgets/DisplayString.h>
#include <ozm_widgets/OzmMessageBoxSignal.h>

#include <QMap>
#include <QMessageBox>

#include <functional>
#include <optional>

namespace ozm {

class OzmMessageBox;

/// The contents of a message box; every way to ask for a box comes down to this.
struct MessageBoxDescription
{
    QMessageBox::Icon icon;
    OzmMessageBoxSignal signal;
    QString title;
    DisplayString text;
    QMessageBox::StandardButtons buttons = QMessageBox::Ok;
    QMessageBox::StandardButton defaultButton = QMessageBox::NoButton;
    QString detailedText = {};
    QMap<QMessageBox::StandardButton, QString> buttonTexts = {};
    QMessageBox::StandardButton escapeButton = QMessageBox::NoButton;
    bool isAbout = false;

    /// The answer when the box cannot be shown.
    [[nodiscard]] QMessageBox::StandardButton answerUnshown() const;
    /// The answer of a warning over a @p parent that is not shown on screen, which is written to the log
    /// instead; none for all others.
    [[nodiscard]] std::optional<QMessageBox::StandardButton> answerOffScreen(const QWidget *parent) const;
};

/// The button for the code that a box ended with; a box closed without a button was canceled.
[[nodiscard]] QMessageBox::StandardButton answerOf(int code);

/// Builds and runs the box, on the GUI thread whichever this one is.
[[nodiscard]] QMessageBox::StandardButton runMessageBox(const MessageBoxDescription &description,
                                                        QWidget *parent);

/// Calls @p work on the thread of @p parent and waits; the answer of a box that was not shown when that was
/// not possible. Off the GUI thread @p parent may be dying, or dead.
[[nodiscard]] QMessageBox::StandardButton
askOnThreadOf(QWidget *parent, const MessageBoxDescription &description,
              const std::function<QMessageBox::StandardButton()> &work);

/// Builds and opens the box, and does not wait; see OZMStyle::openWarning().
void openMessageBox(const MessageBoxDescription &description, QWidget *parent, QObject *context,
                    const std::function<void(QMessageBox::StandardButton)> &answered);

} // namespace ozm
