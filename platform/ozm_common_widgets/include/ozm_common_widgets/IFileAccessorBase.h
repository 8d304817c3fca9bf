#pragma once

#include <ozm_common_widgets/ozm_common_widgets_export.h>

namespace ozm {

/// The base for libraries that pass an accessor on without knowing its questions: they cast it to their own type.
class OZM_COMMON_WIDGETS_EXPORT IFileAccessorBase
{
public:
    IFileAccessorBase() = default;
    IFileAccessorBase(const IFileAccessorBase &) = default;
    IFileAccessorBase &operator=(const IFileAccessorBase &) = default;
    virtual ~IFileAccessorBase();
};

} // namespace ozm
