#pragma once

#include <cmath>

#include "tests/model/fakes.h"
#include "tests/support/reference_case.h"

namespace veyruna::tests {

/// A model at the moment and place of one of the references, calculated.
struct ObservedModel : FakeModel {
  explicit ObservedModel(const ReferenceCase& at) {
    model.setYear(at.year);
    model.setMonthIndex(at.monthIndex);
    model.setDayIndex(at.dayIndex);
    model.setHour(at.hour);
    model.setUseLocalTime(at.useLocalTime);
    // The degrees of the references have three decimals at most.
    const auto degrees = [](double radians) {
      return std::round(std::abs(radians) * 180000.0 / 3.141592653589793) / 1000.0;
    };
    model.setManualLatDeg(degrees(at.latitude));
    model.setLatNorth(at.latitude > 0.0);
    model.setManualLongDeg(degrees(at.longitude));
    model.setLongWest(at.longitude < 0.0);
    calculate();
  }

  /// Saves a place under a name and selects it.
  void selectPlaceCalled(const QString& name) {
    model.setSelectedCityID(std::get<QUuid>(model.addCity(name)));
  }
};

}  // namespace veyruna::tests
