#pragma once

#include <functional>
#include <set>
#include <vector>

#include "almanac/events/event_source.h"

namespace veyruna::almanac {

/// Which events are sought.
struct EventQuery {
  Range range = {};
  std::set<EventKind> kinds = {};
  /// Of conjunctions and oppositions: pairs with the sun and the moon, too, not the planets alone.
  std::set<EventKind> withSunAndMoon = {};
  std::vector<astro::Observer> places =
      {};  ///< of risings and the like; their moments do not matter
};

/// Hands on every event of the query in the order of their moments; those of one moment in the
/// order of kinds, then of bodies, then of places. One at a time: memory does not grow with the
/// range.
void forEachEvent(const EventQuery& query, const std::function<void(const Event&)>& take);
/// The same until `take` says false.
void forEachEventUntil(const EventQuery& query, const std::function<bool(const Event&)>& take);

/// How an event is seen from a place at its moment: the body that it is about, from the world's
/// middle.
struct Sight {
  double altitude = 0.0;  ///< radians
  double azimuth = 0.0;   ///< radians, from the south point through the west
  bool isSeen = false;    ///< above the horizon and, for a planet, with the sun below it
};
Sight sightOf(const Event& event, const astro::Observer& place);

}  // namespace veyruna::almanac
