#pragma once

#include <QString>

#include "model/astronomy_model.h"

namespace veyruna::ui {

/// The name of the saved place that lies exactly where the last calculation's does, a long one cut;
/// empty where none does.
QString calculatedPlaceName(const model::AstronomyModel& model);

/// That name, or where there is none the place's coordinates.
QString calculatedPlace(const model::AstronomyModel& model);

}  // namespace veyruna::ui
