#pragma once

#include <array>
#include <vector>

#include "almanac/search/condition.h"
#include "astro/observer.h"
#include "astro/vec3d.h"

/// Conditions judged at single moments, from the sky alone: nothing here knows of rates, of bounds
/// or of what was found a moment before.
namespace veyruna::tests {

/// Where everything stands at a moment, for everybody.
struct PlainSky {
  explicit PlainSky(double t);

  double t;
  std::array<double, astro::bodyCount> longitudes;
  std::vector<astro::Vec3D> directions;  ///< equatorial
  double moonLatitude;
  std::array<bool, astro::planetCount> isBackward;
  bool isEclipse;
};

/// What one place sees of it.
struct PlainHorizon {
  PlainHorizon(const PlainSky& sky, const astro::Observer& place);

  astro::Observer observer;
  std::array<double, astro::bodyCount> altitudes;
  charts::Nativity nativity;
  double localDays;  ///< days and parts of days since the first midnight, by the sun
};

bool plainHolds(const almanac::Condition& condition, const PlainSky& sky,
                const PlainHorizon& horizon, bool isLocal);

}  // namespace veyruna::tests
