#pragma once

#include <array>
#include <string_view>

#include "astro/planet.h"

namespace veyruna::charts {

/// How a planet's dot is drawn on both charts.
struct PlanetStyle {
  std::string_view color;
  double size;  ///< radius in user units
};

inline constexpr std::array<PlanetStyle, 4> planetStyles = {
    {{"#407ff5", 0.8}, {"#e3463e", 0.8}, {"#e98739", 2.4}, {"#b141d5", 1.9}}};

inline const PlanetStyle& styleOf(astro::Planet planet) {
  return planetStyles[indexOf(planet)];
}

}  // namespace veyruna::charts
