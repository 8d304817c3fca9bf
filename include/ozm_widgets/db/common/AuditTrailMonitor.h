#pragma once

#include <ozm_widgets/db/common/OperationLogItemData.h>
#include <ozm_widgets/ozm_widgets_export.h>

#include <QObject>

namespace ozm {

/**
 * Tells when an undo stack's records could not be stored, so that an application can say so or lock itself.
 *
 *     connect(stack->auditTrailMonitor(), &ozm::AuditTrailMonitor::recordNotStored, this,
 *             [this](const ozm::OperationLogItemData &record) { stopEditing(record.toString()); });
 *
 * The stack makes and owns its monitor. Signals come after the warning in the log, while the step is still
 * running: what changes the history has to wait for the event loop. GUI thread.
 */
class OZM_WIDGETS_EXPORT AuditTrailMonitor : public QObject
{
    Q_OBJECT

public:
    explicit AuditTrailMonitor(QObject *parent = nullptr);
    ~AuditTrailMonitor() override;

Q_SIGNALS:
    /// The logger returned no entry for @p record, a command's (with its undo context) or a macro's.
    void recordNotStored(const ozm::OperationLogItemData &record);
    /// The logger could not commit a macro; @p record is that of the macro, or of the one child for it.
    void macroNotCommitted(const ozm::OperationLogItemData &record);
};

} // namespace ozm
