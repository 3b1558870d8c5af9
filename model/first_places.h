#pragma once

#include <QList>

#include "model/city_preset.h"
#include "model/id_source.h"

namespace veyruna::model {

/// The thirteen places of a first start, each with a fresh id, in no particular order.
QList<CityPreset> initialCities(const IdSource& newId);

}  // namespace veyruna::model
