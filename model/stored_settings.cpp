#include "model/stored_settings.h"

#include <concepts>
#include <optional>
#include <vector>

#include "astro/angle.h"
#include "model/id_text.h"
#include "model/stored_value.h"

namespace veyruna::model {

namespace {

// How each type of field is told from what is stored, and how it is stored.
std::optional<QUuid> fromStored(const QVariant& stored, const QUuid* /*type*/) {
  const std::optional<QString> text = storedText(stored);
  return text ? idOf(*text) : std::nullopt;
}
std::optional<double> fromStored(const QVariant& stored, const double* /*type*/) {
  return storedDouble(stored);
}
std::optional<bool> fromStored(const QVariant& stored, const bool* /*type*/) {
  return storedSwitch(stored);
}
std::optional<qint64> fromStored(const QVariant& stored, const qint64* /*type*/) {
  return storedInteger(stored);
}

QVariant toStored(const QUuid& id) {
  return canonicalText(id);
}
QVariant toStored(double number) {
  return number;
}
QVariant toStored(bool isOn) {
  return isOn;
}
QVariant toStored(qint64 number) {
  return number;
}

/// The one table of keys: calls `visit(key, field)` for every field of a group, in order. The names
/// of all fields are bound, so that one that is left out does not compile.
template <class Settings, class Visit>
requires std::same_as<std::remove_const_t<Settings>, LocationSettings>
void forEachField(Settings& location, Visit visit) {
  auto& [selectedCityID, manualLatDeg, manualLongDeg, latNorth, longWest] = location;
  visit("AstronomyModel.selectedCityID", selectedCityID);
  visit("AstronomyModel.manualLatDeg", manualLatDeg);
  visit("AstronomyModel.manualLongDeg", manualLongDeg);
  visit("AstronomyModel.latNorth", latNorth);
  visit("AstronomyModel.longWest", longWest);
}
template <class Settings, class Visit>
requires std::same_as<std::remove_const_t<Settings>, DateSettings>
void forEachField(Settings& date, Visit visit) {
  auto& [monthIndex, dayIndex, year, hour, useLocalTime] = date;
  visit("AstronomyModel.monthIndex", monthIndex);
  visit("AstronomyModel.dayIndex", dayIndex);
  visit("AstronomyModel.year", year);
  visit("AstronomyModel.hour", hour);
  visit("AstronomyModel.useLocalTime", useLocalTime);
}

template <class Settings>
Settings readSettings(const SettingsStore& store) {
  Settings settings;
  forEachField(settings, [&store](const char* key, auto& field) {
    const auto stored = fromStored(store.stored(QString::fromLatin1(key)), &field);
    if (stored) {
      field = *stored;
    }
  });
  return settings;
}

template <class Settings>
void storeGroup(SettingsStore& store, const Settings& settings) {
  SettingsStore::Group group;
  forEachField(settings, [&group](const char* key, const auto& field) {
    group.emplace_back(QString::fromLatin1(key), toStored(field));
  });
  store.store(group);
}

}  // namespace

double manualLatitude(const LocationSettings& location) {
  const double magnitude = astro::radiansOf(location.manualLatDeg);
  return location.latNorth ? magnitude : -magnitude;
}

double manualLongitude(const LocationSettings& location) {
  const double magnitude = astro::radiansOf(location.manualLongDeg);
  return location.longWest ? -magnitude : magnitude;
}

LocationSettings readLocationSettings(const SettingsStore& store) {
  return readSettings<LocationSettings>(store);
}

DateSettings readDateSettings(const SettingsStore& store) {
  return readSettings<DateSettings>(store);
}

void storeSettings(SettingsStore& store, const LocationSettings& location) {
  storeGroup(store, location);
}

void storeSettings(SettingsStore& store, const DateSettings& date) {
  storeGroup(store, date);
}

}  // namespace veyruna::model
