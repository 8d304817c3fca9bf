#include "internal/FormatDetectorAgilent.h"

#include "internal/AcqDataSearch.h"
#include "internal/FormatTable.h"

namespace ozm::msreader::internal {

FormatDetectorAgilent::FormatDetectorAgilent()
    : FormatDetectorSimple(*formatRow(VendorDataFormat::AgilentAcqData))
{}

QSet<VendorDataFormat> FormatDetectorAgilent::detectFormat(const QString &path) const
{
    if (!isNameRight(path))
        return {};
    return holdsAcqDataBelow(path) ? supportedFormats() : QSet<VendorDataFormat>();
}

} // namespace ozm::msreader::internal
