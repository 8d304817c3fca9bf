#pragma once

#include "internal/FormatDetectorSimple.h"

namespace ozm::msreader::internal {

/// A path that ends in a marker, existing or not: test suites fabricate data sources from names.
class FormatDetectorTesting final : public FormatDetectorSimple
{
public:
    FormatDetectorTesting();

    [[nodiscard]] QSet<VendorDataFormat> detectFormatByName(const QString &path) const override;
    [[nodiscard]] QSet<VendorDataFormat> detectFormat(const QString &path) const override;
};

} // namespace ozm::msreader::internal
