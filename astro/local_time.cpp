// H hour angle wanted, S local sidereal angle, α right ascension of the sun; S − α is the hour
// angle.
#include "astro/local_time.h"

#include <cmath>

#include "astro/angle.h"
#include "astro/horizon.h"
#include "astro/invariant.h"
#include "astro/number_text.h"
#include "astro/sun.h"

namespace veyruna::astro {

namespace {

double sunHourAngle(const Observer& observer) {
  return localSiderealAngle(observer) - Sun(observer.baseTime).eq.phi;
}

constexpr double minutesPerDay = 1440.0;

/// Whole minutes after local midnight, 0 to 1439.
std::int64_t localMinutes(const Observer& observer) {
  const double reading = std::round((sunHourAngle(observer) * 12.0 / pi + 12.0) * 60.0);
  requireInvariant(std::isfinite(reading), "a local clock reading is finite", observer.baseTime,
                   observer.longitude);
  auto minutes = static_cast<std::int64_t>(std::fmod(reading, minutesPerDay));
  if (minutes < 0) {
    minutes += static_cast<std::int64_t>(minutesPerDay);
  }
  return minutes;
}

}  // namespace

double localBaseTime(const CalendarReading& reading, double longitude) {
  constexpr int mostSteps = 10;
  constexpr double toleranceRadians = 1e-5;
  const double wantedHourAngle = (reading.hour - 12.0) * pi / 12.0;
  double t = standardBaseTime(reading);
  for (int step = 0; step < mostSteps; ++step) {
    const double excess =
        wrappedToHalfTurns(sunHourAngle({.baseTime = t, .longitude = longitude}) - wantedHourAngle);
    if (std::abs(excess) < toleranceRadians) {
      break;
    }
    t = t - excess / twoPi;
  }
  return t;
}

std::optional<CalendarReading> localCalendarReading(const Observer& observer) {
  const double baseTime = observer.baseTime;
  if (!(std::abs(baseTime) <= baseTimeLimitDays)) {
    return std::nullopt;
  }
  const double partOfDay = static_cast<double>(localMinutes(observer)) / minutesPerDay;
  const double day = std::round(baseTime + 0.5 - partOfDay);
  // Near half a day from standard time the day may be either neighbour's.
  for (const double candidate : {day, day - 1.0, day + 1.0}) {
    const std::optional<CalendarReading> reading = calendarReading(candidate + partOfDay - 0.5);
    if (reading &&
        std::abs(localBaseTime(*reading, observer.longitude) - baseTime) < 1.0 / minutesPerDay) {
      return reading;
    }
  }
  return std::nullopt;
}

std::string localClockLabel(const Observer& observer) {
  const std::int64_t minutes = localMinutes(observer);
  std::string text;
  appendPaddedInteger(text, minutes / 60, 2);
  text += ':';
  appendPaddedInteger(text, minutes % 60, 2);
  return text;
}

std::string calendarLabelWithLocalClock(const Observer& observer) {
  return calendarLabel(observer.baseTime) + "  (local " + localClockLabel(observer) + ")";
}

}  // namespace veyruna::astro
