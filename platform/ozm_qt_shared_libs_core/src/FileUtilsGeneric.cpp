#include <ozm_qt_shared_libs_core/FileUtilsGeneric.h>

#include <ozm_common_stable/JoinPaths.h>

#include <QDir>

using namespace Qt::StringLiterals;

namespace ozm {

namespace {

bool leadsOut(const QString &relative)
{
    const QString clean = QDir::cleanPath(relative);
    return QDir::isAbsolutePath(relative) || clean == ".."_L1 || clean.startsWith("../"_L1);
}

} // namespace

Result<QString> FileUtilsGeneric::createFilePathForLocalResource(const QString &folder,
                                                                 const QString &relative)
{
    if (folder.isEmpty())
        return Error(ErrorCode::BadParameter, u"No folder is given for \"%1\"."_s.arg(relative));
    if (leadsOut(relative)) {
        return Error(ErrorCode::BadParameter, u"\"%1\" is not a path inside \"%2\"."_s.arg(relative, folder));
    }
    return joinPaths(folder, relative);
}

} // namespace ozm
