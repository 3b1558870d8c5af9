#pragma once

#include <memory>
#include <optional>

#include "almanac/events/event.h"
#include "almanac/motion/range.h"
#include "astro/observer.h"

namespace veyruna::almanac {

/// Events of one kind and of one body or pair, one after the other in time.
class EventSource {
 public:
  EventSource() = default;
  EventSource(const EventSource&) = delete;
  EventSource& operator=(const EventSource&) = delete;
  virtual ~EventSource() = default;

  /// The next one; nothing when there is none before the end that the source was made with.
  virtual std::optional<Event> next() = 0;
};

using OwnedSource = std::unique_ptr<EventSource>;

/// Node crossings that count as eclipses, each at its true moment.
OwnedSource eclipses(const Range& range);
/// New and full moons.
OwnedSource moons(const Range& range);
/// The sun at the quarters of the ecliptic.
OwnedSource seasons(const Range& range);
/// The turns of a planet; of another body there are none.
OwnedSource stations(Body body, const Range& range);
/// The signs that a body enters.
OwnedSource signEntries(Body body, const Range& range);
/// The whole intervals in which two bodies stand less than 2° from one longitude, or from opposite
/// ones, that begin before the range's end and end after its beginning; each at the first moment of
/// its least separation.
OwnedSource pairings(EventKind kind, Body body, Body other, const Range& range);
/// A body's risings, settings or culminations at a place: those of the world's centre, without
/// refraction, of the body's middle.
OwnedSource passages(EventKind kind, Body body, const astro::Observer& place, std::size_t number,
                     const Range& range);

}  // namespace veyruna::almanac
