#pragma once

#include <algorithm>
#include <array>
#include <string_view>

#include "astro/planet.h"

/// How the moving bodies are told apart by colour: on both charts, in the panel and in the window.
namespace veyruna::charts {

enum class BodyColor {
  yellow,
  white,
  blue,
  red,
  orange,
  purple,
  gray,
  count  ///< none: how many there are
};

/// A colour as a chart writes it.
struct BodyShade {
  BodyColor color = BodyColor::count;
  std::string_view name;   ///< SVG's own, where a chart writes a colour by its name
  std::string_view shade;  ///< "#" and six hexadecimal digits, which it is drawn in otherwise
};

inline constexpr std::array<BodyShade, static_cast<std::size_t>(BodyColor::count)> bodyShades = {{
    {BodyColor::yellow, "yellow", "#f1c536"},
    {BodyColor::white, "white", "#ffffff"},
    {BodyColor::blue, "blue", "#407ff5"},
    {BodyColor::red, "red", "#e3463e"},
    {BodyColor::orange, "orange", "#e98739"},
    {BodyColor::purple, "purple", "#b141d5"},
    {BodyColor::gray, "gray", "#a0a0a4"},
}};

constexpr bool everyColorHasItsShadeInOrder() {
  for (std::size_t i = 0; i < bodyShades.size(); ++i) {
    const BodyShade& row = bodyShades[i];
    if (row.color != static_cast<BodyColor>(i) || row.name.empty() || row.shade.size() != 7) {
      return false;
    }
  }
  return true;
}
static_assert(everyColorHasItsShadeInOrder(), "a colour has no shade");

inline constexpr const BodyShade& shadeOf(BodyColor color) {
  return bodyShades[static_cast<std::size_t>(color)];
}

inline constexpr BodyColor sunColor = BodyColor::yellow;
inline constexpr BodyColor moonColor = BodyColor::white;

/// How a planet is drawn, and what it stands for in the interpretation.
struct PlanetStyle {
  astro::Planet planet = astro::Planet::count;
  BodyColor color = BodyColor::count;
  double size = 0.0;      ///< radius of its dot in user units
  std::string_view gift;  ///< what it gives

  [[nodiscard]] constexpr bool isComplete() const {
    return color != BodyColor::count && size > 0.0 && !gift.empty();
  }
};

inline constexpr astro::PerPlanet<PlanetStyle> planetStyles = {{
    {astro::Planet::bralo, BodyColor::blue, 0.8, "Inspiration"},
    {astro::Planet::dunmor, BodyColor::red, 0.8, "Energy"},
    {astro::Planet::galvi, BodyColor::orange, 2.4, "Endurance"},
    {astro::Planet::pallox, BodyColor::purple, 1.9, "Wisdom"},
}};

static_assert(astro::hasEveryPlanet(planetStyles), "a planet has no style");
static_assert(std::ranges::all_of(planetStyles, &PlanetStyle::isComplete),
              "something of a style is not said");

inline constexpr const PlanetStyle& styleOf(astro::Planet planet) {
  return planetStyles[indexOf(planet)];
}

/// The colour of the body of that name, as displayName writes it; gray for a name that no body has.
BodyColor colorOfBody(std::string_view name);

}  // namespace veyruna::charts
