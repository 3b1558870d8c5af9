#pragma once

#include <rapidcheck.h>
#include <string>
#include <vector>

#include "charts/star_catalogue.h"
#include "tests/charts/sphere.h"

/// Random moments, places and skies for the properties of the charts.
namespace veyruna::tests {

/// Days of base time: mostly a few thousand years around the epoch, some as far as they go.
inline rc::Gen<double> someTime() {
  const auto near = rc::gen::inRange<std::int64_t>(-1'000'000'000'000, 1'000'000'000'001);
  const auto far = rc::gen::inRange<std::int64_t>(-1'000'000'000'000, 1'000'000'000'001);
  return rc::gen::weightedOneOf<double>(
      {{4, rc::gen::map(near, [](std::int64_t i) { return static_cast<double>(i) * 1e-6; })},
       {1, rc::gen::map(far, [](std::int64_t i) { return static_cast<double>(i) * 1e-3; })}});
}

/// An angle within ±`limitDegrees`, in radians; the limits are among them.
inline rc::Gen<double> someAngle(int limitDegrees) {
  const int limit = limitDegrees * 1'000'000;
  return rc::gen::map(rc::gen::inRange(-limit, limit + 1),
                      [](int i) { return radians(static_cast<double>(i) * 1e-6); });
}

inline astro::Observer someObserver(int limitDegrees = 90) {
  const double t = *someTime();
  const double latitude = *someAngle(limitDegrees);
  return {t, latitude, *someAngle(180)};
}

/// So near to the horizon nobody asks on which side rounding put it.
inline constexpr double horizonMargin = 1e-9;

inline Place equatorialPlace(const charts::FixedStar& star) {
  return {star.eq.phi, star.eq.theta};
}

/// Stars "Star 0", "Star 1", … all over the sky, each under its own name.
inline std::vector<charts::FixedStar> someNamedStars() {
  const auto count = *rc::gen::inRange<std::size_t>(0, 40);
  std::vector<charts::FixedStar> stars;
  for (std::size_t i = 0; i < count; ++i) {
    const double phi = *someAngle(360);
    const double theta = *someAngle(90);
    const double magnitude = *rc::gen::inRange(-10, 61) / 10.0;
    stars.push_back(charts::makeStar("Star " + std::to_string(i), *rc::gen::arbitrary<bool>(),
                                     "#f4f4f3", phi, theta, magnitude));
  }
  return stars;
}

}  // namespace veyruna::tests
