#pragma once

#include "support/DialogDriver.h"

#include <ozm_widgets/OzmCoreApplication.h>
#include <ozm_widgets/OzmMessageBox.h>

#include <QPushButton>

namespace ozm::test {

/// Works on every box while it is being shown, wherever it was asked for, and on no other dialog.
class BoxDriver : public DialogDriver
{
public:
    explicit BoxDriver(const std::function<void(OzmMessageBox *)> &work)
    {
        connect(OzmCoreApplication::instance(), &OzmCoreApplication::ozmMessageBoxShown, this,
                [this, work](OzmMessageBox *box) { workOn(box, [work, box](QDialog *) { work(box); }); });
    }
};

inline void press(OzmMessageBox *box, QMessageBox::StandardButton button)
{
    QVERIFY(box->button(button));
    box->button(button)->click();
}

} // namespace ozm::test
