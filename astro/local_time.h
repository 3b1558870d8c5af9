#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "astro/calendar.h"
#include "astro/observer.h"

/// Local solar time: the hour angle of the sun, plus noon.
namespace veyruna::astro {

/// The base time (days) at which the local solar time at `longitude` (radians, positive east) reads
/// this. The iteration ends within 1e-5 rad of the hour angle, or after ten steps with the last
/// estimate. An hour or a longitude that is not finite is a broken invariant.
double localBaseTime(const CalendarReading& reading, double longitude);

/// The day and the local solar time, rounded to the minute as localClockLabel reads it, at the
/// observer's moment: localBaseTime of it is within a minute of that moment. Nothing before the
/// first local midnight, beyond baseTimeLimitDays, or, where local days begin half a day apart from
/// standard ones, for the moments that no local reading names. A
/// moment that is not finite is beyond the limit; such a longitude is a broken invariant.
std::optional<CalendarReading> localCalendarReading(const Observer& observer);

/// "14:37": the observer's local solar time. The latitude does not matter, here and
/// below. A moment or a longitude that is not finite is a broken invariant.
std::string localClockLabel(const Observer& observer);

/// "720-01-15 11:59 OST  (local 10:42)": the observer's moment in standard time with its local
/// reading.
std::string calendarLabelWithLocalClock(const Observer& observer);

}  // namespace veyruna::astro
