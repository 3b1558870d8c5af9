#pragma once

#include <string>

#include "astro/observer.h"
#include "charts/chart_mark.h"
#include "charts/star_catalogue.h"

namespace veyruna::charts {

/// The horoscope as an SVG document: the wheel of the ecliptic sky seen from its north pole, and
/// the interpretation beside it. In black and white the stars, lines and lit bodies are black on a
/// white disc. What is drawn where, and not cut off by the wheel's edge, is added to `marks`, if
/// there are any; the document is the same.
std::string horoscope(bool blackAndWhite, const astro::Observer& observer,
                      const StarCatalogue& catalogue, ChartMarks* marks = nullptr);

}  // namespace veyruna::charts
