#pragma once

#include <QImage>

namespace workbench {

/// The ions of a molecule as sticks over m/z, the one of @p charge in a colour of its own; sharp in print. Null where
/// @p mass is not positive.
[[nodiscard]] QImage stickPlot(double mass, int charge);

} // namespace workbench
