#include "words/angles.h"

#include <cmath>
#include <limits>

#include "astro/angle.h"
#include "astro/number_text.h"
#include "words/values.h"

namespace veyruna::words {

namespace {

std::string coordinate(double radians, char positive, char negative) {
  std::string text;
  astro::appendFixed(text, astro::typedDegreesOf(std::abs(radians)), 2);
  return text + "°" + (radians >= 0.0 ? positive : negative);
}

/// The degrees that are read as this very angle, which rounding may have put a few steps away from
/// the nearest; the nearest where no degrees are.
double degreesReadAs(double radians) {
  constexpr int mostSteps = 3;
  const double nearest = astro::typedDegreesOf(radians);
  double below = nearest;
  double above = nearest;
  for (int step = 0; step <= mostSteps; ++step) {
    for (const double degrees : {below, above}) {
      if (astro::radiansOf(degrees) == radians) {
        return degrees;
      }
    }
    below = std::nextafter(below, -std::numeric_limits<double>::infinity());
    above = std::nextafter(above, std::numeric_limits<double>::infinity());
  }
  return nearest;
}

}  // namespace

std::string degreesText(double radians) {
  const double degrees = degreesReadAs(radians);
  for (int decimals = 0; decimals < 10; ++decimals) {
    std::string text;
    astro::appendFixed(text, degrees, decimals);
    if (astro::radiansOf(numberOf(text).value_or(degrees)) == radians) {
      return text;
    }
  }
  return astro::shortestText(degrees);
}

std::string latitudeText(double radians) {
  return coordinate(radians, 'N', 'S');
}

std::string longitudeText(double radians) {
  return coordinate(radians, 'E', 'W');
}

std::string coordinatesText(double latitude, double longitude) {
  return latitudeText(latitude) + "  " + longitudeText(longitude);
}

std::string shortCoordinatesText(double latitude, double longitude) {
  return degreesText(std::abs(latitude)) + (latitude >= 0.0 ? "N," : "S,") +
         degreesText(std::abs(longitude)) + (longitude >= 0.0 ? "E" : "W");
}

}  // namespace veyruna::words
