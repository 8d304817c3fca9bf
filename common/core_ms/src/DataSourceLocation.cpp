#include "DataSourceLocation.h"

#include <ozm_common_core_mini/FilePathUtils.h>
#include <platform/Errors.h>

#include <QDebug>

using namespace Qt::StringLiterals;

namespace ozm::msreader {

QString SampleIdentification::toString() const
{
    // Both at once: a name that holds "%2" stays as it is.
    return u"sampleName: %1, nativeSampleId: %2"_s.arg(sampleName, nativeSampleId);
}

DataSourceLocation DataSourceLocation::fromLocalPath(const QString &path)
{
    DataSourceLocation location;
    location.localPath = path;
    return location;
}

DataSourceLocation DataSourceLocation::fromDatabaseHandler(const void *handler)
{
    DataSourceLocation location;
    location.kind = DatabaseHandler;
    location.dbHandler = handler;
    return location;
}

Error DataSourceLocation::checkValidVendorFilePath(const QString &path)
{
    if (path.isEmpty())
        return Error(ozm::codes::BadParameter, u"Vendor file name is empty"_s).ecatch(OZM_PLACE);
    if (FilePathUtils::isWinLongPath(path) && !FilePathUtils::hasWinLongPathPrefix(path)) {
        return Error(ozm::codes::BadParameter, u"The path exceeds %1"_s.arg(FilePathUtils::winMaxPathLength))
            .ecatch(OZM_PLACE);
    }
    return {};
}

QDebug operator<<(QDebug debug, const DataSourceLocation &location)
{
    const QDebugStateSaver saver(debug);
    debug.nospace().noquote();
    if (location.kind == DataSourceLocation::DatabaseHandler)
        debug << "dbHandler:" << location.dbHandler;
    else
        debug << "local_path:" << location.localPath;
    if (location.label && !location.label->isEmpty())
        debug << " : " << *location.label;
    return debug;
}

QDebug operator<<(QDebug debug, const QList<DataSourceLocation> &locations)
{
    const QDebugStateSaver saver(debug);
    debug.nospace().noquote();
    for (qsizetype i = 0; i < locations.size(); ++i)
        debug << (i > 0 ? ", " : "") << locations.at(i);
    return debug;
}

} // namespace ozm::msreader
