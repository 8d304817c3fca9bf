#pragma once

#include "MsDataFormat.h"

class QString;

namespace ozm::msreader::internal {

/// Which of the Bruker formats @p root holds, or Unknown.
[[nodiscard]] VendorDataFormat classifyBrukerFolder(const QString &root);

/// Whether a data file that today's instruments leave in @p root makes it Bruker data of some format: a few
/// questions, whatever else the folder holds. False leaves it open.
[[nodiscard]] bool holdsCommonBrukerFile(const QString &root);

} // namespace ozm::msreader::internal
