#include "disk/FolderListing.h"

#include <algorithm>

namespace ozm::disk {

namespace {

// Names are kept to spare questions about files that are not there. Past this many it is cheaper to ask.
constexpr qsizetype kMostOthersKept = 64;

bool isOther(const FolderReader &reader)
{
    return reader.kind() == EntryKind::File || reader.kind() == EntryKind::Other;
}

/// Null for one of very many.
const FolderListing::Entry *keep(FolderListing &listing, const FolderReader &reader)
{
    const bool isFolder = !isOther(reader);
    if (!isFolder && listing.others.size() >= kMostOthersKept) {
        listing.keptAllOthers = false;
        return nullptr;
    }
    QList<FolderListing::Entry> &entries = isFolder ? listing.folders : listing.others;
    entries.append({reader.name(), reader.kind()});
    return &entries.constLast();
}

bool isAscii(QLatin1StringView)
{
    return true; // By agreement: the names that detectors look for.
}

bool isAscii(const QString &text)
{
    return std::ranges::all_of(text, [](QChar c) { return c.unicode() < 0x80; });
}

template <typename Name>
FolderListing::Answer fileAmong(const FolderListing &listing, const Name &name)
{
    using Answer = FolderListing::Answer;
    using Entry = FolderListing::Entry;
    if (!listing.isFolder)
        return Answer::No;
    const auto isThatFile = [&name](const Entry &entry) {
        return entry.kind == EntryKind::File && entry.name == name;
    };
    if (std::ranges::any_of(listing.others, isThatFile))
        return Answer::Yes;
    if (!listing.isComplete || !listing.keptAllOthers)
        return Answer::Ask;
    // Some file systems do not tell letter case apart, nor the ways to write an accent: such names are asked.
    const auto mayBeMeant = [&name](const Entry &entry) {
        return entry.name.compare(name, Qt::CaseInsensitive) == 0;
    };
    const bool mayHold = !isAscii(name) || std::ranges::any_of(listing.others, mayBeMeant) ||
                         std::ranges::any_of(listing.folders, mayBeMeant);
    return mayHold ? Answer::Ask : Answer::No;
}

void finish(FolderListing &listing, const FolderReader &reader)
{
    listing.isFolder = reader.isFolder();
    listing.isComplete = reader.isComplete();
}

template <typename Next>
FolderListing list(const FolderReader &reader, const FolderVisitor &visit, Next next)
{
    FolderListing listing;
    while (next()) {
        const FolderListing::Entry *entry = keep(listing, reader);
        if (entry && visit && visit(*entry))
            break;
    }
    finish(listing, reader);
    return listing;
}

} // namespace

FolderListing::Answer FolderListing::holdsFile(QLatin1StringView name) const
{
    return fileAmong(*this, name);
}

FolderListing::Answer FolderListing::holdsFile(const QString &name) const
{
    return fileAmong(*this, name);
}

bool FolderListing::lacksFolders(std::span<const QLatin1StringView> names) const
{
    return isComplete && std::ranges::none_of(folders, [names](const Entry &entry) {
               return std::ranges::any_of(names, [&entry](QLatin1StringView name) {
                   return entry.name.compare(name, Qt::CaseInsensitive) == 0;
               });
           });
}

FolderListing listFolder(const QString &folder, const FolderVisitor &visit)
{
    FolderReader reader(folder);
    return list(reader, visit, [&reader] { return reader.nextNamed(); });
}

FolderListing listSmallFolder(const QString &folder, const FolderVisitor &visit)
{
    FolderReader reader(folder, FolderReader::FirstPiece::Small);
    return list(reader, visit, [&reader] { return !reader.isPieceFull() && reader.nextNamed(); });
}

FolderListing listFoldersIn(const QString &folder)
{
    FolderListing listing;
    FolderReader reader(folder);
    while (reader.next()) {
        if (!isOther(reader) && reader.isText())
            listing.folders.append({reader.name(), reader.kind()});
    }
    listing.keptAllOthers = false;
    finish(listing, reader);
    return listing;
}

bool leadsToFolder(const QString &folder, const FolderListing::Entry &entry)
{
    return entry.kind == EntryKind::Folder || kindAt(folder + u'/' + entry.name) == EntryKind::Folder;
}

} // namespace ozm::disk
