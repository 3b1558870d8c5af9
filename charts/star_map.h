#pragma once

#include <string>

#include "astro/observer.h"
#include "charts/star_catalogue.h"

namespace veyruna::charts {

/// The sky above an observer as an SVG document: the zenith in the middle, the horizon as the rim,
/// south at the top.
std::string starMap(const astro::Observer& observer, const StarCatalogue& catalogue);

}  // namespace veyruna::charts
