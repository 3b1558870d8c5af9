#pragma once

#include <QString>
#include <QUuid>
#include <array>

#include "model/city_preset.h"
#include "model/settings_store.h"

namespace veyruna::model {

/// Where the observer stands, as it is stored. Defaults are those of a first start.
struct LocationSettings {
  QUuid selectedCityID = manualCityID();
  double manualLatDeg = 40.5;   ///< degrees, magnitude only
  double manualLongDeg = 20.9;  ///< degrees, magnitude only
  bool latNorth = true;
  bool longWest = true;
};

/// The moment, as it is stored. Nothing is clamped: the controls keep the ranges.
struct DateSettings {
  qint64 monthIndex = 0;  ///< 0 to 11
  qint64 dayIndex = 0;    ///< 0 to 29
  qint64 year = 720;      ///< from 1
  double hour = 12.0;     ///< 0 to 24, with a fraction
  bool useLocalTime = false;
};

/// Where the manual fields are, in radians, north and east positive. Beyond a double's range the
/// result is infinite.
double manualLatitude(const LocationSettings& location);
double manualLongitude(const LocationSettings& location);

/// Reads one group. What is missing or of another type gives its default.
LocationSettings readLocationSettings(const SettingsStore& store);
DateSettings readDateSettings(const SettingsStore& store);

/// Stores one group, all five keys.
void storeSettings(SettingsStore& store, const LocationSettings& location);
void storeSettings(SettingsStore& store, const DateSettings& date);

}  // namespace veyruna::model
