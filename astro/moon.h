#pragma once

#include <string_view>

#include "astro/observer.h"
#include "astro/vec3d.h"

namespace veyruna::astro {

/// The moon's name.
inline constexpr std::string_view moonName = "Ivro";

/// Revolutions of the moon in longitude per day: a sidereal month of 27.6923 days.
inline constexpr double moonMeanMotion = 0.03611111929015772;

/// Revolutions of longitude at base time 0.
inline constexpr double moonPhaseAtEpoch = 0.027630213198790443;

/// Revolutions of the argument of latitude per day: a draconic month of 27.5769 days.
inline constexpr double moonNodalRate = 0.03626222155587435;

/// Radians added to the argument of latitude, used as it is.
inline constexpr double moonLatitudePhase = -52833.2133155291;

/// Inclination of the orbit to the ecliptic: 8°, in radians.
inline constexpr double moonInclination = 0.13962634015954636;

/// Distance of the moon in radii of the world, 1384 / 23.
inline constexpr double moonDistance = 60.17391304347826;

/// Ecliptic longitude of the moon at base time `t` (days), in [0, 2π).
double moonLongitude(double t);

/// Ecliptic latitude of the moon at base time `t` (days), radians.
double moonLatitude(double t);

/// The direction of the moon at a base time (days).
struct Moon {
  Vec3D ec;  ///< ecliptic longitude and latitude
  Vec3D eq;  ///< right ascension in [0, 2π) and declination

  /// As seen from the centre of the world. `ec.r` is 0, as of any vector built from angles.
  explicit Moon(double t);

  /// As seen by an observer on the world's surface; `ec.r` is about 60 world radii.
  /// The observer's meridian turns once per solar day here, not once per sidereal day.
  explicit Moon(const Observer& observer);
};

}  // namespace veyruna::astro
