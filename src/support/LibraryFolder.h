#pragma once

#include <QStringList>

namespace ozm {

/// The folder that this library was loaded from; empty when the system does not say.
[[nodiscard]] QString libraryFolder();

/// Where this library's own plug-ins may be, in the order in which to look: below its folder, in the build
/// tree as after an install, and below Qt's folders for plug-ins.
[[nodiscard]] QStringList pluginFolders();

} // namespace ozm
