#pragma once

#include <ozm_audit/Store.h>

namespace workbench {

/**
 * Opens the workbench's audit trail, which several workbenches may use at once.
 *
 * @p given is a file or the address of a store. Where it is empty, the trail is "trail.sqlite" in @p folder; a new
 * one begins with the entries of an "audit.sqlite" there, the trail of earlier versions, which stays as it
 * is. @p user is recorded as the one who took it over.
 */
[[nodiscard]] ozm::Result<std::unique_ptr<ozm::audit::Store>>
openTrail(const QString &given, const QString &folder, const QString &user);

} // namespace workbench
