#pragma once

#include <ozm_common_stable/Error.h>

namespace workbench {

class SqlConnection;

/**
 * The one table of an audit file and its guards.
 *
 * Brings the file of @p connection into use: an empty file gets the table; any other must be an audit trail
 * of a version this program knows, whole, and with the triggers that keep it append-only. An error tells
 * the user why the file is not used; the file is then as it was.
 */
[[nodiscard]] ozm::Error openAuditSchema(SqlConnection &connection);

/// Refuses a file that is not marked as an audit trail, or marked by a newer version.
[[nodiscard]] ozm::Error checkAuditMark(SqlConnection &connection);

} // namespace workbench
