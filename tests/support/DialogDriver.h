#pragma once

#include <QApplication>
#include <QDialog>
#include <QPointer>
#include <QTimer>
#include <QtTest>

#include <functional>

namespace ozm::test {

/**
 * Works on the dialogs that open while it lives: the first function on the first dialog, and so on.
 *
 *     DialogDriver driver({[](QDialog *dialog) { dialog->reject(); }});
 *     const QString path = FileDialog::getSaveFileName(...);
 *     QCOMPARE(driver.opened(), 1);
 *
 * A dialog that is still open after its function, or that has none, fails the test and is closed, so that
 * nothing hangs.
 */
class DialogDriver : public QObject
{
public:
    using Work = std::function<void(QDialog *)>;

    explicit DialogDriver(const QList<Work> &works)
        : m_works(works)
    {
        qApp->installEventFilter(this);
    }
    ~DialogDriver() override { qApp->removeEventFilter(this); }

    [[nodiscard]] int opened() const { return m_opened; }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        auto *dialog = qobject_cast<QDialog *>(watched);
        if (event->type() == QEvent::Show && dialog && !event->spontaneous()) {
            const QPointer<QDialog> guard(dialog);
            const Work work = m_works.value(m_opened);
            ++m_opened;
            QTimer::singleShot(0, dialog, [guard, work] { drive(guard, work); });
        }
        return false;
    }

protected:
    /// For drivers that hear of their dialogs in another way.
    DialogDriver() = default;

    void workOn(QDialog *dialog, const Work &work)
    {
        ++m_opened;
        drive(dialog, work);
    }

private:
    static void drive(const QPointer<QDialog> &dialog, const Work &work)
    {
        if (work)
            work(dialog);
        if (!dialog || !dialog->isVisible())
            return;
        dialog->done(QDialog::Rejected);
        QFAIL("a dialog was left open");
    }

    const QList<Work> m_works = {};
    int m_opened = 0;
};

} // namespace ozm::test
