#pragma once

#include <array>

#include "model/astronomy_model.h"

/// The signals by which the model's inputs tell that they have changed, for whoever follows them
/// all.
namespace veyruna::model {

/// Those of the date, hour and clock.
inline constexpr std::array momentSignals = {
    &AstronomyModel::monthIndexChanged, &AstronomyModel::dayIndexChanged,
    &AstronomyModel::yearChanged, &AstronomyModel::hourChanged,
    &AstronomyModel::useLocalTimeChanged};

/// Those of the place: which one is selected, and where it lies.
inline constexpr std::array placeSignals = {
    &AstronomyModel::citiesChanged,       &AstronomyModel::selectedCityIDChanged,
    &AstronomyModel::manualLatDegChanged, &AstronomyModel::manualLongDegChanged,
    &AstronomyModel::latNorthChanged,     &AstronomyModel::longWestChanged};

}  // namespace veyruna::model
