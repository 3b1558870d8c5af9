#pragma once

#include <QString>

#include "model/astronomy_model.h"

namespace veyruna::ui {

/// The moment and place of the last calculation, which is what the tabs show: the date, three
/// blanks, the name of a saved place that lies exactly there, and its coordinates. Empty before the
/// first.
QString calculatedCaption(const model::AstronomyModel& model);

}  // namespace veyruna::ui
