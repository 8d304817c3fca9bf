#pragma once

#include "internal/FormatDetectorBase.h"

namespace ozm::msreader::internal {

/// A ".d" folder; what lies in it tells which of seven formats it is.
class FormatDetectorBruker final : public FormatDetectorBase
{
public:
    [[nodiscard]] QSet<VendorDataFormat> supportedFormats() const override;
    [[nodiscard]] QSet<VendorDataFormat> detectFormatByName(const QString &path) const override;
    [[nodiscard]] QSet<VendorDataFormat> detectFormat(const QString &path) const override;
    [[nodiscard]] QString fileNameExtension(VendorDataFormat format) const override;
    [[nodiscard]] bool isFile(VendorDataFormat format) const override;
    [[nodiscard]] bool isFolder(VendorDataFormat format) const override;
    [[nodiscard]] QString formatDescription(VendorDataFormat format) const override;
};

} // namespace ozm::msreader::internal
