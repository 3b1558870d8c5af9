#pragma once

#include <string>
#include <vector>

#include "almanac/events/event_source.h"
#include "cli/typed/places.h"

namespace veyruna::cli {

/// Events as a table that people read: a line an event, or one for each of the places that it is
/// told of.
class EventTable {
 public:
  /// The range tells how wide its moments are.
  EventTable(const almanac::Range& range, const std::vector<Place>& places);

  /// The line over the columns.
  [[nodiscard]] std::string header() const;

  [[nodiscard]] std::string lines(const almanac::Event& event) const;

 private:
  [[nodiscard]] std::string seenFrom(const almanac::Event& event, const Place& place) const;

  const std::vector<Place>& places_;
  std::size_t momentWidth_;
  std::size_t placeWidth_ = 0;  ///< 0 where there are not several
};

}  // namespace veyruna::cli
