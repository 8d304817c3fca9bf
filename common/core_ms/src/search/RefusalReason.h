#pragma once

#include "disk/DiskEntry.h"

#include <QString>

namespace ozm::msreader {

/// Why no format was found in the data at @p path, where @p entry was found, as a sentence for the user.
[[nodiscard]] QString refusalReason(const QString &path, const disk::DiskEntry &entry);

/// Why @p folder could not be read, as a sentence for the user.
[[nodiscard]] QString folderReason(disk::Obstacle obstacle);

/// Why an entry whose name is not text is passed over.
[[nodiscard]] QString nameReason();

} // namespace ozm::msreader
