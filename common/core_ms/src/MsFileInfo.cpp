#include "MsFileInfo.h"

#include "internal/FormatRegistry.h"
#include "internal/FormatTable.h"
#include "internal/Logging.h"

namespace ozm::msreader {

namespace {

using internal::FormatDetectorBase;

const FormatDetectorBase *detectorOrWarning(VendorDataFormat format)
{
    const FormatDetectorBase *detector = internal::detectorOf(format);
    if (!detector)
        qCWarning(lcGeneric).noquote() << "Unknown file format:" << MsDataFormat::toString(format);
    return detector;
}

QSet<QString> gatherExtensions(bool (FormatDetectorBase::*isOfKind)(VendorDataFormat) const)
{
    QSet<QString> extensions;
    for (const internal::FormatRow &row : internal::kFormats) {
        // Asked directly, not through the facade, which would warn of Unknown.
        const FormatDetectorBase *detector = internal::detectorOf(row.format);
        if (!detector || !(detector->*isOfKind)(row.format))
            continue;
        const QString extension = detector->fileNameExtension(row.format);
        if (!extension.isEmpty())
            extensions.insert(extension);
    }
    return extensions;
}

} // namespace

QString MsFileInfo::fileNameExtension(VendorDataFormat format)
{
    const FormatDetectorBase *detector = detectorOrWarning(format);
    return detector ? detector->fileNameExtension(format) : QString();
}

QString MsFileInfo::formatDescription(VendorDataFormat format)
{
    const FormatDetectorBase *detector = detectorOrWarning(format);
    return detector ? detector->formatDescription(format) : QString();
}

bool MsFileInfo::isFile(VendorDataFormat format)
{
    const FormatDetectorBase *detector = detectorOrWarning(format);
    return detector && detector->isFile(format);
}

bool MsFileInfo::isFolder(VendorDataFormat format)
{
    const FormatDetectorBase *detector = detectorOrWarning(format);
    return detector && detector->isFolder(format);
}

const QSet<QString> &MsFileInfo::fileExtensions()
{
    static const QSet<QString> extensions = gatherExtensions(&FormatDetectorBase::isFile);
    return extensions;
}

const QSet<QString> &MsFileInfo::folderExtensions()
{
    static const QSet<QString> extensions = gatherExtensions(&FormatDetectorBase::isFolder);
    return extensions;
}

const QSet<QString> &MsFileInfo::allExtensions()
{
    static const QSet<QString> extensions = fileExtensions() | folderExtensions();
    return extensions;
}

} // namespace ozm::msreader
