#include <ozm_widgets/db/common/AuditTrailLoggingInterface.h>

namespace ozm {

AuditTrailLoggingInterface::~AuditTrailLoggingInterface() = default;

QSharedPointer<OperationLogItem> AuditTrailLoggingInterface::logEvent(QSharedPointer<OperationLogItem> parent,
                                                                      const OperationLogItemData &data)
{
    QSharedPointer<OperationLogItem> item = logBeginMacro(parent, data);
    if (!item || item->isNull() || !commitMacro(item))
        return {};
    return item;
}

} // namespace ozm
