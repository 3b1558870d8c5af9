#include "ui/outputs/calculated_caption.h"

#include <QStringList>

#include "ui/controls/coordinates_text.h"
#include "ui/outputs/calculated_place.h"

namespace veyruna::ui {

QString calculatedCaption(const model::AstronomyModel& model) {
  if (!model.lastHoroscopeBasetime()) {
    return {};
  }
  QStringList parts = {
      model.dateLabel(), calculatedPlaceName(model),
      coordinatesText(model.lastHoroscopeLatitude(), model.lastHoroscopeLongitude())};
  parts.removeAll(QString());
  return parts.join(QStringLiteral("   "));
}

}  // namespace veyruna::ui
