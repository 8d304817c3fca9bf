#include "internal/FormatDetectorBase.h"

namespace ozm::msreader::internal {

FormatDetectorBase::~FormatDetectorBase() = default;

} // namespace ozm::msreader::internal
