#pragma once

#include <QStringList>

class QWidget;

namespace ozm::test {

/// The things that a window lacks for those who do without mouse, or without eyes, in one line each.
struct Inspection
{
    QStringList findings;
    int controls = 0; ///< Those that take the focus.
    /// The lowest ratios of what is drawn to what is behind it; 21 where nothing is drawn.
    double textContrast = 21;
    double iconContrast = 21;
};

/**
 * Walks what @p window tells a screen reader, its keys, and its pixels.
 *
 * Each control that takes the focus has a name and a role; so has each button that shows an icon alone. No key stands
 * for two things. Each button of a tool bar can be reached without a mouse. Tables have headers. Text is drawn at
 * 4.5 to 1 against what is behind it, icons at 3 to 1; what is disabled is left out. Labels, buttons, boxes to choose
 * from, fields, tabs and headers have the room that their texts take in their font.
 */
[[nodiscard]] Inspection inspect(QWidget &window);

} // namespace ozm::test
