#include "ui/map_pick.h"

#include <cmath>
#include <string>

#include "astro/number_text.h"

namespace veyruna::ui {

namespace {

double degreesOf(double radians) {
  return radians * 180.0 / astro::pi;
}

double roundedToThousandths(double degrees) {
  return std::round(std::abs(degrees) * 1000.0) / 1000.0;
}

void appendAngle(std::string& text, double radians, const char* positive, const char* negative) {
  astro::appendFixed(text, std::abs(degreesOf(radians)), 3);
  text += "° ";
  text += radians >= 0.0 ? positive : negative;
}

}  // namespace

QString coordinatesText(const MapPlace& place) {
  std::string text;
  appendAngle(text, place.latitude, "N", "S");
  text += "   ";
  appendAngle(text, place.longitude, "E", "W");
  return QString::fromStdString(text);
}

void pick(const MapPlace& place, model::AstronomyModel& model) {
  const double latitude = degreesOf(place.latitude);
  const double longitude = degreesOf(place.longitude);
  model.setManualLatDeg(roundedToThousandths(latitude));
  model.setManualLongDeg(roundedToThousandths(longitude));
  model.setLatNorth(latitude >= 0.0);
  model.setLongWest(longitude < 0.0);
  model.setSelectedCityID(model::manualCityID());
}

}  // namespace veyruna::ui
