#pragma once

#include <cmath>

/// Angles are radians in doubles everywhere in the program; degrees exist only in text.
/// Observer latitude is positive north, longitude positive east.
namespace veyruna::astro {

inline constexpr double pi = 3.141592653589793;
inline constexpr double twoPi = 2.0 * pi;
inline constexpr double halfPi = 1.5707963267948966;
inline constexpr double degreesPerRadian = 57.29577951308232;

/// A person's degrees in radians.
inline constexpr double radiansOf(double degrees) {
  return degrees * pi / 180.0;
}

/// Radians in degrees, as the documents have them.
inline constexpr double degreesOf(double radians) {
  return radians * degreesPerRadian;
}

/// Radians in degrees, as a person types them: by radiansOf's own steps backwards. The last bit may
/// be another than degreesOf's, and decides where typed degrees end on half a printed unit.
inline constexpr double typedDegreesOf(double radians) {
  return radians * 180.0 / pi;
}

/// The largest distance from the epoch, in days, for which the calculations of this room hold.
inline constexpr double baseTimeLimitDays = 1'000'000'000.0;

/// The fractional part of a number of revolutions, in [0, 1), also for negative numbers.
inline double fractionOfTurn(double revolutions) {
  return revolutions - std::floor(revolutions);
}

/// The angle of a uniform motion after `revolutions` turns, in [0, 2π); a hair below a whole turn
/// rounds to 2π itself.
inline double meanAngle(double revolutions) {
  return fractionOfTurn(revolutions) * twoPi;
}

/// The four ways an angle is brought into one turn. Each adds or subtracts whole turns one by one,
/// so that the last bit of ordinary angles is that of the plain loop; an angle of more than a
/// thousand turns is first reduced at one stroke, so that no finite angle takes long.
/// A non-finite angle is a broken invariant.
double wrappedToHalfTurns(double angle);          ///< into [−π, π]
double wrappedToHalfOpenHalfTurns(double angle);  ///< into (−π, π]
double wrappedToTurn(double angle);               ///< into [0, 2π)
double wrappedToClosedTurn(double angle);         ///< into [0, 2π]; 2π itself stays

}  // namespace veyruna::astro
