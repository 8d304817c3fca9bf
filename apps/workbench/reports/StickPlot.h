#pragma once

#include <QByteArray>

namespace workbench {

/// The ions of a molecule as sticks over m/z, the one of @p charge in a colour of its own: an SVG, so that its lines and
/// letters are as sharp as those of the report. Empty where @p mass is not positive.
[[nodiscard]] QByteArray stickPlot(double mass, int charge);

} // namespace workbench
