#pragma once

#include "MsDataFormat.h"
#include "disk/FolderListing.h"

#include <array>

namespace ozm::disk {
class FolderOnDisk;
}

namespace ozm::msreader::internal {

/// The Bruker format that @p root holds, or Unknown.
[[nodiscard]] VendorDataFormat classifyBrukerFolder(const QString &root);

/// Returns true when a data file that today's instruments leave in @p root makes it Bruker data of some
/// format: a few questions, however large the folder is. False leaves it open.
[[nodiscard]] bool holdsCommonBrukerFile(const disk::FolderOnDisk &root);

/// The data files that a listing has shown so far.
class BrukerFilesSeen
{
public:
    /// Takes one entry of the listing; true as soon as the files make a folder Bruker data of some format.
    [[nodiscard]] bool decide(const disk::FolderListing::Entry &entry);

private:
    std::array<unsigned, 3> m_seen = {};
};

/// Returns true when the listing of a folder in raw data proves that it is no spot of FID spectra.
[[nodiscard]] bool lacksSpectra(const disk::FolderListing &listing);

} // namespace ozm::msreader::internal
