#pragma once

namespace ozm {

/// What went wrong, in a form that support staff and scripts can rely on: the numbers never change.
enum class ErrorCode : int
{
    NoError = 0,
    Failed = 1,       ///< The operation was tried and did not succeed.
    BadParameter = 2, ///< What was passed in cannot be worked with.
    NotAllowed = 3,   ///< The operation is refused in the present state.
    FileAccess = 4,   ///< A file or folder could not be opened, read or written.
};

} // namespace ozm
