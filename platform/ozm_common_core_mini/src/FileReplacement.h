#pragma once

#include <QByteArray>
#include <QString>

namespace ozm {

/**
 * Replaces the content of the file at @p path by @p bytes, or makes the file; false leaves it as it was.
 *
 * The file stays the same file where a new one in its place would be another: with hard links, or of another
 * owner or group; also when nothing can be made in its folder. A device is written to. Folders and pipes are
 * refused, and so is a name with a null character, which the system would cut.
 */
[[nodiscard]] bool replaceFile(const QString &path, const QByteArray &bytes);

} // namespace ozm
