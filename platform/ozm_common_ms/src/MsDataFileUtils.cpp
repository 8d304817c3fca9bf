#include <ozm_common_ms/MsDataFileUtils.h>

#include "DataCrawler.h"
#include "SampleExaminer.h"

#include <internal/RefusalReason.h>

#include <QDirIterator>

namespace ozm::msreader {

Result<QList<QString>> MsDataFileUtils::searchForMSFilesAndDirectories(const QString &folder, bool recursive,
                                                                       MsDataFileInfo::CheckLevel checkLevel)
{
    QList<QString> paths;
    MsDataSearchOptions options;
    options.recursive = recursive;
    options.checkLevel = checkLevel;
    MsDataSearchCallbacks callbacks;
    callbacks.found = [&paths](const MsDataFileInfo &sample) { paths.append(sample.path); };
    if (Error error = search(folder, options, callbacks); error.hasError())
        return error.ecatch(OZM_HERE);
    return paths;
}

Error MsDataFileUtils::search(const QString &folder, const MsDataSearchOptions &options,
                              const MsDataSearchCallbacks &callbacks)
{
    return DataCrawler(options, callbacks).search(folder);
}

MsDataFileInfo MsDataFileUtils::inspect(const QString &path)
{
    MsDataFileInfo info = examine(path, kindOf(path), MsDataFileInfo::CheckLevel::Content);
    if (!info.isData())
        info.refusal = internal::refusalReason(path);
    return info;
}

qint64 MsDataFileUtils::sizeOnDisk(const QString &path, const std::function<bool()> &isCanceled)
{
    const MsDataFileInfo::Kind kind = kindOf(path);
    if (kind == MsDataFileInfo::Kind::None)
        return -1;
    if (kind == MsDataFileInfo::Kind::File)
        return QFileInfo(path).size();
    qint64 size = 0;
    QDirIterator files(path, QDir::Files | QDir::Hidden | QDir::NoSymLinks, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        if (isCanceled && isCanceled())
            return -1;
        files.next();
        size += files.fileInfo().size();
    }
    return size;
}

} // namespace ozm::msreader
