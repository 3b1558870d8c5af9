#include "export/file_names.h"

#include <algorithm>

#include "model/name_parts.h"

namespace veyruna::exports {

using model::AstronomyModel;

QString inputPlaceText(const AstronomyModel& model, QStringView between) {
  if (model.selectedCityID() == model::manualCityID()) {
    return model::coordinateInName(model.manualLatDeg(), model.latNorth() ? u'N' : u'S') +
           between.toString() +
           model::coordinateInName(model.manualLongDeg(), model.longWest() ? u'W' : u'E');
  }
  const auto& cities = model.cities();
  const auto selected = std::find_if(cities.begin(), cities.end(), [&](const auto& city) {
    return city.id == model.selectedCityID();
  });
  return selected == cities.end() ? model::manualCity().name : selected->name;
}

QString proposedFileName(const AstronomyModel& model, QStringView prefix, QStringView extension) {
  const astro::CalendarReading inputs{.year = model.year(),
                                      .monthIndex = model.monthIndex(),
                                      .dayIndex = model.dayIndex(),
                                      .hour = model.hour()};
  const QString before = prefix.toString() + QStringLiteral(" - ");
  const QString after =
      QStringLiteral(" - ") + model::momentInName(inputs) + QChar(u'.') + extension.toString();
  const qsizetype bytesLeft =
      model::longestNameBytes - before.toUtf8().size() - after.toUtf8().size();
  return before + model::fitted(model::withoutSeparators(inputPlaceText(model, u" ")), bytesLeft) +
         after;
}

}  // namespace veyruna::exports
