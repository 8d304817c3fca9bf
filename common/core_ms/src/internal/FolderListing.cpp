#include "internal/FolderListing.h"

#include "internal/FolderReader.h"

#include <ozm_common_core_mini/PathUtils.h>

#include <algorithm>

namespace ozm::msreader::internal {

namespace {

// Names are kept to spare questions about files that are not there. Past this many it is cheaper to ask.
constexpr qsizetype kMostOthersKept = 64;

void keepOther(FolderListing &listing, const FolderReader &reader)
{
    if (listing.others.size() < kMostOthersKept)
        listing.others.append(reader.name());
    else
        listing.keptAllOthers = false;
}

} // namespace

bool FolderListing::mayHold(QStringView name) const
{
    if (!isFolder)
        return false;
    if (!isComplete || !keptAllOthers)
        return true;
    // In any letter case: some file systems do not tell them apart.
    const auto isMeant = [name](QStringView known) { return name.compare(known, Qt::CaseInsensitive) == 0; };
    return std::ranges::any_of(others, isMeant) || std::ranges::any_of(folders, isMeant, &Entry::name);
}

FolderListing listFolder(const QString &folder, const FolderVisitor &visit)
{
    FolderListing listing;
    FolderReader reader(folder);
    while (reader.next()) {
        if (reader.kind() == EntryKind::NoFolder) {
            keepOther(listing, reader);
            continue;
        }
        listing.folders.append({reader.name(), reader.kind() == EntryKind::Folder});
        if (visit && visit(listing.folders.constLast()))
            break;
    }
    listing.isFolder = reader.isFolder();
    listing.isComplete = reader.isComplete();
    return listing;
}

bool leadsToFolder(const QString &folder, const FolderListing::Entry &entry)
{
    return entry.isFolder || PathUtils::isDirectory(folder + u'/' + entry.name);
}

} // namespace ozm::msreader::internal
