#pragma once

#include <string_view>

#include "astro/vec3d.h"

namespace veyruna::astro {

/// The sun's name.
inline constexpr std::string_view sunName = "Thessil";

/// Revolutions of the mean sun per day: a tropical year of about 360.0011 days.
inline constexpr double sunMeanMotion = 0.0027777692901493913;

/// Revolutions of the mean sun at base time 0: half a day before the equinox.
inline constexpr double sunPhaseAtEpoch = -0.0013888846450746957;

/// Turns of the sky per day: one for the day itself and one for the year.
inline constexpr double siderealRate = 1.0027777692901494;

/// Ecliptic longitude of the sun at base time `t` (days), in [0, 2π).
/// The sun moves uniformly along the ecliptic.
double sunLongitude(double t);

/// The direction of the sun at base time `t` (days).
struct Sun {
  Vec3D ec;  ///< ecliptic longitude and latitude; the latitude is 0
  Vec3D eq;  ///< right ascension in [0, 2π) and declination

  explicit Sun(double t);
};

}  // namespace veyruna::astro
