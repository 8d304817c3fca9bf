#pragma once

#include <QSet>
#include <QString>

namespace ozm {

/// The outcome of reading a script.
struct ScriptReading
{
    /// True when it is sure to leave nothing behind in the engine that runs it, whatever the values it is given, and
    /// to see nothing of what another such script did; one with variables(), when it is run as its function.
    bool isContained = false;
    /// An expression for a function that does what the script does, and returns its value. Empty where that is not sure.
    QString function = {};
    QSet<QString> variables = {}; ///< It would leave these behind as global ones.
    QSet<QString> names = {};     ///< All that is named in it.
};

/**
 * Decides by reading @p code: no false yes, and a no for much that would be harmless. Contained scripts share an
 * engine; others are given one of their own, which takes milliseconds to make. A function is compiled once, which takes
 * most of a short script's time.
 */
[[nodiscard]] ScriptReading readScript(const QString &code);

} // namespace ozm
