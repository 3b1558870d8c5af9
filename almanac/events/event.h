#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string_view>

#include "almanac/motion/body.h"
#include "reports/zodiac.h"

namespace veyruna::almanac {

/// What an event is one of, in the order of every list of them.
enum class EventKind {
  eclipse,
  moon,
  conjunction,
  opposition,
  sign,
  station,
  season,
  rise,
  set,
  culmination,
  count
};

/// What is said of a kind.
struct EventKindEntry {
  EventKind kind = EventKind::count;
  std::string_view word;     ///< as it is asked for
  std::string_view summary;  ///< one line of help
  bool needsPlace = false;
};

inline constexpr auto eventKindCount = static_cast<std::size_t>(EventKind::count);

/// Every kind, in their order.
extern const std::array<EventKindEntry, eventKindCount> allEventKinds;

const EventKindEntry& entryOf(EventKind kind);

/// Something that happens in the sky. What a kind does not have stays empty.
struct Event {
  EventKind kind = EventKind::count;
  double baseTime = 0.0;             ///< days
  Body body = Body::count;           ///< that it is about: the first of a pair
  Body other = Body::count;          ///< the second of a pair
  std::optional<double> begin = {};  ///< of a pair, days: when it comes within the orb
  std::optional<double> end = {};    ///< of a pair, days: when it leaves it
  double separation = 0.0;           ///< of a pair at its moment, radians from 0 or from π
  std::string_view code = {};        ///< of an eclipse: TS, PS, FUL, FPL, PPL
  bool isFull = false;               ///< of the moon: full, else new
  int quarter = 0;                   ///< of a season: the sun's longitude in right angles
  const reports::ZodiacSign* sign = nullptr;  ///< the one that is entered
  bool isForward = true;  ///< of a sign: how it is entered; of a station: what follows
  std::size_t place = 0;  ///< of a rise, set or culmination: which of the places asked for
};

}  // namespace veyruna::almanac
