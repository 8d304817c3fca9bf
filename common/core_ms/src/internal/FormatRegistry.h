#pragma once

#include "internal/FormatDetectorBase.h"

#include <memory>
#include <vector>

namespace ozm::msreader::internal {

using DetectorList = std::vector<std::unique_ptr<const FormatDetectorBase>>;

/// All detectors, in the order in which they are asked. Built and checked on first use, from any thread.
[[nodiscard]] const DetectorList &detectors();

/// Null for Unknown and for values outside the enumeration.
[[nodiscard]] const FormatDetectorBase *detectorOf(VendorDataFormat format);

/// Throws std::runtime_error when two detectors claim one format, a mistake in the list.
void throwOnOverlap(const DetectorList &list);

} // namespace ozm::msreader::internal
