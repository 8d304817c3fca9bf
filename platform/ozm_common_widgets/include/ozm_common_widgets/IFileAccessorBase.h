#pragma once

#include <ozm_common_widgets/ozm_common_widgets_export.h>

namespace ozm {

/// What libraries that cannot know the accessor's questions hand around: cast it to the accessor they use.
class OZM_COMMON_WIDGETS_EXPORT IFileAccessorBase
{
public:
    IFileAccessorBase() = default;
    IFileAccessorBase(const IFileAccessorBase &) = default;
    IFileAccessorBase &operator=(const IFileAccessorBase &) = default;
    virtual ~IFileAccessorBase();
};

} // namespace ozm
