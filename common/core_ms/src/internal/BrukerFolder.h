#pragma once

#include "MsDataFormat.h"

class QString;

namespace ozm::msreader::internal {

/// Which of the Bruker formats @p root holds, or Unknown.
[[nodiscard]] VendorDataFormat classifyBrukerFolder(const QString &root);

/// Whether a data file that lies directly in @p root makes it Bruker data of some format; a few questions,
/// whatever else the folder holds.
[[nodiscard]] bool holdsBrukerDataFile(const QString &root);

/// Whether @p root holds spectra of the FID format.
[[nodiscard]] bool holdsBrukerSpectra(const QString &root);

} // namespace ozm::msreader::internal
