#include "internal/FormatDetectorSciex.h"

#include "internal/DetectionScope.h"
#include "internal/FormatTable.h"
#include "internal/Logging.h"

namespace ozm::msreader::internal {

namespace {

/// A lone ".wiff" is what users get wrong most often when they copy data, so it is worth a warning.
bool hasScanFile(const QString &path, const QString &scanFile, const char *warning)
{
    // Of whatever kind: a folder of this name does as well.
    if (disk::kindAt(scanFile) != EntryKind::Missing)
        return true;
    qCWarning(lcGeneric) << "File" << path << warning;
    return false;
}

} // namespace

FormatDetectorSciexWiff::FormatDetectorSciexWiff()
    : FormatDetectorSimple(*formatRow(VendorDataFormat::SciexWiff))
{}

QSet<VendorDataFormat> FormatDetectorSciexWiff::detectFormat(const QString &path) const
{
    if (!isNameRight(path) || !isKindRight(path))
        return FormatDetectorSimple::detectFormat(path);
    return formatsIf(
        hasScanFile(path, path + ".scan"_L1, "looks like ABI SCIEX WIFF file. But .wiff.scan file is absent"),
        "Sciex: .wiff and .wiff.scan files"_L1, "Sciex: no .wiff.scan file"_L1);
}

FormatDetectorSciexWiff2::FormatDetectorSciexWiff2()
    : FormatDetectorSimple(*formatRow(VendorDataFormat::SciexWiff2))
{}

QSet<VendorDataFormat> FormatDetectorSciexWiff2::detectFormat(const QString &path) const
{
    if (!isNameRight(path) || !isKindRight(path))
        return FormatDetectorSimple::detectFormat(path);
    // run.wiff2 and run.wiff share their scan file.
    return formatsIf(hasScanFile(path, path.chopped(1) + ".scan"_L1,
                                 "looks like SCIEX WIFF2 file. But .wiff.scan file is absent"),
                     "Sciex: .wiff2 and .wiff.scan files"_L1, "Sciex: no .wiff.scan file"_L1);
}

} // namespace ozm::msreader::internal
