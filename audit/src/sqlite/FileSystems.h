#pragma once

#include <ozm_audit/ozm_audit_export.h>
#include <ozm_common_stable/Error.h>

#include <QByteArray>
#include <QString>

namespace ozm::audit {

/// Tells whether file systems of this type, as the system names it, keep SQLite's locks and syncs only in
/// part: those of networks, and those that another program or another machine serves.
[[nodiscard]] OZM_AUDIT_EXPORT bool isUntrustedFileSystem(const QByteArray &type);

/// Refuses a place on such a file system, NotAllowed, and names the way out.
[[nodiscard]] Error checkFileSystem(const QString &path);

} // namespace ozm::audit
