#pragma once

#include <ozm_common_stable/Error.h>

#include <QString>

namespace ozm::audit {

/// Packs all that is in @p folder into the new file @p path, below a folder named after the file.
[[nodiscard]] Error packFolder(const QString &folder, const QString &path);

} // namespace ozm::audit
