#pragma once

#include <ozm_audit_widgets/TrailFilter.h>

class QWidget;

namespace ozm::audit {

/// Asks for a range of time in UTC; false when the user cancels.
[[nodiscard]] bool askTimeRange(QWidget *parent, qint64 &fromMs, qint64 &untilMs);
[[nodiscard]] bool askWorkingHours(QWidget *parent, WorkingHours &hours);

} // namespace ozm::audit
