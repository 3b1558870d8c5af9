#pragma once

#include <string>

#include "astro/observer.h"
#include "charts/chart_mark.h"
#include "charts/star_catalogue.h"

namespace veyruna::charts {

/// The sky above an observer as an SVG document: the zenith in the middle, the horizon as the rim,
/// south at the top. What is drawn where is added to `marks`, if there are any; the document is the
/// same.
std::string starMap(const astro::Observer& observer, const StarCatalogue& catalogue,
                    ChartMarks* marks = nullptr);

}  // namespace veyruna::charts
