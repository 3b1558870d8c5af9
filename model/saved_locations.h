#pragma once

#include <QList>
#include <QString>
#include <optional>
#include <variant>

#include "model/city_preset.h"
#include "model/id_source.h"
#include "model/location_error.h"
#include "model/locations_file.h"

namespace veyruna::model {

/// The places a person has saved, kept in a file that several running programs may share. Every
/// change is applied to what the file holds at that moment; what could not be written stays in
/// memory and goes with the next change. A file that cannot be read is kept aside before it is
/// replaced.
class SavedLocations {
 public:
  /// Without a path nothing is kept.
  SavedLocations(std::optional<QString> path, IdSource newId);

  /// Reads the file. Where there is none, or one that cannot be read, the list is that of a first
  /// start and is saved at once.
  void loadCities();

  /// Takes in what the file holds now, with what is not written yet. Writes nothing; where the file
  /// is missing or cannot be read, the list stays as it is.
  void refresh();

  /// Tries once more to write what could not be written so far.
  void saveWhatWaits();

  /// "Manual", then the saved places in order.
  [[nodiscard]] const QList<CityPreset>& cities() const { return cities_; }
  [[nodiscard]] const CityPreset* find(const QUuid& id) const;

  /// Saves a place (radians) under a name, trimmed of white space at both ends; returns its id.
  std::variant<QUuid, LocationError> add(const QString& name, double latitude, double longitude);

  /// Removes the place with that id; "Manual" stays.
  void remove(QUuid id);

 private:
  void setPlaces(QList<CityPreset> places);
  [[nodiscard]] QList<CityPreset> places() const { return cities_.mid(1); }
  template <class Change>
  void changeShared(Change change);
  void takeIn(const QList<CityPreset>& fromFile);
  void saveCities();

  std::optional<LocationsFile> file_;
  IdSource newId_;
  QList<CityPreset> cities_;
  QList<CityPreset> inFile_;  ///< what the file held when it was last read or written
};

}  // namespace veyruna::model
