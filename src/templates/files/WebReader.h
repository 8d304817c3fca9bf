#pragma once

#include <ozm_common_stable/Result.h>

class QString;

namespace ozm {

/**
 * The body of the HTML page @p page. The web reader is loaded with the first page.
 *
 * Template scripts, "<script>" to "</script>" without attributes, come through to the letter. Looks for the
 * plug-in below the folder of this library, in ozm_widgets/plugins, and then in ozm_widgets below each of
 * QCoreApplication::libraryPaths(). Code 3 when there is none, or no GUI thread to run it on; code 1 when it
 * failed.
 */
[[nodiscard]] Result<QString> bodyOfPage(const QString &page);

} // namespace ozm
