#include "ui/outputs/calculated_caption.h"

#include "ui/controls/coordinates_text.h"

namespace veyruna::ui {

namespace {

using model::AstronomyModel;

/// The name of the saved place that lies exactly here, and where that is.
QString calculatedPlaceText(const AstronomyModel& model) {
  const double latitude = model.lastHoroscopeLatitude();
  const double longitude = model.lastHoroscopeLongitude();
  QString name;
  for (const model::CityPreset& city : model.cities()) {
    if (city.id != model::manualCityID() && city.latitude == latitude &&
        city.longitude == longitude) {
      constexpr qsizetype longest = 40;  // characters; a longer name is cut
      name =
          (city.name.size() > longest ? city.name.left(longest) + QStringLiteral("…") : city.name) +
          QStringLiteral("   ");
    }
  }
  return name + coordinatesText(latitude, longitude);
}

}  // namespace

QString calculatedCaption(const AstronomyModel& model) {
  if (!model.lastHoroscopeBasetime()) {
    return {};
  }
  return model.dateLabel() + QStringLiteral("   ") + calculatedPlaceText(model);
}

}  // namespace veyruna::ui
