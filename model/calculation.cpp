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
  const astro::Observer& observer = input.observer;
  const double t = observer.baseTime;
  const double fullMoon = astro::nextPhase(t, astro::fullMoonElongation);
  const double newMoon = astro::nextPhase(t, astro::newMoonElongation);
  const auto moonLabel = [&observer](double moon) {
    return QString::fromStdString(astro::calendarLabelWithLocalClock(observer.at(moon)));
  };
  return {
      input,
      QString::fromStdString(charts::starMap(observer, charts::builtInCatalogue())),
      calculateHoroscope(input),
      QString::fromStdString(reports::ephemerisTable(observer, {24, 1.0 / 24.0})),
      QString::fromStdString(reports::ephemerisTable(observer, {30, 1.0})),
      QString::fromStdString(reports::conjunctionTable(t, {144, 1.0 / 144.0})),
      QString::fromStdString(reports::conjunctionTable(t, {360, 1.0})),
      reports::positionRows(observer),
      QString::fromStdString(astro::calendarLabel(t)),
      moonLabel(fullMoon),
      moonLabel(newMoon),
      fullMoon,
      newMoon,
  };
}

QString calculateHoroscope(const CalculationInput& input) {
  return QString::fromStdString(
      charts::horoscope(input.blackAndWhite, input.observer, charts::builtInCatalogue()));
}

bool isWithinReach(double baseTime) {
  return std::abs(baseTime) <= astro::baseTimeLimitDays;
}

bool isOnGlobe(double latitude, double longitude) {
  constexpr double mostRadians = 1000.0;
  return std::abs(latitude) <= mostRadians && std::abs(longitude) <= mostRadians;
}

}  // namespace veyruna::model
