#pragma once

namespace ozm {

/// The kind of the entry at a path on disk, links followed.
enum class EntryKind
{
    Missing, ///< Nothing is there, or the system does not let anybody look.
    File,
    Folder,
    Other ///< A device, a pipe or a socket.
};

} // namespace ozm
