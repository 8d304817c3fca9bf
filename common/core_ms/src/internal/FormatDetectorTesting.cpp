#include "internal/FormatDetectorTesting.h"

#include "internal/DetectionScope.h"
#include "internal/FormatTable.h"

namespace ozm::msreader::internal {

namespace {

constexpr auto kMarker = "MAGIC_STRING_GOES_HERE_ozm_testing"_L1;

bool hasMarker(const QString &path)
{
    return path.endsWith(kMarker, Qt::CaseInsensitive);
}

} // namespace

FormatDetectorTesting::FormatDetectorTesting()
    : FormatDetectorSimple(*formatRow(VendorDataFormat::Testing))
{}

QSet<VendorDataFormat> FormatDetectorTesting::detectFormatByName(const QString &path) const
{
    return hasMarker(path) ? supportedFormats() : QSet<VendorDataFormat>();
}

QSet<VendorDataFormat> FormatDetectorTesting::detectFormat(const QString &path) const
{
    if (!hasMarker(path))
        return {};
    DetectionScope::note("testing marker"_L1);
    return supportedFormats();
}

} // namespace ozm::msreader::internal
