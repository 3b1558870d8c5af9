#include "model/calculation.h"

#include <cmath>

#include "astro/angle.h"
#include "astro/calendar.h"
#include "astro/local_time.h"
#include "astro/lunar_phases.h"
#include "charts/horoscope.h"
#include "charts/star_map.h"
#include "reports/conjunctions.h"
#include "reports/ephemeris.h"

namespace veyruna::model {

CalculationResult calculate(const CalculationInput& input) {
  const double t = input.baseTime;
  const double fullMoon = astro::nextPhase(t, astro::fullMoonElongation);
  const double newMoon = astro::nextPhase(t, astro::newMoonElongation);
  const auto moonLabel = [&](double moon) {
    return QString::fromStdString(astro::calendarLabelWithLocalClock(moon, input.longitude));
  };
  return {
      input,
      QString::fromStdString(
          charts::starMap(t, input.latitude, input.longitude, charts::builtInCatalogue())),
      calculateHoroscope(input),
      QString::fromStdString(reports::ephemerisTable(24, t, 1.0 / 24.0, input.latitude)),
      QString::fromStdString(reports::ephemerisTable(30, t, 1.0, input.latitude)),
      QString::fromStdString(reports::conjunctionTable(144, t, 1.0 / 144.0)),
      QString::fromStdString(reports::conjunctionTable(360, t, 1.0)),
      reports::positionRows(t, input.latitude, input.longitude),
      QString::fromStdString(astro::calendarLabel(t)),
      moonLabel(fullMoon),
      moonLabel(newMoon),
      fullMoon,
      newMoon,
  };
}

QString calculateHoroscope(const CalculationInput& input) {
  return QString::fromStdString(charts::horoscope(input.blackAndWhite, input.baseTime,
                                                  input.latitude, input.longitude,
                                                  charts::builtInCatalogue()));
}

bool isWithinReach(double baseTime) {
  return std::abs(baseTime) <= astro::baseTimeLimitDays;
}

bool isOnGlobe(double latitude, double longitude) {
  constexpr double mostRadians = 1000.0;
  return std::abs(latitude) <= mostRadians && std::abs(longitude) <= mostRadians;
}

}  // namespace veyruna::model
