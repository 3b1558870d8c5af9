#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

#include "astro/sun.h"
#include "astro/vec3d.h"

namespace veyruna::astro {

/// The planets, in the order of every table and chart.
enum class Planet {
  bralo,
  dunmor,
  galvi,
  pallox,
  count  ///< none: how many there are
};

inline constexpr auto planetCount = static_cast<std::size_t>(Planet::count);

/// All that move: the sun, the moon and the planets.
inline constexpr std::size_t bodyCount = 2 + planetCount;

/// A value or a row for each planet, in their order.
template <class Value>
using PerPlanet = std::array<Value, planetCount>;

inline constexpr std::size_t indexOf(Planet planet) {
  return static_cast<std::size_t>(planet);
}

/// Where the bodies stand in every list of them.
inline constexpr std::size_t sunRow = 0;
inline constexpr std::size_t moonRow = 1;
inline constexpr std::size_t rowOf(Planet planet) {
  return 2 + indexOf(planet);
}

inline constexpr PerPlanet<Planet> allPlanets = [] {
  PerPlanet<Planet> all{};
  for (std::size_t i = 0; i < planetCount; ++i) {
    all[i] = static_cast<Planet>(i);
  }
  return all;
}();

/// Whether a table's rows, which name their `planet`, are those of all planets in their order. To
/// be asserted of every table, so that a planet left out does not compile.
template <class Row>
constexpr bool hasEveryPlanet(const PerPlanet<Row>& rows) {
  return std::ranges::equal(rows, allPlanets, {}, &Row::planet);
}

/// What is said of a planet wherever it is met.
struct PlanetFacts {
  Planet planet = Planet::count;
  std::string_view name;
  std::string_view code;     ///< two capitals, in the marks of pairs
  std::string_view kind;     ///< "Terrestrial" or "Gas Giant"
  double orbitRadius = 0.0;  ///< in distances of the world from its sun: (|period| / 360)^(2/3)
  double orbitPeriod = 0.0;  ///< days; negative for one that runs against the others
  double orbitPhase = 0.0;   ///< added to the heliocentric motion, revolutions; whole ones are idle

  [[nodiscard]] constexpr bool isComplete() const {
    return !name.empty() && code.size() == 2 && !kind.empty() && orbitRadius > 0.0 &&
           orbitPeriod != 0.0;
  }
};

inline constexpr PerPlanet<PlanetFacts> planetFacts = {{
    {Planet::bralo, "Bralo", "BR", "Terrestrial", 0.6712873444586567, -198.00000000000003,
     5.026548245743669},
    {Planet::dunmor, "Dunmor", "DU", "Terrestrial", 1.5874010519681996, 720.0, 1.2566370614359172},
    {Planet::galvi, "Galvi", "GA", "Gas Giant", 4.641588833612779, 3600.0, 2.5132741228718345},
    {Planet::pallox, "Pallox", "PA", "Gas Giant", 19.332111165970602, 30600.0, 3.7699111843077517},
}};

static_assert(hasEveryPlanet(planetFacts), "a planet has no facts");
static_assert(std::ranges::all_of(planetFacts, &PlanetFacts::isComplete),
              "something of a planet is not said");

inline constexpr const PlanetFacts& factsOf(Planet planet) {
  return planetFacts[indexOf(planet)];
}

/// "Bralo", "Dunmor", "Galvi", "Pallox".
inline constexpr std::string_view displayName(Planet planet) {
  return factsOf(planet).name;
}

/// Direction of the planet from the world at base time `t` (days), in the ecliptic frame: `phi` is
/// the longitude in (−π, π], as atan2 gives it, `theta` is 0.
Vec3D planetEcliptic(Planet planet, double t);

/// The same where the sun of that moment is at hand.
Vec3D planetEcliptic(Planet planet, double t, const Sun& sun);

}  // namespace veyruna::astro
