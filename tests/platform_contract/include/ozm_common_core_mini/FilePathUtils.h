#pragma once

#include <QStringView>

namespace ozm {

class FilePathUtils
{
public:
    static constexpr quint32 winMaxPathLength = 260;
    [[nodiscard]] static bool isWinLongPath(QStringView path);
    [[nodiscard]] static bool hasWinLongPathPrefix(QStringView path);
};

} // namespace ozm
