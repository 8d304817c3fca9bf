#include "internal/FormatDetectorVacq.h"

#include "internal/DetectionScope.h"
#include "internal/FormatTable.h"

namespace ozm::msreader::internal {

FormatDetectorVacq::FormatDetectorVacq()
    : FormatDetectorSimple(*formatRow(VendorDataFormat::Vacq))
{}

QSet<VendorDataFormat> FormatDetectorVacq::detectFormat(const QString &path) const
{
    if (!isNameRight(path))
        return {};
    const PathUtils::Kind kind = DetectionScope::kind(path);
    return formatsIf(kind == PathUtils::Kind::Folder || kind == PathUtils::Kind::File,
                     "extension and kind"_L1, "extension, but neither file nor folder"_L1);
}

bool FormatDetectorVacq::isFile(VendorDataFormat) const
{
    return true;
}

bool FormatDetectorVacq::isFolder(VendorDataFormat) const
{
    return true;
}

} // namespace ozm::msreader::internal
