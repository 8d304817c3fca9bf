#pragma once

#include <ozm_common_stable/Error.h>

#include <QByteArray>
#include <QString>

namespace workbench {

class AuditTrail;

/**
 * The trail as a JSON document: an array of entries, each with its record's members, its id, kind, time, user,
 * the error of a step that did not succeed, and its children.
 *
 * A record that this version does not understand is under "record", byte for byte, when it is JSON, and
 * under "recordBase64" otherwise.
 */
[[nodiscard]] QByteArray auditTrailJson(const AuditTrail &trail);

/// Writes that document to @p path, replacing what is there.
ozm::Error writeAuditTrailJson(const AuditTrail &trail, const QString &path);

} // namespace workbench
