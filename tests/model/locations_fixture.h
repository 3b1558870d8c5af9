#pragma once

#include <QFileInfo>
#include <gtest/gtest.h>

#include "model/locations_text.h"
#include "model/saved_locations.h"
#include "tests/model/disk.h"

namespace veyruna::tests {

/// A folder with a file of saved places, and programs that start with it.
class LocationsFileTest : public testing::Test {
 protected:
  /// A program that starts now and reads the file.
  [[nodiscard]] model::SavedLocations started() const {
    model::SavedLocations saved(path, &QUuid::createUuid);
    saved.loadCities();
    return saved;
  }
  static QUuid add(model::SavedLocations& saved, const QString& name) {
    return std::get<QUuid>(saved.add(name, 0.25, -0.5));
  }
  static QStringList names(const QList<model::CityPreset>& places) {
    QStringList all;
    for (const model::CityPreset& place : places) {
      all << place.name;
    }
    return all;
  }
  [[nodiscard]] QStringList namesInFile() const {
    const auto places = model::placesIn(bytesIn(path));
    return places ? names(*places) : QStringList{QStringLiteral("(no list)")};
  }
  [[nodiscard]] QStringList besides() const {
    QStringList names = Folder::namesIn(QFileInfo(path).path());
    names.removeOne(QStringLiteral("locations.json"));
    return names;
  }
  /// A short list to start from.
  void keepTwo() const {
    writeBytes(path,
               model::locationsText({{QUuid::createUuid(), QStringLiteral("Ebb"), 0.1, 0.2},
                                     {QUuid::createUuid(), QStringLiteral("Flow"), 0.3, 0.4}}));
  }

  Folder folder;
  QString path = folder / QStringLiteral("locations.json");
};

}  // namespace veyruna::tests
