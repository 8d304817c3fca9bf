#include "internal/FormatDetectorBruker.h"

#include "internal/BrukerFolder.h"
#include "internal/FormatTable.h"

#include <ozm_common_core_mini/PathUtils.h>

namespace ozm::msreader::internal {

namespace {

constexpr auto kExtension = "d"_L1;

const QSet<VendorDataFormat> &brukerFormats()
{
    static const QSet<VendorDataFormat> formats{
        VendorDataFormat::BrukerFID, VendorDataFormat::BrukerYEP,        VendorDataFormat::BrukerBAF,
        VendorDataFormat::BrukerU2,  VendorDataFormat::BrukerBAF_and_U2, VendorDataFormat::BrukerTims,
        VendorDataFormat::BrukerTsf,
    };
    return formats;
}

} // namespace

QSet<VendorDataFormat> FormatDetectorBruker::supportedFormats() const
{
    return brukerFormats();
}

QSet<VendorDataFormat> FormatDetectorBruker::detectFormatByName(const QString &path) const
{
    return PathUtils::hasExtension(path, u"d") ? brukerFormats() : QSet<VendorDataFormat>();
}

QSet<VendorDataFormat> FormatDetectorBruker::detectFormat(const QString &path) const
{
    if (!PathUtils::hasExtension(path, u"d"))
        return {};
    const VendorDataFormat format = classifyBrukerFolder(path);
    if (format == VendorDataFormat::Unknown)
        return {};
    return {format};
}

QString FormatDetectorBruker::fileNameExtension(VendorDataFormat) const
{
    return kExtension;
}

bool FormatDetectorBruker::isFile(VendorDataFormat) const
{
    return false;
}

bool FormatDetectorBruker::isFolder(VendorDataFormat) const
{
    return true;
}

QString FormatDetectorBruker::formatDescription(VendorDataFormat format) const
{
    const bool isOwn = brukerFormats().contains(format);
    return formatRow(isOwn ? format : VendorDataFormat::BrukerFID)->description;
}

} // namespace ozm::msreader::internal
