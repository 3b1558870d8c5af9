#include "model/first_places.h"

#include "astro/angle.h"
#include "documents/first_places.h"

namespace veyruna::model {

QList<CityPreset> initialCities(const IdSource& newId) {
  QList<CityPreset> cities;
  for (const documents::FirstPlace& place : documents::firstPlaces) {
    cities.append({newId(), QString::fromUtf8(place.name.data(), qsizetype(place.name.size())),
                   astro::radiansOf(place.latitudeDegrees),
                   astro::radiansOf(place.longitudeDegrees)});
  }
  return cities;
}

}  // namespace veyruna::model
