#pragma once

#include <QString>

namespace veyruna::ui {

/// "40.50° N   20.90° W": a place on the globe in radians, north and east positive, as degrees with
/// so many decimals, the same in every locale. A coordinate that is no number is a dash.
QString coordinatesText(double latitude, double longitude, int decimals = 2);

}  // namespace veyruna::ui
