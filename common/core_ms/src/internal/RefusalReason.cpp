#include "internal/RefusalReason.h"

#include "FormatDetection.h"
#include "internal/FolderReader.h"
#include "internal/FormatTable.h"

#include <ozm_common_core_mini/PathUtils.h>

#include <algorithm>

namespace ozm::msreader::internal {

namespace {

using Kind = PathUtils::Kind;

/// What is missing in data of the right name and kind.
struct MissingPart
{
    QLatin1StringView extension;
    Kind kind;
    QLatin1StringView text;
};

constexpr std::array kMissingParts{
    MissingPart{
        ".d"_L1, Kind::Folder,
        "The folder holds neither an \"AcqData\" folder (Agilent) nor \"fid\" files or a complete set of "
        "\"analysis\" files (Bruker)."_L1},
    MissingPart{".raw"_L1, Kind::Folder, "The folder holds no \"_FUNC001.DAT\" file (Waters)."_L1},
    MissingPart{".wiff"_L1, Kind::File, "The \".wiff.scan\" file that belongs to it is missing."_L1},
    MissingPart{".wiff2"_L1, Kind::File, "The \".wiff.scan\" file that belongs to it is missing."_L1},
};

bool canBe(const FormatRow &row, Kind kind)
{
    return row.storage == Storage::FileOrFolder ||
           row.storage == (kind == Kind::Folder ? Storage::Folder : Storage::File);
}

bool isReadableFolder(const QString &path)
{
    FolderReader reader(path);
    while (reader.next()) {
    }
    return reader.isComplete();
}

QString reasonInside(const QString &path, Kind kind)
{
    if (kind == Kind::Folder && !isReadableFolder(path))
        return u"The folder cannot be read."_s;
    const auto part = std::ranges::find_if(kMissingParts, [&](const MissingPart &row) {
        return row.kind == kind && path.endsWith(row.extension, Qt::CaseInsensitive);
    });
    return part != kMissingParts.end() ? QString(part->text) : u"It changed while it was looked at."_s;
}

QString descriptionsOf(const QSet<VendorDataFormat> &formats)
{
    QStringList descriptions;
    for (const VendorDataFormat format : formats)
        descriptions.append(formatRow(format)->description);
    descriptions.sort();
    descriptions.removeDuplicates();
    return descriptions.join(", "_L1);
}

QString reasonOfKind(const QSet<VendorDataFormat> &named, Kind kind)
{
    const QString text = kind == Kind::Folder
                             ? u"Data with this name (%1) is a file, but this is a folder."_s
                             : u"Data with this name (%1) is a folder, but this is a file."_s;
    return text.arg(descriptionsOf(named));
}

} // namespace

QString refusalReason(const QString &path)
{
    const Kind kind = PathUtils::kind(path);
    if (kind == Kind::Missing)
        return u"There is no such file or folder."_s;
    if (kind == Kind::Other)
        return u"It is neither a file nor a folder."_s;
    const QSet<VendorDataFormat> named = detectFormats(DataSourceLocation::fromLocalPath(path), true, false);
    if (named.isEmpty())
        return u"The name has none of the extensions of mass-spectrometry data."_s;
    const bool isKindRight = std::ranges::any_of(
        named, [kind](VendorDataFormat format) { return canBe(*formatRow(format), kind); });
    return isKindRight ? reasonInside(path, kind) : reasonOfKind(named, kind);
}

} // namespace ozm::msreader::internal
