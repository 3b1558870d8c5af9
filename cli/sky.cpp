#include "cli/sky.h"

#include <cmath>

#include "astro/angle.h"
#include "astro/calendar.h"
#include "astro/local_time.h"
#include "cli/arguments.h"
#include "cli/errors.h"
#include "cli/places.h"
#include "cli/quoting.h"

namespace veyruna::cli {

namespace {

/// The first year, and the last that begins within the engine's range.
constexpr std::int64_t firstYear = 1;
constexpr std::int64_t lastYear = 2'777'778;

Place placeOf(const Typed& typed) {
  return typed.location.empty()
             ? placeAt(readLatitude(typed.latitude), readLongitude(typed.longitude))
             : savedPlace(typed.location);
}

double baseTimeOf(const Typed& typed, double longitude) {
  constexpr double limit = astro::baseTimeLimitDays;
  if (!typed.baseTime.empty()) {
    return readNumber("--base-time", typed.baseTime, -limit, limit);
  }
  const astro::CalendarReading reading{
      .year = readWholeNumber("--year", typed.year, firstYear, lastYear),
      .monthIndex = readMonthIndex(typed.month),
      .dayIndex = readWholeNumber("--day", typed.day, 1, astro::daysPerMonth) - 1,
      .hour = readHour(typed.hour)};
  const double baseTime =
      typed.isLocal ? astro::localBaseTime(reading, longitude) : astro::standardBaseTime(reading);
  return checkedBaseTime(baseTime, "--year: " + inQuotes(typed.year));
}

}  // namespace

Sky skyOf(const Typed& typed) {
  const Place place = placeOf(typed);
  return {.observer = {.baseTime = baseTimeOf(typed, place.longitude),
                       .latitude = place.latitude,
                       .longitude = place.longitude},
          .place = place.words};
}

double checkedBaseTime(double baseTime, const std::string& what) {
  if (!(std::abs(baseTime) <= astro::baseTimeLimitDays)) {
    throw UsageError(what +
                     " is too far away; moments within 1000000000 days of the epoch are accepted");
  }
  return baseTime;
}

}  // namespace veyruna::cli
