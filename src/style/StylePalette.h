#pragma once

#include <QPalette>

namespace ozm {

/// Colours for each role, readable against each other, light or dark.
[[nodiscard]] QPalette stylePalette(bool dark);

} // namespace ozm
