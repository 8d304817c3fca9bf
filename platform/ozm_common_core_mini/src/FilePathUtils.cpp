#include <ozm_common_core_mini/FilePathUtils.h>

namespace ozm {

bool FilePathUtils::isWinLongPath(QStringView path)
{
    return path.size() + 1 > qsizetype(winMaxPathLength);
}

bool FilePathUtils::hasWinLongPathPrefix(QStringView path)
{
    return path.startsWith(u"\\\\?\\") || path.startsWith(u"//?/");
}

} // namespace ozm
