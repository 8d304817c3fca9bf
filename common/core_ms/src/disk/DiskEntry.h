#pragma once

#include <ozm_widgets/EntryKind.h>

#include <QString>

namespace ozm::disk {

/// The reason why the system did not answer a question about a path.
enum class Obstacle
{
    None,
    Missing,
    Closed, ///< The rights of the path, or of a folder above it, forbid the question.
    TooLong,
    LinkLoop,
    NotText,      ///< The name cannot be written in the system's encoding, or a path cannot hold it.
    TooManyOpen,  ///< This process, or the system, has no file handle left.
    NotAnswering, ///< Any other failure, such as that of a disk or of a connection.
};

/// The answer to one question about a path.
struct DiskEntry
{
    EntryKind kind = EntryKind::Missing;
    qint64 size = -1; ///< In bytes; of files only.
    Obstacle obstacle = Obstacle::Missing;
};

/// Asks for @p path, links followed, in one system call. Safe from any thread; blocks on no pipe and writes
/// no log. Resource paths (":/...") and URLs are not looked up.
[[nodiscard]] DiskEntry entryAt(const QString &path);

[[nodiscard]] EntryKind kindAt(const QString &path);

/// @p path without the slashes at its end, by which no name ends.
[[nodiscard]] QString withoutSlashAtEnd(const QString &path);

#ifdef Q_OS_UNIX
[[nodiscard]] Obstacle obstacleOf(int systemError);
#endif

} // namespace ozm::disk
