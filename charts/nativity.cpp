#include "charts/nativity.h"

#include <cmath>

#include "astro/angle.h"
#include "astro/horizon.h"
#include "astro/rotation.h"

namespace veyruna::charts {

double ascendantOf(double siderealAngle, double latitude) {
  return astro::wrappedToTurn(
      std::atan2(-std::cos(siderealAngle), std::sin(siderealAngle) * astro::cosObliquity +
                                               std::tan(latitude) * astro::sinObliquity) +
      astro::pi);
}

Nativity nativityOf(const astro::Observer& observer) {
  return nativityOf(observer, astro::localSiderealAngle(observer), astro::Sun(observer.baseTime),
                    astro::Moon(observer.baseTime));
}

Nativity nativityOf(const astro::Observer& observer, double siderealAngle, const astro::Sun& sun,
                    const astro::Moon& moon) {
  Nativity nativity{
      sun.ec.phi, moon.ec.phi, moon.ec.theta, {}, ascendantOf(siderealAngle, observer.latitude)};
  for (const astro::Planet planet : astro::allPlanets) {
    nativity.planets[indexOf(planet)] = planetEcliptic(planet, observer.baseTime, sun).phi;
  }
  return nativity;
}

}  // namespace veyruna::charts
