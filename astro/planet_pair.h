#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <string>

#include "astro/planet.h"

namespace veyruna::astro {

/// Two planets, the earlier in their order first.
struct PlanetPair {
  Planet first = Planet::count;
  Planet second = Planet::count;

  friend bool operator==(const PlanetPair&, const PlanetPair&) = default;
};

inline constexpr std::size_t planetPairCount = planetCount * (planetCount - 1) / 2;

/// A value or a row for each pair, in the order of a table's own.
template <class Value>
using PerPlanetPair = std::array<Value, planetPairCount>;

/// Every pair once: those of the first planet, then those of the second, and so on.
inline constexpr PerPlanetPair<PlanetPair> allPlanetPairs = [] {
  PerPlanetPair<PlanetPair> all{};
  std::size_t row = 0;
  for (std::size_t first = 0; first < planetCount; ++first) {
    for (std::size_t second = first + 1; second < planetCount; ++second) {
      all[row++] = {allPlanets[first], allPlanets[second]};
    }
  }
  return all;
}();

/// Whether a table's rows, which name their `pair`, hold each pair once, in whatever order. To be
/// asserted of every table, so that a pair left out does not compile.
template <class Row>
constexpr bool hasEveryPair(const PerPlanetPair<Row>& rows) {
  return std::ranges::all_of(allPlanetPairs, [&rows](const PlanetPair& pair) {
    return std::ranges::count(rows, pair, &Row::pair) == 1;
  });
}

/// "BR-DU".
inline void appendCode(std::string& out, const PlanetPair& pair) {
  out += factsOf(pair.first).code;
  out += '-';
  out += factsOf(pair.second).code;
}

}  // namespace veyruna::astro
