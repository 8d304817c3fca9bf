#pragma once

#include "disk/FolderReader.h"

#include <QList>
#include <QString>

#include <functional>
#include <span>

namespace ozm::disk {

/// The part of a folder's listing that detectors need; small however many files there are.
struct FolderListing
{
    struct Entry
    {
        QString name;
        std::optional<EntryKind> kind;
    };

    enum class Answer
    {
        No,
        Yes,
        Ask ///< Only the disk can tell.
    };

    bool isFolder = false;   ///< There is a folder of this name, readable or not.
    bool isComplete = false; ///< Every entry was seen.
    QList<Entry> folders;    ///< Those that are, or may lead to, folders.
    QList<Entry> others;     ///< The other entries, unless there are very many.
    bool keptAllOthers = true;

    /// Answers No only when a file system of whatever kind could not find a file of this name.
    [[nodiscard]] Answer holdsFile(QLatin1StringView name) const;
    [[nodiscard]] Answer holdsFile(const QString &name) const;

    /// Returns true when no file system could find any of @p names, which are ASCII, among the folders.
    [[nodiscard]] bool lacksFolders(std::span<const QLatin1StringView> names) const;
};

/// Sees an entry as soon as it is read, unless it is one of very many that are not folders; true ends the
/// reading.
using FolderVisitor = std::function<bool(const FolderListing::Entry &)>;

[[nodiscard]] FolderListing listFolder(const QString &folder, const FolderVisitor &visit = {});

/// The same, given up when the folder is not a small one: it is not complete then.
[[nodiscard]] FolderListing listSmallFolder(const QString &folder, const FolderVisitor &visit = {});

/// Only the entries that are, or may lead to, folders.
[[nodiscard]] FolderListing listFoldersIn(const QString &folder);

/// Returns true when @p entry of @p folder, which may be entered, leads to a folder.
[[nodiscard]] bool leadsToFolder(const QString &folder, const FolderListing::Entry &entry);

} // namespace ozm::disk
