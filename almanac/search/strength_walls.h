#pragma once

#include "astro/angle.h"
#include "charts/verdict.h"

namespace veyruna::almanac {

/// The separations, in radians, between which two longitudes are together of one strength. For the
/// strongest and the weakest both are the one that they have.
struct StrengthWalls {
  double inner;
  double outer;
};

constexpr StrengthWalls wallsOf(charts::Strength strength) {
  const auto row = static_cast<std::size_t>(strength);
  const bool isStrongest = row == 0;
  const bool isWeakest = row + 1 == charts::strengths.size();
  const double inner = charts::strengths[isWeakest ? row - 1 : row].above;
  const double outer = charts::strengths[isStrongest ? row : row - 1].above;
  constexpr double radiansPerUnit = astro::twoPi / charts::unitsPerTurn;
  return {inner * radiansPerUnit, outer * radiansPerUnit};
}

}  // namespace veyruna::almanac
