#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "astro/calendar.h"

/// Local solar time: the hour angle of the sun, plus noon.
namespace veyruna::astro {

/// The base time (days) at which the local solar time at `longitude` (radians, positive east) reads
/// `hour` on the given day; see standardBaseTime for the other arguments. The iteration ends within
/// 1e-5 rad of the hour angle, or after ten steps with the last estimate.
double localBaseTime(std::int64_t year, std::int64_t monthIndex, std::int64_t dayIndex, double hour,
                     double longitude);

/// The day and the local solar time, rounded to the minute as localClockLabel reads it, of a base
/// time at `longitude`: localBaseTime of it is within a minute of the base time. Nothing before the
/// first local midnight, beyond baseTimeLimitDays, or, where local days begin half a day apart from
/// standard ones, for the moments that no local reading names.
std::optional<CalendarReading> localCalendarReading(double baseTime, double longitude);

/// "14:37": the local solar time at `longitude` (radians) at a base time (days).
std::string localClockLabel(double baseTime, double longitude);

/// "720-01-15 11:59 OST  (local 10:42)": a moment in standard time with its local reading.
std::string calendarLabelWithLocalClock(double baseTime, double longitude);

}  // namespace veyruna::astro
