#include "cli/typed/sky.h"

#include "astro/angle.h"
#include "astro/calendar.h"
#include "astro/local_time.h"
#include "words/dates.h"
#include "words/quoting.h"
#include "words/values.h"

namespace veyruna::cli {

namespace {

double baseTimeOf(const Typed& typed, double longitude) {
  constexpr double limit = astro::baseTimeLimitDays;
  if (!typed.baseTime.empty()) {
    return words::readNumber("--base-time", typed.baseTime, -limit, limit);
  }
  const astro::CalendarReading reading{
      .year = words::readWholeNumber("--year", typed.year, words::firstYear, words::lastYear),
      .monthIndex = words::readMonthIndex("--month", typed.month),
      .dayIndex = words::readWholeNumber("--day", typed.day, 1, astro::daysPerMonth) - 1,
      .hour = words::readHour("--hour", typed.hour)};
  const double baseTime =
      typed.isLocal ? astro::localBaseTime(reading, longitude) : astro::standardBaseTime(reading);
  return words::checkedBaseTime(baseTime, "--year: " + words::inQuotes(typed.year));
}

}  // namespace

Place placeOf(const Typed& typed) {
  return typed.location.empty() ? placeAt(words::readLatitude("--lat", typed.latitude),
                                          words::readLongitude("--long", typed.longitude))
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
