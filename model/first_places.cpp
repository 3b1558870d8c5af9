#include "model/first_places.h"

#include <array>

#include "astro/angle.h"

namespace veyruna::model {

namespace {

/// A place of the first start, degrees north and east.
struct Place {
  const char* name;
  double latitude;
  double longitude;
};

constexpr std::array<Place, 13> firstPlaces = {{
    {"Wendmark", 40.5, -20.9},
    {"Morvay", 37.7, -16.4},
    {"Istene", 27.4, 3.3},
    {"Paldrick", 34.5, 11.1},
    {"Vossenfel", 11.5, 25.3},
    {"Quarrelund", 21.9, 33.9},
    {"Ebb", 13.4, 8.8},
    {"Solvane", 32.1, -4.7},
    {"Hestmoor", 44.4, -12.2},
    {"Sarrow", 31.0, -16.3},
    {"Ulmet", 24.4, -19.7},
    {"Dravenne", 23.3, 26.7},
    {"Kessa", 21.0, 5.1},
}};

}  // namespace

QList<CityPreset> initialCities(const IdSource& newId) {
  QList<CityPreset> cities;
  for (const Place& place : firstPlaces) {
    cities.append({newId(), QString::fromLatin1(place.name), astro::radiansOf(place.latitude),
                   astro::radiansOf(place.longitude)});
  }
  return cities;
}

}  // namespace veyruna::model
