#include "internal/FormatDetectorWaters.h"

#include "internal/DetectionScope.h"
#include "internal/FormatTable.h"

namespace ozm::msreader::internal {

FormatDetectorWaters::FormatDetectorWaters()
    : FormatDetectorSimple(*formatRow(VendorDataFormat::Waters))
{}

QSet<VendorDataFormat> FormatDetectorWaters::detectFormat(const QString &path) const
{
    if (!isNameRight(path) || !isKindRight(path))
        return FormatDetectorSimple::detectFormat(path);
    // Of whatever kind, and in whatever letter case the file system takes for the same.
    const bool isThere = disk::FolderOnDisk(path).kindOf("_FUNC001.DAT"_L1) != EntryKind::Missing;
    return formatsIf(isThere, "Waters: _FUNC001.DAT"_L1, "Waters: no _FUNC001.DAT"_L1);
}

} // namespace ozm::msreader::internal
