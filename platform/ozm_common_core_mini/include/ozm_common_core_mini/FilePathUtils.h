#pragma once

#include <ozm_common_core_mini/ozm_common_core_mini_export.h>

#include <QStringView>

namespace ozm {

/**
 * The limits that paths are held to, on every system: projects travel to machines with the shortest ones.
 */
class OZM_COMMON_CORE_MINI_EXPORT FilePathUtils
{
public:
    /// The classic limit of Windows, which counts the null character that ends a path.
    static constexpr quint32 winMaxPathLength = 260;

    /// True when @p path, with its final null character, is longer than winMaxPathLength.
    [[nodiscard]] static bool isWinLongPath(QStringView path);

    /// True when @p path begins with the mark that lifts the limit, with slashes of either kind.
    [[nodiscard]] static bool hasWinLongPathPrefix(QStringView path);
};

} // namespace ozm
