#pragma once

namespace ozm {

class IFileAccessorBase
{
public:
    IFileAccessorBase() = default;
    IFileAccessorBase(const IFileAccessorBase &) = default;
    IFileAccessorBase &operator=(const IFileAccessorBase &) = default;
    virtual ~IFileAccessorBase();
};

} // namespace ozm
