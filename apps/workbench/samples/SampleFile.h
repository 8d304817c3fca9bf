#pragma once

#include "samples/SampleTable.h"

#include <ozm_common_stable/Result.h>

#include <vector>

/**
 * Samples in CSV files: a line of column names (in any order and case; Name and Mass must be there), then
 * a line a sample. The columns of data are there only when a sample has data.
 */
namespace workbench::samplefile {

/// The samples in the file at @p path. Errors name the file and the line; nothing of such a file is used.
[[nodiscard]] ozm::Result<std::vector<RowNode>> read(const QString &path);

/// Replaces the file at @p path.
[[nodiscard]] ozm::Error write(const SampleTable &table, const QString &path);

} // namespace workbench::samplefile
