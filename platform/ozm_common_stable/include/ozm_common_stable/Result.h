#pragma once

#include <ozm_common_stable/Error.h>

#include <concepts>
#include <utility>
#include <variant>

namespace ozm {

/**
 * Either a value or the error that kept it from being made.
 *
 *     ozm::Result<QStringList> names = readNames(path);
 *     if (!names)
 *         return names.error();
 *     use(names.value());
 *
 * Reading the side that is not there is a mistake of the caller: a debug build stops with a message, a
 * release build throws std::bad_variant_access. A Result cannot be made from an Error without an error in it.
 */
template <typename T>
class [[nodiscard]] Result
{
public:
    // Implicit, so that a function may return either side as it is.
    Result(const T &value) requires std::copy_constructible<T> : m_side(std::in_place_index<0>, value) {}
    Result(T &&value) noexcept(std::is_nothrow_move_constructible_v<T>)
        : m_side(std::in_place_index<0>, std::move(value))
    {}
    Result(Error error)
        : m_side(std::in_place_index<1>, std::move(error))
    {
        Q_ASSERT_X(std::get<1>(m_side).hasError(), "ozm::Result", "made from an Error that holds no error");
    }

    /// True when there is an error in the value's place.
    [[nodiscard]] bool hasError() const noexcept { return m_side.index() == 1; }
    explicit operator bool() const noexcept { return !hasError(); }

    /// The value. To be asked for only when there is one.
    [[nodiscard]] const T &value() const &
    {
        assertValue();
        return std::get<0>(m_side);
    }
    [[nodiscard]] T &value() &
    {
        assertValue();
        return std::get<0>(m_side);
    }
    [[nodiscard]] T &&value() &&
    {
        assertValue();
        return std::get<0>(std::move(m_side));
    }
    /// The value, or @p fallback when there is an error.
    [[nodiscard]] T valueOr(T fallback) const & { return hasError() ? std::move(fallback) : value(); }
    [[nodiscard]] T valueOr(T fallback) &&
    {
        return hasError() ? std::move(fallback) : std::move(*this).value();
    }

    /// The error; one of code 0 when there is a value.
    [[nodiscard]] const Error &error() const &
    {
        assertError();
        return std::get<1>(m_side);
    }
    [[nodiscard]] Error error() &&
    {
        assertError();
        return std::get<1>(std::move(m_side));
    }

private:
    void assertValue() const
    {
        Q_ASSERT_X(!hasError(), "ozm::Result", "value() of a result that holds an error");
    }
    void assertError() const
    {
        Q_ASSERT_X(hasError(), "ozm::Result", "error() of a result that holds a value");
    }

    std::variant<T, Error> m_side;
};

/// The outcome of work that has no value to give.
template <>
class [[nodiscard]] Result<void>
{
public:
    Result() = default;
    Result(Error error)
        : m_error(std::move(error))
    {
        Q_ASSERT_X(hasError(), "ozm::Result", "made from an Error that holds no error");
    }

    /// True when the call failed.
    [[nodiscard]] bool hasError() const noexcept { return m_error.hasError(); }
    explicit operator bool() const noexcept { return !hasError(); }
    /// As for the others, the error of a success must not be asked for.
    [[nodiscard]] const Error &error() const
    {
        Q_ASSERT_X(hasError(), "ozm::Result", "error() of a result that holds a value");
        return m_error;
    }

private:
    Error m_error;
};

} // namespace ozm
