#pragma once

#include <ozm_common_stable/Error.h>

#include <utility>

namespace ozm {

template <typename T>
class Result
{
public:
    Result(const T &value);
    Result(T &&value);
    Result(Error error);

    [[nodiscard]] bool hasError() const noexcept;
    explicit operator bool() const noexcept;

    [[nodiscard]] const T &value() const;
    [[nodiscard]] T &value();
    [[nodiscard]] const Error &error() const;
};

template <>
class Result<void>
{
public:
    Result();
    Result(Error error);

    [[nodiscard]] bool hasError() const noexcept;
    explicit operator bool() const noexcept;
    [[nodiscard]] const Error &error() const;
};

} // namespace ozm
