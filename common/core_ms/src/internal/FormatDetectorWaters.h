#pragma once

#include "internal/FormatDetectorSimple.h"

namespace ozm::msreader::internal {

/// A ".raw" folder with "_FUNC001.DAT" in it.
class FormatDetectorWaters final : public FormatDetectorSimple
{
public:
    FormatDetectorWaters();

    [[nodiscard]] QSet<VendorDataFormat> detectFormat(const QString &path) const override;
};

} // namespace ozm::msreader::internal
