#include "search/SampleRecognition.h"

#include "FormatDetection.h"
#include "MsFileInfo.h"
#include "internal/FormatTable.h"
#include "search/RefusalReason.h"

#include <QFileInfo>

#include <filesystem>

namespace ozm::msreader {

namespace {

void setFormat(MsSample &sample, VendorDataFormat format)
{
    if (format == VendorDataFormat::Unknown)
        return;
    sample.formatName = MsDataFormat::toString(format);
    sample.description = MsFileInfo::formatDescription(format);
}

bool isAsked(const std::function<bool()> &isCanceled)
{
    return isCanceled && isCanceled();
}

qint64 sizeOfFolder(const QString &path, const std::function<bool()> &isCanceled)
{
    namespace fs = std::filesystem;
    qint64 size = 0;
    std::error_code failure;
    // Unlike Qt's, its names are bytes: files whose names are not text count as well.
    fs::recursive_directory_iterator entries(QFileInfo(path).filesystemFilePath(),
                                             fs::directory_options::skip_permission_denied, failure);
    while (!failure && entries != fs::recursive_directory_iterator()) {
        if (isAsked(isCanceled))
            return -1;
        std::error_code ignored;
        if (!entries->is_symlink(ignored) && entries->is_regular_file(ignored)) {
            const auto bytes = entries->file_size(ignored);
            size += ignored ? 0 : static_cast<qint64>(bytes);
        }
        entries.increment(failure);
    }
    return size;
}

} // namespace

MsSample sampleAt(const QString &path)
{
    MsSample sample;
    sample.path = disk::withoutSlashAtEnd(path);
    // Only a folder can be data of this name, so that its kind need not be asked beforehand.
    if (internal::isNamedD(sample.path)) {
        setFormat(sample, nearestFormat(sample.path));
        sample.kind = EntryKind::Folder;
        if (sample.isData())
            return sample;
    }
    const disk::DiskEntry entry = disk::entryAt(sample.path);
    sample.kind = entry.kind;
    sample.size = entry.size;
    if (!internal::isNamedD(sample.path))
        setFormat(sample, nearestFormat(sample.path, entry));
    if (!sample.isData())
        sample.refusal = refusalReason(sample.path, entry);
    return sample;
}

MsSample listedSample(const QString &path, EntryKind kind, bool byNameOnly)
{
    MsSample sample;
    sample.path = path;
    sample.kind = kind;
    const disk::DiskEntry entry{kind, -1, disk::Obstacle::None};
    setFormat(sample, byNameOnly ? formatByName(path, kind) : nearestFormat(path, entry));
    return sample;
}

qint64 sizeOnDisk(const QString &path, const std::function<bool()> &isCanceled)
{
    if (isAsked(isCanceled))
        return -1;
    const disk::DiskEntry entry = disk::entryAt(path);
    switch (entry.kind) {
    case EntryKind::File:
        return entry.size;
    case EntryKind::Folder:
        return sizeOfFolder(path, isCanceled);
    case EntryKind::Missing:
    case EntryKind::Other:
        break;
    }
    return -1;
}

} // namespace ozm::msreader
