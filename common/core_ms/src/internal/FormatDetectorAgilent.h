#pragma once

#include "internal/FormatDetectorSimple.h"

namespace ozm::msreader::internal {

/// A ".d" folder with an "AcqData" folder in it, or in a ".d" folder anywhere below it.
class FormatDetectorAgilent final : public FormatDetectorSimple
{
public:
    FormatDetectorAgilent();

    [[nodiscard]] QSet<VendorDataFormat> detectFormat(const QString &path) const override;
};

} // namespace ozm::msreader::internal
