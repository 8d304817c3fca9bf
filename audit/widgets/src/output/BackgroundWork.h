#pragma once

#include <ozm_audit/Verification.h>

#include <QString>

#include <functional>

class QWidget;

namespace ozm::audit {

/// Runs @p work on a thread of its own, behind a window that shows how far it is and can cancel it. Returns when
/// the work has ended; the user can do nothing else in the application meanwhile.
void runWithProgress(QWidget *parent, const QString &title,
                     const std::function<void(const Progress &)> &work);

} // namespace ozm::audit
