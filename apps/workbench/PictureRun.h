#pragma once

#include <ozm_common_stable/Error.h>

#include <QString>

namespace workbench {

/**
 * Leaves a picture of each window, on the sample data of the first steps, in light and in dark, in the folder "pictures"
 * below @p folder, and a page "index.html" that shows them with words and leads to what batch runs left beside it.
 *
 * Nobody needs to be at the screen, and nothing of the user's is read or written. Needs a QApplication.
 */
[[nodiscard]] ozm::Error takePictures(const QString &folder);

} // namespace workbench
