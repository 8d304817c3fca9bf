#pragma once

#include <QtGlobal>

namespace ozm {

/// Bounds the memory that this process takes beyond what it has now to @p bytes, as far as the system does that;
/// not at all when zero. A process that wants more ends, without a copy of its memory on the disk.
void limitProcess(quint64 bytes);

} // namespace ozm
