#include "cli/almanac/asked_events.h"

#include "cli/typed/range.h"
#include "words/event_kinds.h"

namespace veyruna::cli {

almanac::EventQuery askedEvents(const Typed& typed, const std::vector<Place>& places) {
  almanac::EventQuery query{.range = rangeOf(typed, places)};
  for (const Place& place : places) {
    query.places.push_back({.latitude = place.latitude, .longitude = place.longitude});
  }
  words::readEventKinds("--kind", typed.kinds, "give one with --location, or with --lat and --long",
                        query);
  return query;
}

}  // namespace veyruna::cli
