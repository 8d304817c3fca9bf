#pragma once

#include "internal/FolderReader.h"

#include <QList>
#include <QString>

#include <functional>

namespace ozm::msreader::internal {

/// What detectors need to know of a folder's direct entries; small however many files there are.
struct FolderListing
{
    struct Entry
    {
        QString name;
        EntryKind kind;
    };

    enum class Answer
    {
        No,
        Yes,
        Ask ///< Only the disk can tell.
    };

    bool isFolder = false;   ///< Whether there is a folder of this name, readable or not.
    bool isComplete = false; ///< Whether every entry was seen.
    QList<Entry> folders;    ///< Those that are, or may lead to, folders.
    QList<Entry> others;     ///< The other entries, unless there are very many.
    bool keptAllOthers = true;

    /// Whether there is a file of this name. No only when a file system of whatever kind could not find one.
    [[nodiscard]] Answer holdsFile(const QString &name) const;
};

/// Sees an entry that is, or may lead to, a folder as soon as it is read; true ends the reading.
using FolderVisitor = std::function<bool(const FolderListing::Entry &)>;

[[nodiscard]] FolderListing listFolder(const QString &folder, const FolderVisitor &visit = {});

/// Whether @p entry of @p folder leads to a folder.
[[nodiscard]] bool leadsToFolder(const QString &folder, const FolderListing::Entry &entry);

} // namespace ozm::msreader::internal
