// H hour angle wanted, S local sidereal angle, α right ascension of the sun; S − α is the hour
// angle.
#include "astro/local_time.h"

#include <cmath>

#include "astro/angle.h"
#include "astro/calendar.h"
#include "astro/horizon.h"
#include "astro/invariant.h"
#include "astro/number_text.h"
#include "astro/sun.h"

namespace veyruna::astro {

namespace {

double sunHourAngle(double t, double longitude) {
  return localSiderealAngle(t, longitude) - Sun(t).eq.phi;
}

}  // namespace

double localBaseTime(std::int64_t year, std::int64_t monthIndex, std::int64_t dayIndex, double hour,
                     double longitude) {
  constexpr int mostSteps = 10;
  constexpr double toleranceRadians = 1e-5;
  const double wantedHourAngle = (hour - 12.0) * pi / 12.0;
  double t = standardBaseTime(year, monthIndex, dayIndex, hour);
  for (int step = 0; step < mostSteps; ++step) {
    const double excess = wrappedToHalfTurns(sunHourAngle(t, longitude) - wantedHourAngle);
    if (std::abs(excess) < toleranceRadians) {
      break;
    }
    t = t - excess / twoPi;
  }
  return t;
}

std::string localClockLabel(double baseTime, double longitude) {
  constexpr double minutesPerDay = 1440.0;
  const double reading = std::round((sunHourAngle(baseTime, longitude) * 12.0 / pi + 12.0) * 60.0);
  requireInvariant(std::isfinite(reading), "a local clock reading is finite");
  auto minutes = static_cast<std::int64_t>(std::fmod(reading, minutesPerDay));
  if (minutes < 0) {
    minutes += static_cast<std::int64_t>(minutesPerDay);
  }
  std::string text;
  appendPaddedInteger(text, minutes / 60, 2);
  text += ':';
  appendPaddedInteger(text, minutes % 60, 2);
  return text;
}

std::string calendarLabelWithLocalClock(double baseTime, double longitude) {
  return calendarLabel(baseTime) + "  (local " + localClockLabel(baseTime, longitude) + ")";
}

}  // namespace veyruna::astro
