#pragma once

#include <string_view>

#include "almanac/events/events.h"

namespace veyruna::words {

/// Puts the kinds of events into the query that a list such as "moon,conjunction:all" names; all
/// that can be seen from the query's places, or without one, for an empty list. `places` says how a
/// place is given. Throws UsageError in which `what` names the list.
void readEventKinds(std::string_view what, std::string_view list, std::string_view places,
                    almanac::EventQuery& query);

}  // namespace veyruna::words
