#include "cli/almanac/asked_events.h"

#include <algorithm>
#include <string>
#include <string_view>

#include "cli/almanac/range.h"
#include "cli/typed/arguments.h"
#include "cli/typed/errors.h"
#include "cli/typed/quoting.h"

namespace veyruna::cli {

namespace {

using almanac::allEventKinds;
using almanac::EventKind;
using almanac::EventKindEntry;
using almanac::EventQuery;

/// Behind a kind of pairs: those with the sun and the moon, too.
constexpr std::string_view withSunAndMoon = ":all";

bool isOfPairs(EventKind kind) {
  return kind == EventKind::conjunction || kind == EventKind::opposition;
}

[[noreturn]] void refuseKinds(const Typed& typed) {
  std::string accepted = "one or several of ";
  for (const EventKindEntry& entry : allEventKinds) {
    accepted.append(entry.word).append(", ");
    if (isOfPairs(entry.kind)) {
      accepted.append(entry.word).append(withSunAndMoon).append(", ");
    }
  }
  refuse("--kind", typed.kinds, accepted + "with commas between them");
}

void addKind(std::string_view word, const Typed& typed, EventQuery& query) {
  const bool isWide = word.ends_with(withSunAndMoon);
  if (isWide) {
    word.remove_suffix(withSunAndMoon.size());
  }
  const auto* const found = std::ranges::find(allEventKinds, word, &EventKindEntry::word);
  if (found == allEventKinds.end() || (isWide && !isOfPairs(found->kind))) {
    refuseKinds(typed);
  }
  if (found->needsPlace && query.places.empty()) {
    throw UsageError("--kind: " + inQuotes(typed.kinds) + ": a " + std::string(word) +
                     " is seen from a place; give one with --location, or with --lat and --long");
  }
  query.kinds.insert(found->kind);
  if (isWide) {
    query.withSunAndMoon.insert(found->kind);
  }
}

}  // namespace

EventQuery askedEvents(const Typed& typed, const std::vector<Place>& places) {
  EventQuery query{.range = rangeOf(typed, places)};
  for (const Place& place : places) {
    query.places.push_back({.latitude = place.latitude, .longitude = place.longitude});
  }
  if (typed.kinds.empty()) {
    for (const EventKindEntry& entry : allEventKinds) {
      if (!entry.needsPlace || !places.empty()) {
        query.kinds.insert(entry.kind);
      }
    }
    return query;
  }
  for (std::size_t from = 0; from <= typed.kinds.size();) {
    const std::size_t comma = std::min(typed.kinds.find(',', from), typed.kinds.size());
    addKind(std::string_view(typed.kinds).substr(from, comma - from), typed, query);
    from = comma + 1;
  }
  return query;
}

}  // namespace veyruna::cli
