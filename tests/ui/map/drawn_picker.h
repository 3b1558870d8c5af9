#pragma once

#include <QColor>

#include "tests/ui/map/shown_picker.h"

namespace veyruna::tests {

/// The picker without marks on its picture, so that a pixel's colour tells its place.
struct DrawnPicker : ShownPicker {
  DrawnPicker() {
    for (const model::CityPreset& city : QList<model::CityPreset>(model.cities())) {
      model.deleteCity(city.id);
    }
    model.setSelectedCityID(QUuid::createUuid());
  }

  [[nodiscard]] QImage shown() const { return area->grab().toImage(); }

  /// Runs whatever the map has asked for, and draws, until nothing is missing.
  void finish() {
    for (int turn = 0; turn < 100 && !(area->isComplete() && tasks.count() == 0); ++turn) {
      while (tasks.count() > 0) {
        tasks.runNext();
      }
      turnEventLoop();
      area->grab();
    }
    EXPECT_TRUE(area->isComplete());
  }
};

}  // namespace veyruna::tests
