#pragma once

class QTextDocument;

namespace ozm::editor {

// Lengths of HTML are in pixels of this size, whatever the screen.
inline constexpr double kPixelsPerInch = 96;

/// Gives letters whose size is in pixels that size in points. Pixels would be those of the device, too small to read on
/// paper, and the same at every zoom.
void sizeLettersInPoints(QTextDocument &document);

} // namespace ozm::editor
