#include "FormatDetection.h"

#include "internal/AcqDataSearch.h"
#include "internal/BrukerFolder.h"
#include "internal/DetectionScope.h"
#include "internal/FormatRegistry.h"
#include "internal/FormatTable.h"
#include "internal/Logging.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace ozm::msreader {

namespace {

using FormatSet = QSet<VendorDataFormat>;
using internal::DetectionScope;
using internal::FormatDetectorBase;

/// Asks every detector for its answer, @p ask, until one is enough.
template <typename Ask>
FormatSet askDetectors(bool stopAtFirst, Ask ask)
{
    FormatSet found;
    for (const auto &detector : internal::detectors()) {
        const FormatSet answer = ask(*detector);
        if (answer.isEmpty())
            continue;
        // The first answer is taken over as it is, which copies nothing.
        found = found.isEmpty() ? answer : found | answer;
        if (stopAtFirst)
            break;
    }
    return found;
}

FormatSet detectByName(const QString &path, bool stopAtFirst)
{
    return askDetectors(stopAtFirst, [&path](const FormatDetectorBase &detector) {
        return detector.detectFormatByName(path);
    });
}

FormatSet detectOnDisk(const QString &path, bool stopAtFirst)
{
    return askDetectors(stopAtFirst,
                        [&path](const FormatDetectorBase &detector) { return detector.detectFormat(path); });
}

bool canBe(const internal::FormatRow &row, EntryKind kind)
{
    using internal::Storage;
    switch (kind) {
    case EntryKind::File:
        return row.storage == Storage::File || row.storage == Storage::FileOrFolder;
    case EntryKind::Folder:
        return row.storage == Storage::Folder || row.storage == Storage::FileOrFolder;
    case EntryKind::Missing:
    case EntryKind::Other:
        break;
    }
    return false;
}

/// Reads the start of the folder's listing, which for nearly all data holds the answer.
bool isVendorFolderAtOnce(const disk::FolderOnDisk &folder, const QString &path)
{
    bool isData = false;
    internal::BrukerFilesSeen files;
    std::ignore = DetectionScope::firstListing(path, [&](const disk::FolderListing::Entry &entry) {
        isData = files.decide(entry) || internal::isAcqData(folder, entry);
        return isData;
    });
    return isData;
}

/// From the cheapest question to the walk of a whole tree; the place of each does not change the answer.
bool isVendorFolder(const QString &path)
{
    const disk::FolderOnDisk folder(path);
    if (isVendorFolderAtOnce(folder, path))
        return true;
    const bool isListed = DetectionScope::hasListing(path);
    if (!isListed && (internal::holdsAcqDataDirectly(folder) || internal::holdsCommonBrukerFile(folder)))
        return true;
    return internal::classifyBrukerFolder(path) != VendorDataFormat::Unknown ||
           internal::holdsAcqDataBelow(path);
}

VendorDataFormat nearestFolderFormat(const QString &path)
{
    const disk::FolderOnDisk folder(path);
    bool isAgilent = false;
    std::ignore = DetectionScope::firstListing(path, [&](const disk::FolderListing::Entry &entry) {
        isAgilent = internal::isAcqData(folder, entry);
        return isAgilent;
    });
    if (isAgilent || (!DetectionScope::hasListing(path) && internal::holdsAcqDataDirectly(folder)))
        return VendorDataFormat::AgilentAcqData;
    const VendorDataFormat bruker = internal::classifyBrukerFolder(path);
    if (bruker != VendorDataFormat::Unknown)
        return bruker;
    return internal::holdsAcqDataBelow(path) ? VendorDataFormat::AgilentAcqData : VendorDataFormat::Unknown;
}

} // namespace

FormatSet detectFormats(const DataSourceLocation &location, bool byNameOnly, bool stopAtFirst)
{
    if (location.kind == DataSourceLocation::DatabaseHandler)
        return {VendorDataFormat::DataCutEmbedded};
    if (byNameOnly)
        return detectByName(location.localPath, stopAtFirst);
    const DetectionScope scope(location.localPath);
    FormatSet found = detectOnDisk(location.localPath, stopAtFirst);
    scope.report(found);
    return found;
}

bool hasDetectableFormat(const DataSourceLocation &location, bool byNameOnly)
{
    const bool isFolderOnDisk = location.kind == DataSourceLocation::LocalPath && !byNameOnly &&
                                internal::isNamedD(location.localPath);
    if (!isFolderOnDisk)
        return !detectFormats(location, byNameOnly, true).isEmpty();
    const DetectionScope scope(location.localPath);
    const bool found = isVendorFolder(location.localPath);
    scope.reportWhether(found);
    return found;
}

VendorDataFormat nearestFormat(const QString &path, const std::optional<disk::DiskEntry> &entry)
{
    const DetectionScope scope(path, entry);
    FormatSet found;
    if (!internal::isNamedD(path))
        found = detectOnDisk(path, true);
    else if (const VendorDataFormat format = nearestFolderFormat(path); format != VendorDataFormat::Unknown)
        found = {format};
    scope.report(found);
    return found.isEmpty() ? VendorDataFormat::Unknown : *found.cbegin();
}

VendorDataFormat formatByName(const QString &path, EntryKind kind)
{
    const auto row = std::ranges::find_if(internal::kFormats, [&path, kind](const internal::FormatRow &each) {
        return !each.extension.isEmpty() && canBe(each, kind) &&
               path.endsWith(each.extension, Qt::CaseInsensitive);
    });
    if (row != internal::kFormats.end())
        return row->format;
    const FormatDetectorBase *testing = internal::detectorOf(VendorDataFormat::Testing);
    const bool isTest = kind == EntryKind::File && !testing->detectFormatByName(path).isEmpty();
    return isTest ? VendorDataFormat::Testing : VendorDataFormat::Unknown;
}

} // namespace ozm::msreader
