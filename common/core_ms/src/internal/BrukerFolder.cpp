#include "internal/BrukerFolder.h"

#include "internal/DetectionScope.h"

#include <QFileInfo>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace ozm::msreader::internal {

namespace {

constexpr std::array kSpectrumFids{"/1SRef/fid"_L1, "/1SLin/fid"_L1, "/1Ref/fid"_L1, "/1Lin/fid"_L1};

/// The folders of which a spot holds at least one.
constexpr std::array kSpotParts{"1"_L1, "1SRef"_L1, "1SLin"_L1, "1Ref"_L1, "1Lin"_L1, "fid"_L1};

bool holdsSpectrumFid(const disk::FolderOnDisk &root, const QString &folder)
{
    return std::ranges::any_of(
        kSpectrumFids, [&](QLatin1StringView fid) { return root.kindOf(folder, fid) == EntryKind::File; });
}

bool holdsFidFolder(const disk::FolderOnDisk &folder)
{
    return folder.holdsFolder("fid"_L1) && !folder.holdsFile("Analysis.baf"_L1) &&
           !folder.holdsFile("analysis.baf"_L1);
}

bool holdsFidFolder(const disk::FolderOnDisk &root, const QString &folder)
{
    return root.kindOf(folder, "/fid"_L1) == EntryKind::Folder &&
           root.kindOf(folder, "/Analysis.baf"_L1) != EntryKind::File &&
           root.kindOf(folder, "/analysis.baf"_L1) != EntryKind::File;
}

bool decides(bool holds, QLatin1StringView rule)
{
    if (holds)
        DetectionScope::note(rule);
    return holds;
}

bool isNamed(const disk::FolderListing::Entry &entry, QLatin1StringView name)
{
    return entry.name.compare(name, Qt::CaseInsensitive) == 0;
}

/// Most folders in raw data hold few entries and no spectra, which their listing tells in fewer calls than
/// there are names to ask for.
bool isNoSpot(const QString &root, const disk::FolderListing::Entry &entry)
{
    return DetectionScope::isKnownNoSpot(root, entry.name) ||
           lacksSpectra(disk::listSmallFolder(root + u'/' + entry.name));
}

class SpotQuestions
{
public:
    explicit SpotQuestions(const QString &root)
        : m_root(root)
        , m_disk(root)
    {}

    /// Returns true when an entry makes the folder FID data. An entry that is not a folder holds no spectrum.
    [[nodiscard]] bool isSpot(const disk::FolderListing::Entry &entry) const
    {
        const EntryKind kind = entry.kind ? *entry.kind : m_disk.kindOf(entry.name);
        if (kind != EntryKind::Folder)
            return false;
        if (holdsSpectra(entry))
            return true;
        // Does not depend on the entry; asked at the one that can be meant, in whatever letter case.
        return isNamed(entry, "fid"_L1) && decides(holdsFidFolder(m_disk), "Bruker: fid folder"_L1);
    }

private:
    [[nodiscard]] bool holdsSpectra(const disk::FolderListing::Entry &entry) const
    {
        if (DetectionScope::isKnownNoSpot(m_root, entry.name))
            return false;
        // One question for a folder "1" finds the spots that there are most of. The folder of an acquisition
        // is never one of them.
        const bool holdsOne =
            !isNamed(entry, "AcqData"_L1) && m_disk.kindOf(entry.name, "/1"_L1) == EntryKind::Folder;
        if (!holdsOne && isNoSpot(m_root, entry))
            return false;
        if (decides(holdsSpectrumFid(m_disk, entry.name + "/1"_L1),
                    "Bruker: fid file in 1/1SRef or the like"_L1))
            return true;
        return decides(holdsSpectrumFid(m_disk, entry.name), "Bruker: fid file in 1SRef or the like"_L1) ||
               decides(holdsFidFolder(m_disk, entry.name), "Bruker: fid folder one level down"_L1);
    }

    const QString m_root;
    const disk::FolderOnDisk m_disk;
};

struct SpectraSearch
{
    bool found = false;
    disk::FolderListing listing;
};

SpectraSearch searchSpectra(const QString &root)
{
    SpectraSearch search;
    const SpotQuestions questions(root);
    search.listing = DetectionScope::listing(root, [&](const disk::FolderListing::Entry &entry) {
        search.found = questions.isSpot(entry);
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

/// The data files that lie directly in a folder. The disk is asked only what its listing leaves open.
class DataFiles
{
public:
    DataFiles(const QString &root, const disk::FolderListing &listing)
        : m_root(root)
        , m_disk(root)
        , m_listing(listing)
    {}

    [[nodiscard]] bool hasCompanion() const
    {
        const QString name = companionName(m_root);
        const Answer answer = m_listing.holdsFile(name);
        return answer == Answer::Ask ? m_disk.kindOf(name) == EntryKind::File : answer == Answer::Yes;
    }

    [[nodiscard]] bool has(QLatin1StringView name) const
    {
        const Answer answer = m_listing.holdsFile(name);
        return answer == Answer::Ask ? m_disk.holdsFile(name) : answer == Answer::Yes;
    }

    [[nodiscard]] bool hasTdfPair() const
    {
        return (has("analysis.tdf"_L1) || has("Analysis.tdf"_L1)) &&
               (has("analysis.tdf_bin"_L1) || has("Analysis.tdf_bin"_L1));
    }

    [[nodiscard]] bool hasTsfPair() const
    {
        return (has("analysis.tsf"_L1) || has("Analysis.tsf"_L1)) &&
               (has("analysis.tsf_bin"_L1) || has("Analysis.tsf_bin"_L1));
    }

private:
    using Answer = disk::FolderListing::Answer;

    const QString m_root;
    const disk::FolderOnDisk m_disk;
    const disk::FolderListing m_listing;
};

constexpr unsigned kAllParts = 3;

/// A file of data that consists of one or two.
struct DataPart
{
    QLatin1StringView name;
    std::size_t data;
    unsigned parts;
};

constexpr std::array kDataParts{
    DataPart{"analysis.tdf"_L1, 0, 1},     DataPart{"Analysis.tdf"_L1, 0, 1},
    DataPart{"analysis.tdf_bin"_L1, 0, 2}, DataPart{"Analysis.tdf_bin"_L1, 0, 2},
    DataPart{"analysis.tsf"_L1, 1, 1},     DataPart{"Analysis.tsf"_L1, 1, 1},
    DataPart{"analysis.tsf_bin"_L1, 1, 2}, DataPart{"Analysis.tsf_bin"_L1, 1, 2},
    DataPart{"Analysis.baf"_L1, 2, 3},     DataPart{"Analysis.yep"_L1, 2, 3},
};

VendorDataFormat formatOfFiles(const DataFiles &files)
{
    if (decides(files.has("Analysis.yep"_L1), "Bruker: Analysis.yep"_L1))
        return VendorDataFormat::BrukerYEP;
    // Capitalised only: a folder with nothing but "analysis.baf" is not taken.
    const bool hasBaf = decides(files.has("Analysis.baf"_L1), "Bruker: Analysis.baf"_L1);
    const bool hasCompanion = decides(files.hasCompanion(), "Bruker: .u2 file"_L1);
    if (hasBaf)
        return hasCompanion ? VendorDataFormat::BrukerBAF_and_U2 : VendorDataFormat::BrukerBAF;
    if (hasCompanion)
        return VendorDataFormat::BrukerU2;
    if (decides(files.hasTdfPair(), "Bruker: analysis.tdf and analysis.tdf_bin"_L1))
        return VendorDataFormat::BrukerTims;
    if (decides(files.hasTsfPair(), "Bruker: analysis.tsf and analysis.tsf_bin"_L1))
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

bool holdsCommonBrukerFile(const disk::FolderOnDisk &root)
{
    const bool holds = (root.holdsFile("analysis.tdf"_L1) && root.holdsFile("analysis.tdf_bin"_L1)) ||
                       root.holdsFile("Analysis.baf"_L1) ||
                       (root.holdsFile("analysis.tsf"_L1) && root.holdsFile("analysis.tsf_bin"_L1));
    return decides(holds, "Bruker: a data file"_L1);
}

bool BrukerFilesSeen::decide(const disk::FolderListing::Entry &entry)
{
    if (entry.kind != EntryKind::File)
        return false;
    const auto part =
        std::ranges::find_if(kDataParts, [&entry](const DataPart &each) { return entry.name == each.name; });
    if (part == kDataParts.end())
        return false;
    unsigned &seen = m_seen.at(part->data);
    seen |= part->parts;
    return decides(seen == kAllParts, "Bruker: a data file"_L1);
}

bool lacksSpectra(const disk::FolderListing &listing)
{
    return listing.lacksFolders(kSpotParts);
}

} // namespace ozm::msreader::internal
