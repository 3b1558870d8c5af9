#pragma once

#include <string>
#include <vector>

#include "astro/observer.h"
#include "charts/chart_mark.h"

/// What a person is told of what is drawn. Where bodies stand is said in the very figures of the
/// positions list, whatever frame a chart draws them in.
namespace veyruna::charts {

/// The lines beside the pointer, the name first: of a body its row of the positions list, of a star
/// its magnitude, sign and altitude, of chords and lines of the panel what the panel says.
std::vector<std::string> readOut(const ChartMark& mark, const astro::Observer& observer);

/// The same in one breath: the name, then sign and altitude or the rating.
std::string spoken(const ChartMark& mark, const astro::Observer& observer);

/// Two sentences on all that a chart shows: the bodies, and the figures of stars or, where there
/// is one, the interpretation.
std::string summary(const ChartMarks& marks, const astro::Observer& observer);

}  // namespace veyruna::charts
