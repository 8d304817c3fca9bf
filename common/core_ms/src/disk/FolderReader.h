#pragma once

#include "disk/DiskEntry.h"

#include <QString>

#include <memory>
#include <optional>

namespace ozm::disk {

/**
 * One pass over the entries of a folder, hidden ones too, in the order in which the system lists them.
 *
 * Left out are "." and "..". A folder that vanishes or cannot be read any further ends the pass early; one
 * that may be listed but not entered counts as unreadable, as nothing can be asked about its entries. Nothing
 * but the listing is asked of the disk, and large folders are read in large pieces.
 *
 *     FolderReader reader(folder);
 *     while (reader.next())
 *         use(reader.name(), reader.kind());
 */
class FolderReader
{
public:
    /// How much of a listing is asked for at first. Folders of a few files are read whole either way.
    enum class FirstPiece
    {
        Usual,
        Small ///< For a caller who gives up when the folder is not a small one.
    };

    explicit FolderReader(const QString &folder, FirstPiece piece = FirstPiece::Usual);
    ~FolderReader();
    Q_DISABLE_COPY_MOVE(FolderReader)

    /// Moves to the next entry; false at the end.
    bool next();
    /// The same without the entries whose names are not text.
    bool nextNamed();

    /// Returns false for a name that is an invalid sequence of bytes: no path can name such an entry, and
    /// name() shows it with replacement characters.
    [[nodiscard]] bool isText() const;
    [[nodiscard]] QString name() const;

    /// The kind that the listing tells; nothing for a link, and on file systems whose listings do not tell.
    [[nodiscard]] std::optional<EntryKind> kind() const;

    /// One question about the entry that costs less than one about its path.
    [[nodiscard]] DiskEntry entry() const;
    [[nodiscard]] bool isLink() const;

    /// False when there is no folder of this name, as opposed to one that may not be read.
    [[nodiscard]] bool isFolder() const;
    /// After the pass: returns true when every entry was seen.
    [[nodiscard]] bool isComplete() const;
    /// After the pass: the reason why it is not complete.
    [[nodiscard]] Obstacle obstacle() const;

    /// Returns true when a piece of the listing was used up and did not hold the whole folder.
    [[nodiscard]] bool isPieceFull() const;

private:
    class Private;
    const std::unique_ptr<Private> d;
};

} // namespace ozm::disk
