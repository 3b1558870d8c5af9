#pragma once

#include <optional>
#include <vector>

#include "almanac/events/event_source.h"
#include "cli/typed/grammar.h"
#include "cli/typed/places.h"

namespace veyruna::cli {

/// The places that were typed: none, one, or every saved one for "all".
std::vector<Place> placesOf(const Typed& typed);

/// The stretch of time that was typed; its clocks are those of the one place where --local is
/// given. Throws UsageError.
almanac::Range rangeOf(const Typed& typed, const std::vector<Place>& places);

}  // namespace veyruna::cli
