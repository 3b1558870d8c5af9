#pragma once

#include <cmath>

#include "almanac/motion/moving_angle.h"
#include "charts/verdict.h"

/// Which of sun and moon a longitude x stands nearer to. With d☉ and d☾ its distances from the two
/// and E the distance between these, d☉ − d☾ runs evenly, twice as fast as x, from −E to E between
/// sun and moon, and between the points opposite to them; elsewhere it rests at −E or E. So it
/// passes a verdict's limit L where x stands L/2 from the middle between the two, on either side of
/// the circle; and if E is less than L, nowhere.
namespace veyruna::almanac {

/// The limit L, in radians, and half of it.
inline constexpr double sphereLimit = charts::clearlyNearer / charts::unitsPerTurn * astro::twoPi;
inline constexpr double sphereWall = sphereLimit / 2.0;

inline bool spheresPart(const Lights& lights) {
  return std::abs(astro::wrappedToHalfTurns(lights.elongation().at)) >= sphereLimit;
}

/// For how long that cannot change.
inline double daysUntilSpheresPart(const Lights& lights) {
  return daysUntilAnyOf(lights.elongation(), {sphereLimit, -sphereLimit});
}

inline charts::Sphere sphereAt(double longitude, const Lights& lights) {
  return charts::sphereOf(longitude, {.sun = lights.sun.at,
                                      .moon = lights.moon.at,
                                      .moonLatitude = 0.0,
                                      .planets = {},
                                      .ascendant = 0.0});
}

}  // namespace veyruna::almanac
