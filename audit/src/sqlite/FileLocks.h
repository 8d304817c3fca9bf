#pragma once

class QFile;

namespace ozm::audit {

/// Locks one byte of an open file against other programs, and other QFiles of this one, without waiting.
/// The system frees it when the file is closed or the program dies.
[[nodiscard]] bool tryLock(const QFile &file, long long byte);
void unlock(const QFile &file, long long byte);

} // namespace ozm::audit
