#include "charts/body_style.h"

#include "astro/moon.h"
#include "astro/sun.h"

namespace veyruna::charts {

BodyColor colorOfBody(std::string_view name) {
  if (name == astro::sunName) {
    return sunColor;
  }
  if (name == astro::moonName) {
    return moonColor;
  }
  const auto* const planet = std::ranges::find(astro::planetFacts, name, &astro::PlanetFacts::name);
  return planet == astro::planetFacts.end() ? BodyColor::gray : styleOf(planet->planet).color;
}

}  // namespace veyruna::charts
