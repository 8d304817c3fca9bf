#pragma once

#include <ozm_common_stable/Error.h>

// The suite's errors promise a number as their code, and a place that is given as function, file and line. The
// names for both are this library's own.

/// The place in the sources where this is written, as the arguments of Error::ecatch().
#define OZM_PLACE QString::fromUtf8(Q_FUNC_INFO), QString::fromUtf8(__FILE__), __LINE__

namespace ozm::codes {

inline constexpr ErrorCode Failed = static_cast<ErrorCode>(1); ///< Tried, and did not succeed.
inline constexpr ErrorCode BadParameter =
    static_cast<ErrorCode>(2); ///< Nothing can be done with what was passed in.
inline constexpr ErrorCode NotAllowed = static_cast<ErrorCode>(3); ///< Refused in the present state.
inline constexpr ErrorCode FileAccess = static_cast<ErrorCode>(4); ///< A file or folder could not be used.

} // namespace ozm::codes
