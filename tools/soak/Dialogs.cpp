#include "Dialogs.h"

#include <QApplication>
#include <QEvent>
#include <QPointer>
#include <QProgressDialog>
#include <QTimer>

namespace soak {

namespace {

void answerDialog(const QPointer<QDialog> &dialog, const Dialogs::Answer &answer)
{
    // As the screen would have it painted.
    (void)dialog->grab();
    if (answer)
        answer(dialog);
    if (dialog && dialog->isVisible())
        dialog->reject();
    // One that refuses to be closed in the usual way.
    if (dialog && dialog->isVisible())
        dialog->done(QDialog::Rejected);
}

} // namespace

Dialogs::Dialogs()
{
    qApp->installEventFilter(this);
}

bool Dialogs::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::Show || event->spontaneous())
        return false;
    auto *dialog = qobject_cast<QDialog *>(watched);
    if (!dialog || qobject_cast<QProgressDialog *>(dialog))
        return false;
    Answer answer;
    if (!m_answers.empty()) {
        answer = m_answers.front();
        m_answers.pop();
    }
    ++m_opened;
    const QPointer<QDialog> guard(dialog);
    QTimer::singleShot(0, dialog, [guard, answer] { answerDialog(guard, answer); });
    return false;
}

} // namespace soak
