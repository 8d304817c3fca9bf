#pragma once

#include "disk/FolderListing.h"

namespace ozm::disk {
class FolderOnDisk;
}

namespace ozm::msreader::internal {

/// Returns true when @p folder, whose name ends in ".d", holds its "AcqData" folder where acquisitions put it
/// and may be listed: two questions, however large the folder is. False leaves it open.
[[nodiscard]] bool holdsAcqDataDirectly(const disk::FolderOnDisk &folder);

/// Returns true when @p entry of a folder whose name ends in ".d" makes it an acquisition.
[[nodiscard]] bool isAcqData(const disk::FolderOnDisk &folder, const disk::FolderListing::Entry &entry);

/**
 * Returns true when a folder "AcqData", in any letter case, lies in @p folder, whose name ends in ".d", or in another
 * folder of such a name anywhere below it, links followed.
 *
 * Looks at folders only. The files that also mark an acquisition ("msprofile.bin", "mspeak.bin" and
 * "msscan.bin" in ".d/AcqData") need no look: the folder they lie in has decided before. Every folder is read
 * once, whatever number of links leads to it, and the answer does not depend on the order of entries.
 */
[[nodiscard]] bool holdsAcqDataBelow(const QString &folder);

} // namespace ozm::msreader::internal
