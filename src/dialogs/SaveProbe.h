#pragma once

class QString;

namespace ozm {

enum class SaveProbe
{
    Writable,
    Locked,      ///< There is something already, which cannot be opened for writing.
    NotCreatable ///< There is nothing yet, and nothing can be made.
};

/**
 * True when the file at @p path could be saved: it is opened for writing, or made and taken away again.
 *
 * Leaves the disk as it was. Never opens what is not a file (a pipe would be waited for), never makes what a
 * link points at and then removes the link, and never removes what somebody else made in the meantime.
 */
[[nodiscard]] SaveProbe probeSave(const QString &path);

} // namespace ozm
