#pragma once

#include "internal/FormatDetectorSimple.h"

namespace ozm::msreader::internal {

/// A file ".data.cut".
class FormatDetectorDataCut final : public FormatDetectorSimple
{
public:
    FormatDetectorDataCut();
};

/// Data in a database: no path has it, whatever its name.
class FormatDetectorDataCutEmbedded final : public FormatDetectorSimple
{
public:
    FormatDetectorDataCutEmbedded();

    [[nodiscard]] QSet<VendorDataFormat> detectFormatByName(const QString &path) const override;
    [[nodiscard]] QSet<VendorDataFormat> detectFormat(const QString &path) const override;
};

} // namespace ozm::msreader::internal
