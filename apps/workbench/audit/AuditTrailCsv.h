#pragma once

#include <ozm_common_stable/Error.h>

#include <QString>

namespace workbench {

class AuditTrail;

/// Writes the trail as a table to the CSV file at @p path: a line an entry, those below another right after
/// it and with its id as their parent.
[[nodiscard]] ozm::Error writeAuditTrailCsv(const AuditTrail &trail, const QString &path);

} // namespace workbench
