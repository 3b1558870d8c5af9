#pragma once

#include <string>

#include "astro/observer.h"
#include "cli/typed/grammar.h"
#include "cli/typed/places.h"

namespace veyruna::cli {

/// The moment and place that were typed.
struct Sky {
  astro::Observer observer;
  std::string place;  ///< in words
};

/// The place that was typed, or that of a first start. Throws UsageError.
Place placeOf(const Typed& typed);

/// Throws UsageError where a part of it is not accepted or lies too far away.
Sky skyOf(const Typed& typed);

}  // namespace veyruna::cli
