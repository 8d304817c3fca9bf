#pragma once

#include <ozm_common_stable/Error.h>
#include <ozm_widgets/DisplayString.h>
#include <ozm_widgets/OzmMessageBoxSignal.h>

#include <QMap>
#include <QMessageBox>
#include <QString>

#include <optional>

namespace ozm {

/**
 * The contents of a message box, for OZMStyle::ask() and OZMStyle::open(): name what differs from the usual.
 *
 *     const auto answer = OZMStyle::ask(this, {.icon = QMessageBox::Question,
 *                                              .text = tr("Delete the run?"),
 *                                              .buttons = QMessageBox::Yes | QMessageBox::No,
 *                                              .defaultButton = QMessageBox::No});
 *     if (answer == QMessageBox::Yes)
 *         remove(run);
 *
 * A value, to be kept and changed as one likes.
 */
struct MessageBoxDescription
{
    /// The kind of the box, too: what it answers when it cannot be shown depends on it; see OZMStyle.
    QMessageBox::Icon icon = QMessageBox::Information;
    /// Tells the message to those who watch boxes.
    OzmMessageBoxSignal signal = OzmMessageBoxSignal::Unspecified;
    /// Empty stands for the kind's own, such as "Warning".
    QString title = {};
    /// The message, plain or rich.
    DisplayString text = QString();
    /// None at all stands for Ok.
    QMessageBox::StandardButtons buttons = QMessageBox::Ok;
    QMessageBox::StandardButton defaultButton = QMessageBox::NoButton; ///< The one that Enter presses.
    QString detailedText = {}; ///< Shown on demand; no button for it when empty.

    /// An empty text leaves the button's usual one; buttons that the box does not have are passed over.
    QMap<QMessageBox::StandardButton, QString> buttonTexts = {};
    /// The button that Esc presses; NoButton leaves that to the toolkit.
    QMessageBox::StandardButton escapeButton = QMessageBox::NoButton;
    /// Joins the text by its message, or by its code's text when it has none.
    std::optional<Error> error = {};
};

} // namespace ozm
