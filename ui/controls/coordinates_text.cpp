#include "ui/controls/coordinates_text.h"

#include <cmath>
#include <string>

#include "astro/angle.h"
#include "astro/number_text.h"

namespace veyruna::ui {

namespace {

QString degreesText(double radians, int decimals, const char* positive, const char* negative) {
  const double degrees = astro::typedDegreesOf(std::abs(radians));
  if (!std::isfinite(degrees)) {
    return QStringLiteral("–");
  }
  std::string text;
  astro::appendFixed(text, degrees, decimals);
  return QString::fromStdString(text + "° " + (radians >= 0.0 ? positive : negative));
}

}  // namespace

QString coordinatesText(double latitude, double longitude, int decimals) {
  return degreesText(latitude, decimals, "N", "S") + QStringLiteral("   ") +
         degreesText(longitude, decimals, "E", "W");
}

}  // namespace veyruna::ui
