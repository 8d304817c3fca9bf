#include <ozm_widgets/db/common/AuditTrailMonitor.h>

namespace ozm {

AuditTrailMonitor::AuditTrailMonitor(QObject *parent)
    : QObject(parent)
{}

AuditTrailMonitor::~AuditTrailMonitor() = default;

} // namespace ozm
