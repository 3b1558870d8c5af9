#pragma once

#include <optional>
#include <string>

#include "almanac/events/event.h"
#include "astro/calendar.h"
#include "records/event_record.h"

namespace veyruna::notes {

/// What an event is called among all events, the same wherever the search for it began:
/// "720-06-12-pm-conjunction-bralo-galvi". Half a day, the kind, the bodies and, of a sign, which
/// one: no two events have all of these in common. Those that belong to a place have the hour
/// instead of the half day, the place's name and a number of it:
/// "720-06-12-22h-rise-ivro-ebb-b42bb57ada8ee93d". Lower-case letters, digits and hyphens, at most
/// 90, so that it is a name of a file everywhere.
std::string idOf(const almanac::Event& event, const astro::CalendarMoment& moment,
                 const std::optional<records::Lookout>& place);

}  // namespace veyruna::notes
