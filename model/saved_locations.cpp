#include "model/saved_locations.h"

#include <QLockFile>
#include <algorithm>
#include <memory>
#include <utility>

#include "model/first_places.h"

namespace veyruna::model {

namespace {

const CityPreset* findIn(const QList<CityPreset>& list, const QUuid& id) {
  const auto found = std::find_if(list.begin(), list.end(),
                                  [&id](const CityPreset& place) { return place.id == id; });
  return found == list.end() ? nullptr : &*found;
}

/// What is in `list` and whose id is not in `other`.
QList<CityPreset> without(const QList<CityPreset>& list, const QList<CityPreset>& other) {
  QList<CityPreset> rest;
  std::copy_if(list.begin(), list.end(), std::back_inserter(rest),
               [&other](const CityPreset& place) { return findIn(other, place.id) == nullptr; });
  return rest;
}

}  // namespace

SavedLocations::SavedLocations(std::optional<QString> path, IdSource newId)
    : newId_(std::move(newId)) {
  if (path) {
    file_.emplace(std::move(*path));
  }
}

void SavedLocations::saveWhatWaits() {
  if (file_ && places() != inFile_) {
    changeShared([](bool /*readFromFile*/) {});
  }
}

void SavedLocations::loadCities() {
  if (file_) {
    const LocationsFile::Reading reading = file_->read();
    if (reading.state == LocationsFile::State::whole) {
      inFile_ = reading.places;
      setPlaces(reading.places);
      return;
    }
  }
  // Another program may be doing the same at this moment: the first to hold the lock decides.
  changeShared([this](bool readFromFile) {
    if (!readFromFile) {
      setPlaces(initialCities(newId_));
    }
  });
  // Saved or not, the places of a first start are nobody's additions.
  inFile_ = places();
}

void SavedLocations::refresh() {
  if (!file_) {
    return;
  }
  const LocationsFile::Reading reading = file_->read();
  if (reading.state == LocationsFile::State::whole) {
    takeIn(reading.places);
  }
}

const CityPreset* SavedLocations::find(const QUuid& id) const {
  return findIn(cities_, id);
}

std::variant<QUuid, LocationError> SavedLocations::add(const QString& name, double latitude,
                                                       double longitude) {
  const QString trimmed = name.trimmed();
  if (trimmed.isEmpty()) {
    return LocationError::emptyName();
  }
  std::variant<QUuid, LocationError> outcome = LocationError::duplicateName(trimmed);
  changeShared([&](bool /*readFromFile*/) {
    const bool exists = std::any_of(cities_.begin(), cities_.end(), [&](const CityPreset& city) {
      return isSameName(city.name, trimmed);
    });
    if (!exists) {
      const CityPreset added{newId_(), trimmed, latitude, longitude};
      setPlaces(places() << added);
      outcome = added.id;
    }
  });
  return outcome;
}

void SavedLocations::remove(QUuid id) {
  if (id == manualCityID()) {
    return;
  }
  changeShared([&](bool /*readFromFile*/) {
    QList<CityPreset> rest = places();
    rest.removeIf([&id](const CityPreset& place) { return place.id == id; });
    setPlaces(std::move(rest));
  });
}

void SavedLocations::setPlaces(QList<CityPreset> places) {
  cities_ = withManualFirst(std::move(places));
}

/// Takes in what the file holds, makes the change and saves, all under the lock. Without the lock,
/// or where what cannot be read cannot be kept aside, the change stays in memory.
template <class Change>
void SavedLocations::changeShared(Change change) {
  const std::unique_ptr<QLockFile> lock = file_ ? file_->lock() : nullptr;
  bool mayWrite = lock != nullptr;
  bool readFromFile = false;
  if (mayWrite) {
    const LocationsFile::Reading reading = file_->read();
    if (reading.state == LocationsFile::State::whole) {
      takeIn(reading.places);
      readFromFile = true;
    } else {
      mayWrite = reading.state == LocationsFile::State::missing || file_->keepAside();
      if (mayWrite) {
        inFile_.clear();
      }
    }
  }
  change(readFromFile);
  if (mayWrite && (!readFromFile || places() != inFile_)) {
    saveCities();
  }
}

/// The file's places, less those removed here and with those added here since it was last known.
void SavedLocations::takeIn(const QList<CityPreset>& fromFile) {
  const QList<CityPreset> removedHere = without(inFile_, cities_);
  const QList<CityPreset> addedHere = without(places(), inFile_);
  inFile_ = fromFile;
  setPlaces(without(fromFile, removedHere) + without(addedHere, fromFile));
}

void SavedLocations::saveCities() {
  if (file_->write(places())) {
    inFile_ = places();
  }
}

}  // namespace veyruna::model
