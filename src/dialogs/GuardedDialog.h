#pragma once

#include <QDialog>
#include <QMessageBox>
#include <QPointer>

namespace ozm {

/**
 * A modal dialog on the heap, where its parent may delete it while it runs; that counts as canceled.
 *
 *     GuardedDialog dialog(new SpectrumFileDialog(parent));
 *     if (dialog.exec())
 *         use(dialog->selectedFiles());
 */
template <typename Dialog>
class GuardedDialog
{
public:
    explicit GuardedDialog(Dialog *dialog)
        : m_dialog(dialog)
    {}
    ~GuardedDialog() { delete m_dialog.data(); }
    Q_DISABLE_COPY_MOVE(GuardedDialog)

    Dialog *operator->() const { return m_dialog.data(); }

    /// True when the dialog ended with anything but rejection, and is still there to be asked.
    [[nodiscard]] bool exec() { return m_dialog->exec() != QDialog::Rejected && m_dialog; }

private:
    const QPointer<Dialog> m_dialog;
};

/// QMessageBox::warning() with an Ok button, which outlives neither its parent nor its caller. The text is
/// plain: file names may look like markup.
inline void showWarning(QWidget *parent, const QString &title, const QString &text)
{
    const QPointer<QMessageBox> box =
        new QMessageBox(QMessageBox::Warning, title, text, QMessageBox::Ok, parent);
    box->setTextFormat(Qt::PlainText);
    box->exec();
    delete box.data();
}

} // namespace ozm
