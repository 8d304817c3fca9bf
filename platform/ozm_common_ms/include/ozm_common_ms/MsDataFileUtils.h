#pragma once

#include <ozm_common_ms/MsDataFileInfo.h>
#include <ozm_common_ms/ozm_common_ms_export.h>
#include <ozm_common_stable/Result.h>

#include <QList>
#include <QString>

namespace ozm::msreader {

/**
 * Finds mass-spectrometry data on disk.
 *
 * Works where it is called and may take long on a share. Safe from any thread.
 */
class OZM_COMMON_MS_EXPORT MsDataFileUtils
{
public:
    /**
     * The paths of all data in @p folder, and below it if @p recursive, in an order that depends on names only.
     *
     * An error when @p folder does not exist (code 1), is a file (code 2) or cannot be read (code 4).
     * Folders further down that cannot be read are passed over.
     */
    [[nodiscard]] static Result<QList<QString>>
    searchForMSFilesAndDirectories(const QString &folder, bool recursive,
                                   MsDataFileInfo::CheckLevel checkLevel);
};

} // namespace ozm::msreader
