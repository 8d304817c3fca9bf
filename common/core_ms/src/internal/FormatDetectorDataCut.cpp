#include "internal/FormatDetectorDataCut.h"

#include "internal/FormatTable.h"

namespace ozm::msreader::internal {

FormatDetectorDataCut::FormatDetectorDataCut()
    : FormatDetectorSimple(*formatRow(VendorDataFormat::DataCut))
{}

FormatDetectorDataCutEmbedded::FormatDetectorDataCutEmbedded()
    : FormatDetectorSimple(*formatRow(VendorDataFormat::DataCutEmbedded))
{}

QSet<VendorDataFormat> FormatDetectorDataCutEmbedded::detectFormatByName(const QString &) const
{
    return {};
}

QSet<VendorDataFormat> FormatDetectorDataCutEmbedded::detectFormat(const QString &) const
{
    return {};
}

} // namespace ozm::msreader::internal
