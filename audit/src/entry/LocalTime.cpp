#include "LocalTime.h"

#include <QDateTime>
#include <QTimeZone>

namespace ozm::audit {

namespace {

constexpr qint64 kQuarterMs = 900'000;

} // namespace

LocalTime LocalTime::at(qint64 ms)
{
    thread_local qint64 quarter = -1;
    thread_local LocalTime known;
    if (quarter != ms / kQuarterMs) {
        known = {QDateTime::fromMSecsSinceEpoch(ms).offsetFromUtc(),
                 QString::fromLatin1(QTimeZone::systemTimeZoneId())};
        quarter = ms / kQuarterMs;
    }
    return known;
}

} // namespace ozm::audit
