#pragma once

#include <QList>
#include <QString>
#include <QUuid>

namespace veyruna::model {

/// A saved place.
struct CityPreset {
  QUuid id;
  QString name;
  double latitude = 0.0;   ///< radians, north positive
  double longitude = 0.0;  ///< radians, east positive

  friend bool operator==(const CityPreset&, const CityPreset&) = default;
};

/// By name: the lower-case forms of the user's language, canonically normalised, compared by code
/// point. Equal names are not less.
bool operator<(const CityPreset& a, const CityPreset& b);

/// The fixed first entry of every list: it stands for the manual latitude and longitude fields, is
/// never written to a file and never deleted.
const CityPreset& manualCity();
inline QUuid manualCityID() {
  return manualCity().id;
}

/// "Manual" followed by the places in order; equal names keep their order of entry.
QList<CityPreset> withManualFirst(QList<CityPreset> places);

/// Whether two names are the same to a person: equal but for the case of letters.
bool isSameName(const QString& a, const QString& b);

}  // namespace veyruna::model
