#pragma once

#include <algorithm>
#include <cmath>
#include <rapidcheck.h>

#include "ui/map/map_projection.h"

namespace veyruna::tests {

/// A place well inside what the picture shows: between its western edge, or 45° west, and 45° east.
inline ui::MapPlace someShownPlace() {
  constexpr double degree = astro::pi / 180.0;
  const auto part = [] { return 0.0001 + 0.9998 * *rc::gen::inRange(0, 1'000'001) / 1e6; };
  const double latitude = 60.0 * part();
  const double cosine = std::cos(latitude * degree);
  const double west = std::max(-45.0, -1768.0 / (470.0 / 9.0 * cosine));
  return {latitude * degree, (west + (45.0 - west) * part()) * degree};
}

}  // namespace veyruna::tests
