#pragma once

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <limits>

#include "almanac/motion/change.h"
#include "almanac/motion/motion.h"
#include "astro/angle.h"

namespace veyruna::almanac {

/// By how much roundings can put an angle off that comes from a moment, in radians. So near to
/// where something changes nothing is known of when it does: the verdict may be a rounding ahead or
/// behind.
inline double blurAt(double t) {
  return 1e-10 + 4e-15 * std::abs(t);
}

/// An angle in any turn, its rate, by how much the rate changes in a day at most, and its blur.
struct MovingAngle {
  double at = 0.0;
  double rate = 0.0;
  double bend = 0.0;
  double blur = 0.0;

  friend MovingAngle operator-(const MovingAngle& one, const MovingAngle& other) {
    return {one.at - other.at, one.rate - other.rate, one.bend + other.bend, one.blur + other.blur};
  }
};

/// For how many days an angle cannot come to any of these others, either way round.
inline double daysUntilAnyOf(const MovingAngle& angle, std::initializer_list<double> walls) {
  double least = std::numeric_limits<double>::infinity();
  for (const double wall : walls) {
    const double ahead = astro::wrappedToTurn(wall - angle.at);
    const double behind = astro::twoPi - ahead;
    if (std::min(ahead, behind) <= angle.blur) {
      return 0.0;
    }
    least = std::min({least, daysUntilReached(ahead, -angle.rate, angle.bend),
                      daysUntilReached(behind, angle.rate, angle.bend)});
  }
  return least;
}

/// A body's longitude, its bend at hand.
inline MovingAngle longitudeOf(Body body, double t, double bend) {
  const Motion motion = motionAt(body, t);
  return {motion.longitude, motion.rate, bend, blurAt(t)};
}

inline Body bodyOf(astro::Planet planet) {
  return static_cast<Body>(astro::rowOf(planet));
}

/// The longitudes of sun and moon, which the verdicts on spheres are read from.
struct Lights {
  MovingAngle sun;
  MovingAngle moon;

  explicit Lights(double t)
      : sun(longitudeOf(Body::thessil, t, 0.0)), moon(longitudeOf(Body::ivro, t, 0.0)) {}

  [[nodiscard]] MovingAngle elongation() const { return moon - sun; }
  /// Halfway between the two, on one side of the circle or the other.
  [[nodiscard]] MovingAngle middle() const {
    return {(sun.at + moon.at) / 2.0, (sun.rate + moon.rate) / 2.0, 0.0, sun.blur};
  }
};

}  // namespace veyruna::almanac
