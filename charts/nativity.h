#pragma once

#include "astro/moon.h"
#include "astro/observer.h"
#include "astro/planet.h"
#include "astro/sun.h"

namespace veyruna::charts {

/// What the interpretation is read from: ecliptic angles of one moment and place, radians.
struct Nativity {
  double sun;   ///< longitude
  double moon;  ///< longitude
  double moonLatitude;
  astro::PerPlanet<double> planets;  ///< longitudes, any turn
  double ascendant;                  ///< longitude
};

/// The longitude at which the ecliptic rises, in [0, 2π), by the local sidereal angle and the
/// latitude. Where the ecliptic lies in the horizon it leaps to the opposite side.
double ascendantOf(double siderealAngle, double latitude);

/// The observer's nativity.
Nativity nativityOf(const astro::Observer& observer);

/// The same where the sky of that moment is at hand: the local sidereal angle, the sun and the moon
/// as seen from the world's centre.
Nativity nativityOf(const astro::Observer& observer, double siderealAngle, const astro::Sun& sun,
                    const astro::Moon& moon);

}  // namespace veyruna::charts
