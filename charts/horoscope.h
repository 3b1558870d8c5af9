#pragma once

#include <string>

#include "astro/observer.h"
#include "charts/star_catalogue.h"

namespace veyruna::charts {

/// The horoscope as an SVG document: the wheel of the ecliptic sky seen from its north pole, and
/// the interpretation beside it. In black and white the stars, lines and lit bodies are black on a
/// white disc.
std::string horoscope(bool blackAndWhite, const astro::Observer& observer,
                      const StarCatalogue& catalogue);

}  // namespace veyruna::charts
