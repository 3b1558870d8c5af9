#include "ui/outputs/calculated_place.h"

#include "ui/controls/coordinates_text.h"

namespace veyruna::ui {

using model::AstronomyModel;

QString calculatedPlaceName(const AstronomyModel& model) {
  constexpr qsizetype longest = 40;  // characters
  QString name;
  for (const model::CityPreset& city : model.cities()) {
    if (city.id != model::manualCityID() && city.latitude == model.lastHoroscopeLatitude() &&
        city.longitude == model.lastHoroscopeLongitude()) {
      name = city.name.size() > longest ? city.name.left(longest) + QStringLiteral("…") : city.name;
    }
  }
  return name;
}

QString calculatedPlace(const AstronomyModel& model) {
  const QString name = calculatedPlaceName(model);
  return name.isEmpty()
             ? coordinatesText(model.lastHoroscopeLatitude(), model.lastHoroscopeLongitude())
             : name;
}

}  // namespace veyruna::ui
