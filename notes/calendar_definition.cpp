#include "notes/calendar_definition.h"

#include "almanac/events/event_source.h"
#include "astro/invariant.h"

namespace veyruna::notes {

astro::CalendarMoment firstNewMoonOf(std::int64_t year) {
  const double begin =
      astro::standardBaseTime({.year = year, .monthIndex = 0, .dayIndex = 0, .hour = 0.0});
  const almanac::OwnedSource moons =
      almanac::moons({.from = begin, .to = begin + astro::daysPerYear});
  while (const std::optional<almanac::Event> moon = moons->next()) {
    const std::optional<astro::CalendarMoment> moment = astro::calendarMoment(moon->baseTime);
    if (!moon->isFull && moment) {
      return *moment;
    }
  }
  astro::stopOnBrokenInvariant("every year from the first has new moons",
                               {astro::InvariantValue(year)});
}

}  // namespace veyruna::notes
