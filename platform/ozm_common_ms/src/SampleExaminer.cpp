#include "SampleExaminer.h"

#include <FormatDetection.h>
#include <MsFileInfo.h>

#include <ozm_common_core_mini/PathUtils.h>

#include <QFileInfo>

#include <algorithm>

namespace ozm::msreader {

namespace {

using Kind = MsDataFileInfo::Kind;

bool isOfKind(VendorDataFormat format, Kind kind)
{
    return kind == Kind::Folder ? MsFileInfo::isFolder(format) : MsFileInfo::isFile(format);
}

/// The first format, by value, that this name stands for.
VendorDataFormat formatByName(const QString &path, Kind kind)
{
    VendorDataFormat first = VendorDataFormat::Unknown;
    for (const VendorDataFormat format :
         detectFormats(DataSourceLocation::fromLocalPath(path), true, false)) {
        if (isOfKind(format, kind) && (first == VendorDataFormat::Unknown || format < first))
            first = format;
    }
    return first;
}

VendorDataFormat formatOf(const QString &path, Kind kind, MsDataFileInfo::CheckLevel level)
{
    if (level == MsDataFileInfo::CheckLevel::Name)
        return formatByName(path, kind);
    return nearestFormat(DataSourceLocation::fromLocalPath(path));
}

} // namespace

bool canBeData(const QString &path, Kind kind)
{
    return formatByName(path, kind) != VendorDataFormat::Unknown;
}

MsDataFileInfo examine(const QString &path, Kind kind, MsDataFileInfo::CheckLevel level)
{
    MsDataFileInfo info;
    info.path = path;
    info.kind = kind;
    if (kind == Kind::File)
        info.size = QFileInfo(path).size();
    const VendorDataFormat format = formatOf(path, kind, level);
    if (format != VendorDataFormat::Unknown) {
        info.formatName = MsDataFormat::toString(format);
        info.description = MsFileInfo::formatDescription(format);
    }
    return info;
}

Kind kindOf(const QString &path)
{
    switch (PathUtils::kind(path)) {
    case PathUtils::Kind::File:
        return Kind::File;
    case PathUtils::Kind::Folder:
        return Kind::Folder;
    case PathUtils::Kind::Missing:
    case PathUtils::Kind::Other:
        break;
    }
    return Kind::None;
}

} // namespace ozm::msreader
