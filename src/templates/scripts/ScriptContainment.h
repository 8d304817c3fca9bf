#pragma once

#include <QString>

namespace ozm {

/**
 * True when @p code is sure to leave nothing behind in the engine that runs it, whatever the values it is
 * given, and to see nothing of what another such script did.
 *
 * Decided by reading it: no false yes, and a no for much that would be harmless. Contained scripts share an
 * engine; others are given one of their own, which takes a millisecond to make.
 */
[[nodiscard]] bool isContainedScript(const QString &code);

} // namespace ozm
