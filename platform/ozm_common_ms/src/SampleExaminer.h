#pragma once

#include <ozm_common_ms/MsDataSearchOptions.h>

namespace ozm::msreader {

/// Whether a file, or a folder, of this name can be data at all. Looks at the text only.
[[nodiscard]] bool canBeData(const QString &path, MsDataFileInfo::Kind kind);

/// Everything that is known of @p path as data, except a folder's size; no data when @p kind is not the
/// path's own.
[[nodiscard]] MsDataFileInfo examine(const QString &path, MsDataFileInfo::Kind kind,
                                     MsDataFileInfo::CheckLevel level);

/// The kind of what is at @p path, links followed; None for what is neither file nor folder.
[[nodiscard]] MsDataFileInfo::Kind kindOf(const QString &path);

} // namespace ozm::msreader
