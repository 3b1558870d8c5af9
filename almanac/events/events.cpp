#include "almanac/events/events.h"

#include <algorithm>
#include <tuple>

#include "almanac/motion/motion.h"
#include "astro/horizon.h"
#include "astro/vec3d.h"
#include "astro/vector_registers.h"

namespace veyruna::almanac {

namespace {

/// A source with the event that it is at.
struct Waiting {
  OwnedSource source;
  Event event;
};

bool comesLater(const Waiting& one, const Waiting& other) {
  const auto order = [](const Event& event) {
    return std::tuple(event.baseTime, event.kind, event.body, event.other, event.place);
  };
  return order(one.event) > order(other.event);
}

/// All sources of a kind.
void addSources(EventKind kind, const EventQuery& query, std::vector<OwnedSource>& sources) {
  const Range& range = query.range;
  switch (kind) {
    case EventKind::eclipse:
      sources.push_back(eclipses(range));
      break;
    case EventKind::moon:
      sources.push_back(moons(range));
      break;
    case EventKind::season:
      sources.push_back(seasons(range));
      break;
    case EventKind::conjunction:
    case EventKind::opposition:
      for (const Body body : allBodies) {
        for (const Body other : allBodies) {
          const bool isAsked = query.withSunAndMoon.contains(kind) || planetOf(body);
          if (body < other && isAsked) {
            sources.push_back(pairings(kind, body, other, range));
          }
        }
      }
      break;
    case EventKind::sign:
      for (const Body body : allBodies) {
        sources.push_back(signEntries(body, range));
      }
      break;
    case EventKind::station:
      for (const Body body : allBodies) {
        sources.push_back(stations(body, range));
      }
      break;
    case EventKind::rise:
    case EventKind::set:
    case EventKind::culmination:
      for (const Body body : allBodies) {
        for (std::size_t place = 0; place < query.places.size(); ++place) {
          sources.push_back(passages(kind, body, query.places[place], place, range));
        }
      }
      break;
    case EventKind::count:
      break;
  }
}

}  // namespace

void forEachEventUntil(const EventQuery& query, const std::function<bool(const Event&)>& take) {
  astro::releaseUpperRegisters();
  std::vector<OwnedSource> sources;
  for (const EventKind kind : query.kinds) {
    addSources(kind, query, sources);
  }
  std::vector<Waiting> waiting;  // a heap, the earliest on top
  const auto wait = [&waiting](OwnedSource source) {
    if (const std::optional<Event> event = source->next()) {
      waiting.push_back({std::move(source), *event});
      std::ranges::push_heap(waiting, comesLater);
    }
  };
  for (OwnedSource& source : sources) {
    wait(std::move(source));
  }
  while (!waiting.empty()) {
    std::ranges::pop_heap(waiting, comesLater);
    Waiting first = std::move(waiting.back());
    waiting.pop_back();
    if (!take(first.event)) {
      return;
    }
    wait(std::move(first.source));
  }
}

void forEachEvent(const EventQuery& query, const std::function<void(const Event&)>& take) {
  forEachEventUntil(query, [&take](const Event& event) {
    take(event);
    return true;
  });
}

Sight sightOf(const Event& event, const astro::Observer& place) {
  const astro::HorizonFrame horizon(place.at(event.baseTime));
  const auto seenFrom = [&](Body body) {
    const auto [x, y, z] = courseAt(body, event.baseTime).direction;
    return horizon.toHorizon(astro::Vec3D(x, y, z));
  };
  const astro::Vec3D body = seenFrom(event.body);
  const bool needsNight = planetOf(event.body).has_value();
  return {body.theta, body.phi,
          body.theta > 0.0 && (!needsNight || seenFrom(Body::thessil).theta < 0.0)};
}

}  // namespace veyruna::almanac
