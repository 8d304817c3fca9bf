#pragma once

#include <QString>

#include <memory>

namespace ozm::msreader::internal {

/// What the listing of a folder tells about an entry without asking again.
enum class EntryKind
{
    Folder,
    File,
    Other,    ///< A device, a pipe or a socket.
    Unsettled ///< A link, or a file system whose listings do not tell.
};

/**
 * One pass over the entries of a folder, hidden ones too, in the order in which the system lists them.
 *
 * Left out are "." and "..", and entries whose name is no text (an invalid byte sequence): no path could name
 * them. A folder that vanishes or cannot be read any further ends the pass early. Nothing but the listing is
 * asked of the disk, and large folders are read in large pieces.
 *
 *     FolderReader reader(folder);
 *     while (reader.next())
 *         use(reader.name(), reader.kind());
 */
class FolderReader
{
public:
    explicit FolderReader(const QString &folder);
    ~FolderReader();
    Q_DISABLE_COPY_MOVE(FolderReader)

    /// Moves to the next entry; false at the end.
    bool next();

    [[nodiscard]] QString name() const;
    [[nodiscard]] EntryKind kind() const;

    /// False when there is no folder of this name, as opposed to one that may not be read.
    [[nodiscard]] bool isFolder() const;
    /// After the pass: whether every entry was seen.
    [[nodiscard]] bool isComplete() const;

private:
    class Private;
    const std::unique_ptr<Private> d;
};

} // namespace ozm::msreader::internal
