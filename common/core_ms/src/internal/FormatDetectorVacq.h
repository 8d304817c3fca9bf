#pragma once

#include "internal/FormatDetectorSimple.h"

namespace ozm::msreader::internal {

/// A file or a folder ".vacq": acquisitions are kept either way.
class FormatDetectorVacq final : public FormatDetectorSimple
{
public:
    FormatDetectorVacq();

    [[nodiscard]] QSet<VendorDataFormat> detectFormat(const QString &path) const override;
    [[nodiscard]] bool isFile(VendorDataFormat format) const override;
    [[nodiscard]] bool isFolder(VendorDataFormat format) const override;
};

} // namespace ozm::msreader::internal
