#pragma once

#include <string>

#include "astro/observer.h"
#include "cli/grammar.h"

namespace veyruna::cli {

/// The moment and place that were typed.
struct Sky {
  astro::Observer observer;
  std::string place;  ///< in words
};

/// Throws UsageError where a part of it is not accepted or lies too far away.
Sky skyOf(const Typed& typed);

/// The base time itself, where it is within the engine's range. Throws UsageError, in which `what`
/// names the moment.
double checkedBaseTime(double baseTime, const std::string& what);

}  // namespace veyruna::cli
