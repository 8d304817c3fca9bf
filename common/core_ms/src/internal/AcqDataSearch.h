#pragma once

class QString;

namespace ozm::msreader::internal {

/// Whether @p folder, whose name ends in ".d", holds its "AcqData" folder where acquisitions put it: one
/// question, which also a folder that may not be listed answers.
[[nodiscard]] bool holdsAcqDataDirectly(const QString &folder);

/**
 * Whether a folder "AcqData", in any letter case, lies in @p folder, whose name ends in ".d", or in another
 * folder of such a name anywhere below it, links followed.
 *
 * Looks at folders only. The files that also mark an acquisition ("msprofile.bin", "mspeak.bin" and
 * "msscan.bin" in ".d/AcqData") need no look: the folder they lie in has decided before. Every folder is read
 * once, whatever number of links leads to it, and the answer does not depend on the order of entries.
 */
[[nodiscard]] bool holdsAcqDataBelow(const QString &folder);

} // namespace ozm::msreader::internal
