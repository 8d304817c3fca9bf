#pragma once

#include "MsDataFormat.h"

#include <QSet>
#include <QString>

namespace ozm::msreader {

/**
 * Facts about a format that need no look at any data.
 *
 * A format without a detector, which is Unknown and every value outside the enumeration, gives the empty
 * text or false, and a warning in "ozm.generic". Safe from any thread.
 */
class MsFileInfo
{
public:
    /// Without its dot; empty for formats that no extension tells.
    [[nodiscard]] static QString fileNameExtension(VendorDataFormat format);
    [[nodiscard]] static QString formatDescription(VendorDataFormat format);

    /// True when its samples can be single files, or folders; a format may answer yes to both.
    [[nodiscard]] static bool isFile(VendorDataFormat format);
    [[nodiscard]] static bool isFolder(VendorDataFormat format);

    /// The extensions, without dots, of all formats that are files, that are folders, and of both.
    [[nodiscard]] static const QSet<QString> &fileExtensions();
    [[nodiscard]] static const QSet<QString> &folderExtensions();
    [[nodiscard]] static const QSet<QString> &allExtensions();
};

} // namespace ozm::msreader
