#pragma once

#include <array>
#include <cmath>

#include "astro/observer.h"

/// Spherical trigonometry for the charts' tests, by the textbook's triangles instead of the
/// program's frames and matrices. Angles in radians unless a name says degrees.
namespace veyruna::tests {

inline constexpr double halfTurn = 3.14159265358979323846;
inline constexpr double fullTurn = 2.0 * halfTurn;
inline constexpr double tilt = 21.0 * halfTurn / 180.0;

inline double degrees(double radians) {
  return radians * 180.0 / halfTurn;
}

inline double radians(double degrees) {
  return degrees * halfTurn / 180.0;
}

/// An angle without its whole turns, in [−π, π].
inline double nearZero(double angle) {
  return std::remainder(angle, fullTurn);
}

/// Longitude-like and latitude-like angle of a direction.
struct Place {
  double phi;
  double theta;
};

using Direction = std::array<double, 3>;

inline Direction directionOf(const Place& place) {
  return {std::cos(place.theta) * std::cos(place.phi), std::cos(place.theta) * std::sin(place.phi),
          std::sin(place.theta)};
}

inline double dot(const Direction& a, const Direction& b) {
  return a[0] * b[0] + a[1] * b[1] + a[2] * b[2];
}

inline Direction cross(const Direction& a, const Direction& b) {
  return {a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]};
}

inline double angleBetween(const Direction& a, const Direction& b) {
  const Direction normal = cross(a, b);
  return std::atan2(std::sqrt(dot(normal, normal)), dot(a, b));
}

/// Whether the shorter arcs a-b and c-d of two great circles meet between their ends.
inline bool arcsCross(const Direction& a, const Direction& b, const Direction& c,
                      const Direction& d) {
  const Direction first = cross(a, b);
  const Direction second = cross(c, d);
  const Direction node = cross(first, second);
  const auto between = [&node](const Direction& normal, const Direction& from, const Direction& to,
                               double sign) {
    return sign * dot(cross(normal, from), node) > 0.0 && sign * dot(cross(to, normal), node) > 0.0;
  };
  return (between(first, a, b, 1.0) && between(second, c, d, 1.0)) ||
         (between(first, a, b, -1.0) && between(second, c, d, -1.0));
}

/// The angle from p to the nearest point of the arc a-b.
inline double angleToArc(const Direction& p, const Direction& a, const Direction& b) {
  const Direction normal = cross(a, b);
  if (dot(cross(normal, a), p) > 0.0 && dot(cross(b, normal), p) > 0.0) {
    return std::abs(halfTurn / 2.0 - angleBetween(normal, p));
  }
  return std::fmin(angleBetween(p, a), angleBetween(p, b));
}

/// Right ascension and declination of a point of the ecliptic.
inline Place equatorialOfEcliptic(double longitude) {
  return {std::atan2(std::cos(tilt) * std::sin(longitude), std::cos(longitude)),
          std::asin(std::sin(tilt) * std::sin(longitude))};
}

/// Right ascension of the observer's meridian. The sky turns once a day and once more a year.
inline double meridian(const astro::Observer& at) {
  const double turns = at.baseTime * 1.0027777692901494;
  return at.longitude + (turns - std::floor(turns)) * fullTurn;
}

/// The sine of the altitude, from the triangle of pole, zenith and star.
inline double sineOfAltitude(const astro::Observer& at, const Place& equatorial) {
  const double hourAngle = meridian(at) - equatorial.phi;
  return std::sin(at.latitude) * std::sin(equatorial.theta) +
         std::cos(at.latitude) * std::cos(equatorial.theta) * std::cos(hourAngle);
}

}  // namespace veyruna::tests
