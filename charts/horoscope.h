#pragma once

#include <string>

#include "charts/star_catalogue.h"

namespace veyruna::charts {

/// The horoscope as an SVG document: the wheel of the ecliptic sky seen from its north pole, and
/// the interpretation beside it. `t` in days of base time, place in radians, north and east
/// positive. In black and white the stars, lines and lit bodies are black on a white disc.
std::string horoscope(bool blackAndWhite, double t, double latitude, double longitude,
                      const StarCatalogue& catalogue);

}  // namespace veyruna::charts
