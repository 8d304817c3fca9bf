#include <ozm_common_stable/JoinPaths.h>

namespace ozm {

QString joinPaths(const QString &folder, const QString &name, QChar separator)
{
    if (folder.isEmpty() || name.isEmpty())
        return folder + name;
    const bool ends = folder.endsWith(separator);
    const bool begins = name.startsWith(separator);
    if (ends && begins)
        return folder + name.sliced(1);
    return ends || begins ? folder + name : folder + separator + name;
}

} // namespace ozm
