#pragma once

#include <QString>

namespace ozm {

enum class SaveProbe
{
    Writable,
    Locked,      ///< There is something already, which cannot be opened for writing.
    NotCreatable ///< There is nothing yet, and nothing can be made.
};

/**
 * Tries to write the file at @p path: opens it, or makes it and takes it away again.
 *
 * Leaves the disk as it was. Never opens a pipe, never makes the target of a link and then removes the link,
 * and never removes a file that somebody else made in the meantime.
 */
[[nodiscard]] SaveProbe probeSave(const QString &path);

/// The sentence for the user about a file that cannot be written; @p reason, the system's own, may be empty.
[[nodiscard]] QString notWrittenText(const QString &path, const QString &reason = {});

/// True for a pipe: to open it for writing is to wait for a reader, without end when none comes.
[[nodiscard]] bool mayBlock(const QString &path);

} // namespace ozm
