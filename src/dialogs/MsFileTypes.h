#pragma once

#include <ozm_qt_shared_libs_core/FileTypes.h>

namespace ozm {

using FileTypeRef = ExtendableEnumRef<FileTypes::FileTypeData>;

// The file types of mass-spectrometry data, which are registered when the library is loaded.

/// "MS": files and folders.
[[nodiscard]] FileTypeRef msFileType();
/// "MS_DIR": folders.
[[nodiscard]] FileTypeRef msFolderType();

} // namespace ozm
