#pragma once

#include <QString>

namespace ozm {

[[nodiscard]] QString adjustBrukerFilenPathToFolderPath(const QString &path, bool *changed);

} // namespace ozm
