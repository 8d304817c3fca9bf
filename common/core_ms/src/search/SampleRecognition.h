#pragma once

#include "disk/DiskEntry.h"

#include <ozm_widgets/MsSample.h>

#include <functional>

namespace ozm::msreader {

/// The data at @p path, or why it is refused. The price of a plain file is one system call.
[[nodiscard]] MsSample sampleAt(const QString &path);

/// The same for an entry that a listing has shown: no reason is sought, and files are not measured.
[[nodiscard]] MsSample listedSample(const QString &path, EntryKind kind, bool byNameOnly);

/// The bytes of the file at @p path, or of all files below it; -1 when there is nothing, or on canceling.
[[nodiscard]] qint64 sizeOnDisk(const QString &path, const std::function<bool()> &isCanceled);

} // namespace ozm::msreader
