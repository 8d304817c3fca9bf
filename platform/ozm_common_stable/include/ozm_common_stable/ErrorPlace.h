#pragma once

#include <ozm_common_stable/ozm_common_stable_export.h>

#include <QString>

namespace ozm {

/**
 * A place in the sources at which an error was caught or a message written.
 *
 * Support staff look errors up by path and line, so some places are published and keep their pair for good:
 * those are named constants. Everywhere else OZM_HERE gives the place it stands at, with the path relative
 * to the top of the sources.
 */
struct ErrorPlace
{
    QString function; ///< The function's signature.
    QString path;     ///< The source, relative to the top of its project.
    int line = 0;     ///< Counts from 1.

    bool operator==(const ErrorPlace &) const = default;

    /// "path:line (function)".
    [[nodiscard]] OZM_COMMON_STABLE_EXPORT QString toString() const;
};

} // namespace ozm

/// The place in the sources where this stands, as an ozm::ErrorPlace.
#define OZM_HERE (::ozm::ErrorPlace{QString::fromUtf8(Q_FUNC_INFO), QString::fromUtf8(__FILE__), __LINE__})
