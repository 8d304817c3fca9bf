#pragma once

#include <ozm_common_stable/ozm_common_stable_export.h>

#include <QString>

namespace ozm {

/**
 * The folder to read when @p path names a data file inside a vendor's raw folder, and @p path otherwise.
 *
 * Users pick what they know: "analysis.baf" in "Run.d". What is read is the folder, "Run.d". Known are, in
 * any letter case, the data files that lie directly in a ".d" folder (analysis.* and the folder's own ".u2"
 * file) and the "fid" files below its spots, as in "Run.d/0_A1/1/1SRef/fid".
 *
 * Looks at the text only. Sets *@p changed, which may be null, when the answer differs from @p path, and
 * leaves it as it is otherwise, so that one flag serves a list of paths.
 */
[[nodiscard]] OZM_COMMON_STABLE_EXPORT QString adjustBrukerFilenPathToFolderPath(const QString &path,
                                                                                 bool *changed);

} // namespace ozm
