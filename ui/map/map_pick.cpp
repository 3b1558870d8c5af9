#include "ui/map/map_pick.h"

#include <cmath>

#include "astro/angle.h"

namespace veyruna::ui {

namespace {

double roundedToThousandths(double degrees) {
  return std::round(std::abs(degrees) * 1000.0) / 1000.0;
}

}  // namespace

void pick(const MapPlace& place, model::AstronomyModel& model) {
  const double latitude = astro::typedDegreesOf(place.latitude);
  const double longitude = astro::typedDegreesOf(place.longitude);
  model.setManualLatDeg(roundedToThousandths(latitude));
  model.setManualLongDeg(roundedToThousandths(longitude));
  model.setLatNorth(latitude >= 0.0);
  model.setLongWest(longitude < 0.0);
  model.setSelectedCityID(model::manualCityID());
}

}  // namespace veyruna::ui
