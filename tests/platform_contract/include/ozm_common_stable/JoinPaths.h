#pragma once

#include <QString>

namespace ozm {

[[nodiscard]] QString joinPaths(const QString &folder, const QString &name, QChar separator);

} // namespace ozm
