#pragma once

#include <ozm_widgets/OzmCoreApplication.h>
#include <ozm_widgets/OzmMessageBox.h>

#include <QPointer>
#include <QPushButton>
#include <QtTest>

#include <functional>

namespace ozm::test {

/// Works on every box that is shown while it lives. A box that is still open afterwards fails the test, and
/// is closed, so that nothing hangs.
class BoxDriver : public QObject
{
public:
    using Work = std::function<void(OzmMessageBox *)>;

    explicit BoxDriver(const Work &work)
    {
        connect(OzmCoreApplication::instance(), &OzmCoreApplication::ozmMessageBoxShown, this,
                [this, work](OzmMessageBox *box) {
                    ++m_shown;
                    const QPointer<OzmMessageBox> guard(box);
                    work(box);
                    if (!guard || !guard->isVisible())
                        return;
                    guard->done(0);
                    QFAIL("the box was left open");
                });
    }

    [[nodiscard]] int shown() const { return m_shown; }

private:
    int m_shown = 0;
};

inline void press(OzmMessageBox *box, QMessageBox::StandardButton button)
{
    QVERIFY(box->button(button));
    box->button(button)->click();
}

} // namespace ozm::test
