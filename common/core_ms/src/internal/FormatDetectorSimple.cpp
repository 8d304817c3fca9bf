#include "internal/FormatDetectorSimple.h"

#include "internal/DetectionScope.h"
#include "internal/FormatTable.h"

namespace ozm::msreader::internal {

namespace {

using FormatSet = QSet<VendorDataFormat>;

// Answers are shared copies of these, so that a match allocates nothing.
const FormatSet &setOf(VendorDataFormat format)
{
    static const auto sets = [] {
        std::array<FormatSet, kFormats.size()> made;
        for (const FormatRow &row : kFormats)
            made[static_cast<std::size_t>(row.format)] = {row.format};
        return made;
    }();
    return sets.at(static_cast<std::size_t>(format));
}

/// False when the last characters already rule out that @p path ends with @p extension: most names fail already
/// there, at a tenth of the price. Beyond ASCII, where one letter can have several forms, it stays open.
bool mayEndWith(const QString &path, const QString &extension)
{
    constexpr char16_t kCaseBit = 0x20;
    if (path.isEmpty() || extension.isEmpty())
        return extension.isEmpty();
    const char16_t last = path.back().unicode();
    return last >= 0x80 || (last | kCaseBit) == (extension.back().unicode() | kCaseBit);
}

} // namespace

FormatDetectorSimple::FormatDetectorSimple(VendorDataFormat format, bool isFolder, const QString &extension,
                                           const QString &description)
    : m_format(format)
    , m_isFolder(isFolder)
    , m_extension(extension)
    , m_description(description)
{}

FormatDetectorSimple::FormatDetectorSimple(const FormatRow &row)
    : FormatDetectorSimple(row.format, row.storage != Storage::File, row.extension, row.description)
{}

QSet<VendorDataFormat> FormatDetectorSimple::supportedFormats() const
{
    return setOf(m_format);
}

QSet<VendorDataFormat> FormatDetectorSimple::detectFormatByName(const QString &path) const
{
    return isNameRight(path) ? supportedFormats() : FormatSet();
}

QSet<VendorDataFormat> FormatDetectorSimple::detectFormat(const QString &path) const
{
    if (!isNameRight(path))
        return {};
    return formatsIf(isKindRight(path), "extension and kind"_L1,
                     m_isFolder ? "extension, but no folder"_L1 : "extension, but no file"_L1);
}

QString FormatDetectorSimple::fileNameExtension(VendorDataFormat) const
{
    return m_extension.mid(1);
}

bool FormatDetectorSimple::isFile(VendorDataFormat) const
{
    return !m_isFolder;
}

bool FormatDetectorSimple::isFolder(VendorDataFormat) const
{
    return m_isFolder;
}

QString FormatDetectorSimple::formatDescription(VendorDataFormat) const
{
    return m_description;
}

bool FormatDetectorSimple::isNameRight(const QString &path) const
{
    return mayEndWith(path, m_extension) && path.endsWith(m_extension, Qt::CaseInsensitive);
}

bool FormatDetectorSimple::isKindRight(const QString &path) const
{
    return DetectionScope::kind(path) == (m_isFolder ? EntryKind::Folder : EntryKind::File);
}

QSet<VendorDataFormat> FormatDetectorSimple::formatsIf(bool holds, QLatin1StringView rule,
                                                       QLatin1StringView otherwise) const
{
    DetectionScope::note(holds ? rule : otherwise);
    return holds ? supportedFormats() : FormatSet();
}

} // namespace ozm::msreader::internal
