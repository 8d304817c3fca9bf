#pragma once

#include <ozm_common_ms/MsDataSearchOptions.h>
#include <ozm_common_ms/ozm_common_ms_export.h>
#include <ozm_common_stable/Result.h>

#include <QList>
#include <QString>

namespace ozm::msreader {

/**
 * Finds mass-spectrometry data on disk and says what it is.
 *
 * All functions work where they are called and may take long on a share; MsDataSearch does the same on a
 * thread of its own. Safe from any thread.
 *
 * A search gives its samples in an order that depends on their names only: folder by folder, each in the
 * order of its entries' names without regard to letter case. It never looks into a folder that is data, and
 * lists nothing twice: what links lead to comes last, and only if it was not listed under its own name. Links
 * to a folder that contains the searched one are not followed. A searched folder that is itself data is the
 * only sample.
 *
 *     const auto info = ozm::msreader::MsDataFileUtils::inspect(droppedPath);
 *     if (info.isData())
 *         addSample(info);
 *     else
 *         showStatus(info.refusal);
 */
class OZM_COMMON_MS_EXPORT MsDataFileUtils
{
public:
    /**
     * The paths of all data in @p folder, and below it if @p recursive.
     *
     * An error when @p folder does not exist (code 1), is no folder (code 2) or cannot be read (code 4).
     * Folders further down that cannot be read are passed over.
     */
    [[nodiscard]] static Result<QList<QString>>
    searchForMSFilesAndDirectories(const QString &folder, bool recursive,
                                   MsDataFileInfo::CheckLevel checkLevel);

    /// The same search with everything that is known of each sample, handed on as it is found. A canceled
    /// search is no error.
    [[nodiscard]] static Error search(const QString &folder, const MsDataSearchOptions &options,
                                      const MsDataSearchCallbacks &callbacks);

    /// What @p path is, or why it is refused. Folders are not measured.
    [[nodiscard]] static MsDataFileInfo inspect(const QString &path);

    /// The bytes of the file at @p path, or of all files below it, links not followed; -1 when there is
    /// nothing at @p path, or when @p isCanceled, asked before every file, answers true.
    [[nodiscard]] static qint64 sizeOnDisk(const QString &path, const std::function<bool()> &isCanceled = {});
};

} // namespace ozm::msreader
