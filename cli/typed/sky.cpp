#include "cli/typed/sky.h"

#include "astro/angle.h"
#include "astro/calendar.h"
#include "astro/local_time.h"
#include "cli/typed/arguments.h"
#include "cli/typed/dates.h"
#include "cli/typed/quoting.h"

namespace veyruna::cli {

namespace {

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

Place placeOf(const Typed& typed) {
  return typed.location.empty()
             ? placeAt(readLatitude(typed.latitude), readLongitude(typed.longitude))
             : savedPlace(typed.location);
}

Sky skyOf(const Typed& typed) {
  const Place place = placeOf(typed);
  return {.observer = {.baseTime = baseTimeOf(typed, place.longitude),
                       .latitude = place.latitude,
                       .longitude = place.longitude},
          .place = place.words};
}

}  // namespace veyruna::cli
