#pragma once

#include <ozm_widgets/OzmMessageBoxSignal.h>
#include <ozm_widgets/ozm_widgets_export.h>

#include <QMessageBox>

namespace ozm {

/**
 * A message box that knows which message it shows.
 *
 * Each time it is shown, and visible, OzmCoreApplication::ozmMessageBoxShown() says so from the box's event
 * loop: there a box can be looked at, and answered. Applications mostly ask for boxes through OZMStyle, from
 * any thread; this class itself is for the GUI thread.
 */
class OZM_WIDGETS_EXPORT OzmMessageBox : public QMessageBox
{
    Q_OBJECT

public:
    explicit OzmMessageBox(QWidget *parent = nullptr);
    explicit OzmMessageBox(OzmMessageBoxSignal signal, QWidget *parent = nullptr);

    /// Which message the box shows.
    [[nodiscard]] OzmMessageBoxSignal signal() const { return m_signal; }

    /// Opens the detailed text, if there is one; opened, it stays open.
    void showDetailsIfPresent();

protected:
    void showEvent(QShowEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void announce(int show);
    void drawIcon();
    /// A text that is longer than the screen scrolls, so that the buttons below it can be reached.
    void keepOnScreen();

    OzmMessageBoxSignal m_signal;
    int m_shows = 0;
};

} // namespace ozm
