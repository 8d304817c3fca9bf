#pragma once

#include <ozm_common_stable/Error.h>
#include <ozm_widgets/ozm_widgets_export.h>

#include <QByteArray>
#include <QString>

class QSaveFile;

namespace ozm {

/// Replaces the file at @p path by @p bytes, all of them or none. Error as of commitWhole().
[[nodiscard]] OZM_WIDGETS_EXPORT Error writeWhole(const QString &path, const QByteArray &bytes);

/**
 * Puts what was written to @p file in the place of the former file, once all of it is on the disk.
 *
 * QSaveFile::commit() alone passes over a disk that fills up with the last bytes, which are still in its buffer then,
 * and over one that fails while it stores them.
 *
 *     QSaveFile file(path);
 *     if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
 *         return notWritten(file.errorString());
 *     if (ozm::Error error = ozm::commitWhole(file); error.hasError())
 *         return notWritten(error.errorMessage());
 *
 * Code 4, with the system's reason alone as its text; the former file is then there as it was. For any thread.
 */
[[nodiscard]] OZM_WIDGETS_EXPORT Error commitWhole(QSaveFile &file);

} // namespace ozm
