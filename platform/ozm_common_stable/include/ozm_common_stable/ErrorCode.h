#pragma once

namespace ozm {

/// The kind of an error. Support staff and scripts rely on the numbers, which never change.
enum class ErrorCode : int
{
    NoError = 0,
    Failed = 1,       ///< The operation was tried and did not succeed.
    BadParameter = 2, ///< What was passed in cannot be worked with.
    NotAllowed = 3,   ///< The operation is refused in the present state.
    FileAccess = 4,   ///< A file or folder could not be opened, read or written.
};

} // namespace ozm
