#include "words/event_kinds.h"

#include <algorithm>
#include <string>

#include "words/quoting.h"
#include "words/usage_error.h"
#include "words/values.h"

namespace veyruna::words {

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

std::string acceptedKinds() {
  std::string accepted = "one or several of ";
  for (const EventKindEntry& entry : allEventKinds) {
    accepted.append(entry.word).append(", ");
    if (isOfPairs(entry.kind)) {
      accepted.append(entry.word).append(withSunAndMoon).append(", ");
    }
  }
  return accepted + "with commas between them";
}

void addAllKinds(EventQuery& query) {
  for (const EventKindEntry& entry : allEventKinds) {
    if (!entry.needsPlace || !query.places.empty()) {
      query.kinds.insert(entry.kind);
    }
  }
}

}  // namespace

void readEventKinds(std::string_view what, std::string_view list, std::string_view places,
                    EventQuery& query) {
  if (list.empty()) {
    addAllKinds(query);
    return;
  }
  for (std::size_t from = 0; from <= list.size();) {
    const std::size_t comma = std::min(list.find(',', from), list.size());
    std::string_view word = list.substr(from, comma - from);
    from = comma + 1;
    const bool isWide = word.ends_with(withSunAndMoon);
    if (isWide) {
      word.remove_suffix(withSunAndMoon.size());
    }
    const auto* const found = std::ranges::find(allEventKinds, word, &EventKindEntry::word);
    if (found == allEventKinds.end() || (isWide && !isOfPairs(found->kind))) {
      refuse(what, list, acceptedKinds());
    }
    if (found->needsPlace && query.places.empty()) {
      throw UsageError(std::string(what) + ": " + inQuotes(list) + ": a " + std::string(word) +
                       " is seen from a place; " + std::string(places));
    }
    query.kinds.insert(found->kind);
    if (isWide) {
      query.withSunAndMoon.insert(found->kind);
    }
  }
}

}  // namespace veyruna::words
