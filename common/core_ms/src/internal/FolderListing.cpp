#include "internal/FolderListing.h"

#include <ozm_common_core_mini/PathUtils.h>

#include <algorithm>

namespace ozm::msreader::internal {

namespace {

// Names are kept to spare questions about files that are not there. Past this many it is cheaper to ask.
constexpr qsizetype kMostOthersKept = 64;

void keepOther(FolderListing &listing, const FolderReader &reader)
{
    if (listing.others.size() < kMostOthersKept)
        listing.others.append({reader.name(), reader.kind()});
    else
        listing.keptAllOthers = false;
}

bool isAscii(const QString &text)
{
    return std::ranges::all_of(text, [](QChar c) { return c.unicode() < 0x80; });
}

} // namespace

FolderListing::Answer FolderListing::holdsFile(const QString &name) const
{
    if (!isFolder)
        return Answer::No;
    const auto isThatFile = [&name](const Entry &entry) {
        return entry.kind == EntryKind::File && entry.name == name;
    };
    if (std::ranges::any_of(others, isThatFile))
        return Answer::Yes;
    if (!isComplete || !keptAllOthers)
        return Answer::Ask;
    // Some file systems do not tell letter case apart, nor the ways to write an accent: such names are asked.
    const auto mayBeMeant = [&name](const Entry &entry) {
        return name.compare(entry.name, Qt::CaseInsensitive) == 0;
    };
    const bool mayHold =
        !isAscii(name) || std::ranges::any_of(others, mayBeMeant) || std::ranges::any_of(folders, mayBeMeant);
    return mayHold ? Answer::Ask : Answer::No;
}

FolderListing listFolder(const QString &folder, const FolderVisitor &visit)
{
    FolderListing listing;
    FolderReader reader(folder);
    while (reader.next()) {
        if (reader.kind() == EntryKind::File || reader.kind() == EntryKind::Other) {
            keepOther(listing, reader);
            continue;
        }
        listing.folders.append({reader.name(), reader.kind()});
        if (visit && visit(listing.folders.constLast()))
            break;
    }
    listing.isFolder = reader.isFolder();
    listing.isComplete = reader.isComplete();
    return listing;
}

bool leadsToFolder(const QString &folder, const FolderListing::Entry &entry)
{
    return entry.kind == EntryKind::Folder || PathUtils::isDirectory(folder + u'/' + entry.name);
}

} // namespace ozm::msreader::internal
