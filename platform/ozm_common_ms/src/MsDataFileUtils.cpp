#include <ozm_common_ms/MsDataFileUtils.h>

#include <search/FolderSearch.h>

namespace ozm::msreader {

Result<QList<QString>> MsDataFileUtils::searchForMSFilesAndDirectories(const QString &folder, bool recursive,
                                                                       MsDataFileInfo::CheckLevel checkLevel)
{
    QList<QString> paths;
    MsDataSearchOptions options;
    options.recursive = recursive;
    options.byNameOnly = checkLevel == MsDataFileInfo::CheckLevel::Name;
    options.measureFiles = false;
    MsDataSearchCallbacks callbacks;
    callbacks.found = [&paths](const MsSample &sample) { paths.append(sample.path); };
    if (Error error = FolderSearch(options, callbacks).search(folder); error.hasError())
        return error.ecatch(OZM_HERE);
    return paths;
}

} // namespace ozm::msreader
