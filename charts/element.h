#pragma once

#include <algorithm>
#include <string_view>

#include "astro/planet_pair.h"

namespace veyruna::charts {

/// Every two planets together are an element: a chord on the wheel and a row of the panel.
struct Element {
  astro::PlanetPair pair;
  std::string_view name;
  std::string_view bodyPart;
  std::string_view color;      ///< of the chord and of the stroke beside the row
  std::size_t chordPlace = 0;  ///< from 0, in the order in which the chords are drawn

  [[nodiscard]] constexpr bool isComplete() const {
    return !name.empty() && !bodyPart.empty() && !color.empty();
  }
};

/// In the panel's order.
inline constexpr astro::PerPlanetPair<Element> elements = {{
    {{astro::Planet::bralo, astro::Planet::pallox}, "Marthel", "Brain (Ethereal)", "purple", 2},
    {{astro::Planet::dunmor, astro::Planet::pallox}, "Tobrin", "Lungs (Plenary)", "pink", 4},
    {{astro::Planet::bralo, astro::Planet::dunmor}, "Quorane", "Heart (Impulse)", "orange", 1},
    {{astro::Planet::dunmor, astro::Planet::galvi}, "Kellam", "Bones (Material)", "yellow", 3},
    {{astro::Planet::bralo, astro::Planet::galvi}, "Umbrik", "Gonads (Plenary)", "green", 0},
    {{astro::Planet::galvi, astro::Planet::pallox}, "Zerathe", "Stomach (Repose)", "blue", 5},
}};

static_assert(astro::hasEveryPair(elements), "a pair of planets is no element, or two");
static_assert(std::ranges::all_of(elements, &Element::isComplete),
              "something of an element is not said");

/// In the order in which the chords are drawn.
inline constexpr astro::PerPlanetPair<Element> elementsByChord = [] {
  astro::PerPlanetPair<Element> sorted = elements;
  std::ranges::sort(sorted, {}, &Element::chordPlace);
  return sorted;
}();

constexpr bool everyChordHasItsPlace() {
  for (std::size_t place = 0; place < elementsByChord.size(); ++place) {
    if (elementsByChord[place].chordPlace != place) {
      return false;
    }
  }
  return true;
}
static_assert(everyChordHasItsPlace(), "two chords have one place");

}  // namespace veyruna::charts
