#include "FormatDetection.h"

#include "internal/AcqDataSearch.h"
#include "internal/BrukerFolder.h"
#include "internal/DetectionScope.h"
#include "internal/FormatRegistry.h"
#include "internal/Logging.h"

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

// The two detectors whose questions can be many are those of the folders named so; no other name ends thus.
bool isNamedD(const QString &path)
{
    return path.endsWith(".d"_L1, Qt::CaseInsensitive);
}

/// From the cheapest question to the walk of a whole tree; where each stands does not change the answer.
bool isVendorFolder(const QString &path)
{
    return internal::holdsAcqDataDirectly(path) || internal::holdsCommonBrukerFile(path) ||
           internal::classifyBrukerFolder(path) != VendorDataFormat::Unknown ||
           internal::holdsAcqDataBelow(path);
}

VendorDataFormat nearestFolderFormat(const QString &path)
{
    if (internal::holdsAcqDataDirectly(path))
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
    const bool isFolderOnDisk =
        location.kind == DataSourceLocation::LocalPath && !byNameOnly && isNamedD(location.localPath);
    if (!isFolderOnDisk)
        return !detectFormats(location, byNameOnly, true).isEmpty();
    const DetectionScope scope(location.localPath);
    const bool found = isVendorFolder(location.localPath);
    scope.reportWhether(found);
    return found;
}

VendorDataFormat nearestFormat(const DataSourceLocation &location)
{
    if (location.kind == DataSourceLocation::LocalPath && isNamedD(location.localPath)) {
        const DetectionScope scope(location.localPath);
        const VendorDataFormat format = nearestFolderFormat(location.localPath);
        scope.report(format != VendorDataFormat::Unknown ? FormatSet{format} : FormatSet());
        return format;
    }
    const FormatSet found = detectFormats(location, false, true);
    return found.isEmpty() ? VendorDataFormat::Unknown : *found.cbegin();
}

} // namespace ozm::msreader
