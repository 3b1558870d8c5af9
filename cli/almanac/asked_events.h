#pragma once

#include <vector>

#include "almanac/events/events.h"
#include "cli/typed/grammar.h"
#include "cli/typed/places.h"

namespace veyruna::cli {

/// The events that were asked for: those of --kind, or all that can be told of the places. Throws
/// UsageError.
almanac::EventQuery askedEvents(const Typed& typed, const std::vector<Place>& places);

}  // namespace veyruna::cli
