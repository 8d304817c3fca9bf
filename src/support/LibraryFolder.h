#pragma once

#include <QStringList>

namespace ozm {

// Compiled into each library that has plug-ins, so that each asks for its own place.

/// The folder that this library was loaded from; empty when the system does not say.
[[nodiscard]] QString libraryFolder();

/// Where the plug-ins of this library, called @p name, may be, in the order in which to look: below its folder, in the build
/// tree as after an install, and below Qt's folders for plug-ins.
[[nodiscard]] QStringList pluginFolders(QLatin1StringView name = QLatin1StringView("ozm_widgets"));

/// Where the program @p program of this library may be, in the order in which to look: beside the plug-ins, and on
/// macOS in the Helpers of the application, too.
[[nodiscard]] QStringList helperPrograms(QLatin1StringView program,
                                         QLatin1StringView name = QLatin1StringView("ozm_widgets"));

} // namespace ozm
