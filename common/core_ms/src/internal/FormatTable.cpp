#include "internal/FormatTable.h"

namespace ozm::msreader::internal {

const FormatRow *formatRow(VendorDataFormat format)
{
    const auto index = static_cast<std::size_t>(format);
    return index < kFormats.size() ? &kFormats[index] : nullptr;
}

} // namespace ozm::msreader::internal
