#pragma once

#include <ozm_qt_shared_libs_core/FileTypes.h>

namespace ozm {

// The file types of mass-spectrometry data, which are registered when the library is loaded.

/// "MS": files and folders.
[[nodiscard]] FileTypes::Ref msFileType();
/// "MS_DIR": folders.
[[nodiscard]] FileTypes::Ref msFolderType();

} // namespace ozm
