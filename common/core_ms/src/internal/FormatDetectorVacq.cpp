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
    const EntryKind kind = DetectionScope::kind(path);
    return formatsIf(kind == EntryKind::Folder || kind == EntryKind::File, "extension and kind"_L1,
                     "extension, but neither file nor folder"_L1);
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
