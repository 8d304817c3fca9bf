#include "internal/BrukerFolder.h"

#include "internal/DetectionScope.h"

#include <QFileInfo>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace ozm::msreader::internal {

namespace {

constexpr std::array kSpectrumFids{"/1SRef/fid"_L1, "/1SLin/fid"_L1, "/1Ref/fid"_L1, "/1Lin/fid"_L1};

bool holdsSpectrumFid(const QString &folder)
{
    return std::ranges::any_of(
        kSpectrumFids, [&folder](QLatin1StringView fid) { return PathUtils::isExistingFile(folder + fid); });
}

bool holdsBaf(const QString &folder)
{
    return PathUtils::isExistingFile(folder + "/Analysis.baf"_L1) ||
           PathUtils::isExistingFile(folder + "/analysis.baf"_L1);
}

bool holdsFidFolder(const QString &folder)
{
    return PathUtils::isExistingDir(folder + "/fid"_L1) && !holdsBaf(folder);
}

bool decides(bool holds, QLatin1StringView rule)
{
    if (holds)
        DetectionScope::note(rule);
    return holds;
}

/// Whether an entry of @p root makes it FID data. What is no folder can hold no spectrum.
bool isSpot(const QString &root, const FolderListing::Entry &entry)
{
    if (!leadsToFolder(root, entry))
        return false;
    const QString path = root + u'/' + entry.name;
    // One question for a folder "1" spares four in the folders, most of them, that have none.
    if (PathUtils::isDirectory(path + "/1"_L1) &&
        decides(holdsSpectrumFid(path + "/1"_L1), "Bruker: fid file in 1/1SRef or the like"_L1))
        return true;
    if (decides(holdsSpectrumFid(path), "Bruker: fid file in 1SRef or the like"_L1))
        return true;
    if (decides(holdsFidFolder(path), "Bruker: fid folder one level down"_L1))
        return true;
    // Does not depend on the entry; asked at the one that can be meant, in whatever letter case.
    return entry.name.compare("fid"_L1, Qt::CaseInsensitive) == 0 &&
           decides(holdsFidFolder(root), "Bruker: fid folder"_L1);
}

struct SpectraSearch
{
    bool found = false;
    FolderListing listing;
};

SpectraSearch searchSpectra(const QString &root)
{
    SpectraSearch search;
    search.listing = DetectionScope::listing(root, [&](const FolderListing::Entry &entry) {
        search.found = isSpot(root, entry);
        return search.found;
    });
    return search;
}

/// The name of the file that belongs to a folder: Run.u2 to Run.d. The letter case of the suffix is told
/// apart although the folder's is not, so the file that belongs to Run.D is called as the folder itself.
QString companionName(const QString &root)
{
    return QFileInfo(root).fileName().replace(".d"_L1, ".u2"_L1);
}

/// The data files that lie directly in a folder. What its listing tells is not asked.
class DataFiles
{
public:
    DataFiles(const QString &root, const FolderListing &listing)
        : m_root(root)
        , m_listing(listing)
    {}

    [[nodiscard]] bool hasCompanion() const { return has(companionName(m_root)); }

    [[nodiscard]] bool has(const QString &name) const
    {
        const FolderListing::Answer answer = m_listing.holdsFile(name);
        return answer == FolderListing::Answer::Ask ? PathUtils::isExistingFile(m_root + u'/' + name)
                                                    : answer == FolderListing::Answer::Yes;
    }

    [[nodiscard]] bool hasPair(const QString &suffix) const
    {
        return (has("analysis."_L1 + suffix) || has("Analysis."_L1 + suffix)) &&
               (has("analysis."_L1 + suffix + "_bin"_L1) || has("Analysis."_L1 + suffix + "_bin"_L1));
    }

private:
    const QString m_root;
    const FolderListing m_listing;
};

VendorDataFormat formatOfFiles(const DataFiles &files)
{
    if (decides(files.has(u"Analysis.yep"_s), "Bruker: Analysis.yep"_L1))
        return VendorDataFormat::BrukerYEP;
    // Capitalised only: a folder with nothing but "analysis.baf" is not taken.
    const bool hasBaf = decides(files.has(u"Analysis.baf"_s), "Bruker: Analysis.baf"_L1);
    const bool hasCompanion = decides(files.hasCompanion(), "Bruker: .u2 file"_L1);
    if (hasBaf)
        return hasCompanion ? VendorDataFormat::BrukerBAF_and_U2 : VendorDataFormat::BrukerBAF;
    if (hasCompanion)
        return VendorDataFormat::BrukerU2;
    if (decides(files.hasPair(u"tdf"_s), "Bruker: analysis.tdf and analysis.tdf_bin"_L1))
        return VendorDataFormat::BrukerTims;
    if (decides(files.hasPair(u"tsf"_s), "Bruker: analysis.tsf and analysis.tsf_bin"_L1))
        return VendorDataFormat::BrukerTsf;
    DetectionScope::note("Bruker: neither fid nor analysis files"_L1);
    return VendorDataFormat::Unknown;
}

} // namespace

VendorDataFormat classifyBrukerFolder(const QString &root)
{
    const SpectraSearch spectra = searchSpectra(root);
    if (spectra.found)
        return VendorDataFormat::BrukerFID;
    if (!spectra.listing.isFolder) {
        DetectionScope::note("Bruker: not a folder"_L1);
        return VendorDataFormat::Unknown;
    }
    return formatOfFiles(DataFiles(root, spectra.listing));
}

bool holdsCommonBrukerFile(const QString &root)
{
    const auto has = [&root](QLatin1StringView name) { return PathUtils::isExistingFile(root + name); };
    const bool holds = (has("/analysis.tdf"_L1) && has("/analysis.tdf_bin"_L1)) || has("/Analysis.baf"_L1) ||
                       (has("/analysis.tsf"_L1) && has("/analysis.tsf_bin"_L1));
    return decides(holds, "Bruker: a data file"_L1);
}

} // namespace ozm::msreader::internal
