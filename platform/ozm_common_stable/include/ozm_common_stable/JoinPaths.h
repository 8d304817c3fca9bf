#pragma once

#include <ozm_common_stable/ozm_common_stable_export.h>

#include <QString>

namespace ozm {

/// @p folder and @p name with one @p separator between them, whether or not either brings its own. An empty
/// side gives the other as it is.
[[nodiscard]] OZM_COMMON_STABLE_EXPORT QString joinPaths(const QString &folder, const QString &name,
                                                         QChar separator = u'/');

} // namespace ozm
