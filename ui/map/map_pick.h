#pragma once

#include <QString>

#include "model/astronomy_model.h"
#include "ui/map/map_projection.h"

namespace veyruna::ui {

/// A place as the map shows it under the pointer: "40.500° N   20.900° W", three decimals, the same
/// in every locale.
QString coordinatesText(const MapPlace& place);

/// Makes a place the model's manual one, to a thousandth of a degree, and selects it. Calculates
/// nothing.
void pick(const MapPlace& place, model::AstronomyModel& model);

}  // namespace veyruna::ui
