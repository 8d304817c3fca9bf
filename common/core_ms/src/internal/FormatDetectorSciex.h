#pragma once

#include "internal/FormatDetectorSimple.h"

namespace ozm::msreader::internal {

/// A ".wiff" file with its ".wiff.scan" file beside it.
class FormatDetectorSciexWiff final : public FormatDetectorSimple
{
public:
    FormatDetectorSciexWiff();

    [[nodiscard]] QSet<VendorDataFormat> detectFormat(const QString &path) const override;
};

/// A ".wiff2" file with a ".wiff.scan" file beside it.
class FormatDetectorSciexWiff2 final : public FormatDetectorSimple
{
public:
    FormatDetectorSciexWiff2();

    [[nodiscard]] QSet<VendorDataFormat> detectFormat(const QString &path) const override;
};

} // namespace ozm::msreader::internal
