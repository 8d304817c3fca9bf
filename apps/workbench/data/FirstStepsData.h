#pragma once

#include <ozm_common_stable/Error.h>

#include <QString>

namespace workbench {

/**
 * Writes what the first steps are made with into @p folder, which must be there: "samples.csv", a table of peptides, and
 * "data", a study with data of several vendors and with what only looks like data.
 *
 * The mzML and MGF files are small but valid; those of vendors are zeros, which is enough to be recognised. Any thread.
 */
[[nodiscard]] ozm::Error writeFirstStepsData(const QString &folder);

} // namespace workbench
