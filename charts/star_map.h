#pragma once

#include <string>

#include "charts/star_catalogue.h"

namespace veyruna::charts {

/// The sky above an observer as an SVG document: the zenith in the middle, the horizon as the rim,
/// south at the top. `t` in days of base time, place in radians, north and east positive.
std::string starMap(double t, double latitude, double longitude, const StarCatalogue& catalogue);

}  // namespace veyruna::charts
