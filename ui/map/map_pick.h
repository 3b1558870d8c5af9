#pragma once

#include "model/astronomy_model.h"
#include "ui/map/map_projection.h"

namespace veyruna::ui {

/// Makes a place the model's manual one, to a thousandth of a degree, and selects it. Calculates
/// nothing.
void pick(const MapPlace& place, model::AstronomyModel& model);

}  // namespace veyruna::ui
