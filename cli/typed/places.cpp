#include "cli/typed/places.h"

#include <QList>
#include <QString>
#include <algorithm>
#include <cmath>
#include <stdexcept>

#include "astro/angle.h"
#include "astro/number_text.h"
#include "model/calculation.h"
#include "model/city_preset.h"
#include "model/first_places.h"
#include "model/locations_file.h"
#include "model/qt_settings_store.h"
#include "model/stored_settings.h"
#include "words/angles.h"
#include "words/listing.h"
#include "words/quoting.h"
#include "words/usage_error.h"

namespace veyruna::cli {

namespace {

using model::CityPreset;

/// The entry "Manual" with the manual fields' place.
CityPreset manualPlace() {
  const model::QtSettingsStore store;
  const model::LocationSettings stored = model::readLocationSettings(store);
  CityPreset manual = model::manualCity();
  manual.latitude = model::manualLatitude(stored);
  manual.longitude = model::manualLongitude(stored);
  return manual;
}

QList<CityPreset> savedOrFirstPlaces() {
  const std::optional<QString> path = model::locationsFileURL();
  if (path) {
    const model::LocationsFile::Reading reading = model::LocationsFile(*path).read();
    if (reading.state == model::LocationsFile::State::whole) {
      return reading.places;
    }
    if (reading.state == model::LocationsFile::State::unreadable) {
      throw std::runtime_error("cannot read the saved places in " +
                               words::inQuotes(path->toStdString()));
    }
  }
  return model::initialCities(&QUuid::createUuid);
}

QList<CityPreset> knownPlaces() {
  QList<CityPreset> places = model::withManualFirst(savedOrFirstPlaces());
  places.front() = manualPlace();
  return places;
}

/// A place's name as it stands on a line.
QString listedName(const CityPreset& place) {
  return QString::fromStdString(words::asListed(place.name.toStdString()));
}

/// Padded on the left to a number of characters; the degree sign is one.
std::string rightAligned(const std::string& text, qsizetype width) {
  return QString::fromStdString(text).rightJustified(width).toStdString();
}

/// "Manual" is found without the list of places, which may be unreadable.
CityPreset placeNamed(const std::string& name, const std::string& what) {
  const QString wanted = QString::fromStdString(name).trimmed();
  const auto isWanted = [&wanted](const CityPreset& place) {
    return model::isSameName(place.name, wanted);
  };
  if (isWanted(model::manualCity())) {
    return manualPlace();
  }
  const QList<CityPreset> places = knownPlaces();
  const auto found = std::find_if(places.begin(), places.end(), isWanted);
  if (found == places.end()) {
    const auto nameOf = [](const CityPreset& place) { return listedName(place).toStdString(); };
    throw words::UsageError(what + ": " + words::inQuotes(name) +
                            " is not a saved place; known are " +
                            words::joined(places, ", ", nameOf));
  }
  return *found;
}

}  // namespace

Place placeAt(double latitude, double longitude) {
  return {latitude, longitude, words::coordinatesText(latitude, longitude)};
}

Place savedPlace(const std::string& name, const std::string& what) {
  const CityPreset place = placeNamed(name, what);
  if (!model::isPlaceWithinReach(place.latitude, place.longitude)) {
    throw words::UsageError(what + ": " + words::inQuotes(name) +
                            " is not on the globe; its stored coordinates are beyond 1000 radians");
  }
  // The coordinates under "Manual" say more than that word.
  return place.id == model::manualCityID()
             ? placeAt(place.latitude, place.longitude)
             : Place{place.latitude, place.longitude, place.name.toStdString()};
}

std::vector<Place> savedPlaces() {
  std::vector<Place> places;
  for (const CityPreset& place : model::withManualFirst(savedOrFirstPlaces())) {
    if (place.id != model::manualCityID() &&
        model::isPlaceWithinReach(place.latitude, place.longitude)) {
      places.push_back({place.latitude, place.longitude, place.name.toStdString()});
    }
  }
  return places;
}

std::string savedPlacesText() {
  const QList<CityPreset> places = knownPlaces();
  qsizetype width = 0;
  for (const CityPreset& place : places) {
    width = std::max(width, listedName(place).size());
  }
  std::string text;
  for (const CityPreset& place : places) {
    text += listedName(place).leftJustified(width).toStdString() + "  ";
    if (!model::isPlaceWithinReach(place.latitude, place.longitude)) {
      text += "not on the globe\n";
      continue;
    }
    text += rightAligned(words::latitudeText(place.latitude), 7) + "  " +
            rightAligned(words::longitudeText(place.longitude), 8) + "\n";
  }
  return text;
}

std::vector<records::Row> savedPlacesRows() {
  std::vector<records::Row> rows;
  for (const CityPreset& place : knownPlaces()) {
    const bool isOnGlobe = model::isPlaceWithinReach(place.latitude, place.longitude);
    const auto degrees = [isOnGlobe](double radians) {
      return isOnGlobe ? records::Value(astro::typedDegreesOf(radians)) : records::Value();
    };
    rows.push_back(
        {place.name.toStdString(), isOnGlobe, degrees(place.latitude), degrees(place.longitude)});
  }
  return rows;
}

}  // namespace veyruna::cli
