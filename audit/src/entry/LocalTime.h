#pragma once

#include <QString>

namespace ozm::audit {

/// The offset and the name of the local time zone beside UTC.
struct LocalTime
{
    int utcOffset = 0; ///< Seconds east.
    QString zone;

    /// At @p ms since 1970 UTC. Looked up once in a quarter of an hour: zones change at no other time, and asking
    /// the system costs several files.
    [[nodiscard]] static LocalTime at(qint64 ms);
};

} // namespace ozm::audit
