#pragma once

#include <optional>
#include <string>

#include "almanac/events/event.h"
#include "astro/observer.h"
#include "records/record.h"

namespace veyruna::records {

/// What happens in a stretch of time.
const RecordType& eventsType();

/// From where an event is looked at.
struct Lookout {
  std::string name;       ///< or its coordinates, in words
  astro::Observer place;  ///< its moment does not matter
};

/// A row of eventsType. Of an event without a lookout it is not said where anything stands.
Row eventRow(const almanac::Event& event, const std::optional<Lookout>& lookout);

}  // namespace veyruna::records
