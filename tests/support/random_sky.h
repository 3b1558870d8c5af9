#pragma once

#include <cmath>
#include <cstdint>
#include <cstring>
#include <rapidcheck.h>

#include "astro/angle.h"

/// Random moments and places for property tests.
namespace veyruna::tests {

/// A whole number from `low` to `high`, both included, evenly spread.
inline rc::Gen<std::int64_t> wholeBetween(std::int64_t low, std::int64_t high) {
  return rc::gen::resize(rc::kNominalSize, rc::gen::inRange<std::int64_t>(low, high + 1));
}

/// A number from `low` to `high`, evenly spread.
inline rc::Gen<double> between(double low, double high) {
  constexpr std::int64_t parts = std::int64_t{1} << 52U;
  return rc::gen::map(wholeBetween(0, parts), [low, high](std::int64_t part) {
    return low + (high - low) * (static_cast<double>(part) / static_cast<double>(parts));
  });
}

/// Base times within the given distance of the epoch: some on a quarter of a day, where the
/// searches of the tables begin, some on a minute of the calendar.
inline rc::Gen<double> momentsWithin(double days) {
  const auto limit = static_cast<std::int64_t>(days);
  return rc::gen::weightedOneOf<double>(
      {{6, between(-days, days)},
       {1, rc::gen::map(wholeBetween(-4 * limit, 4 * limit),
                        [](std::int64_t quarters) { return static_cast<double>(quarters) / 4.0; })},
       {1, rc::gen::map(wholeBetween(-1440 * limit, 1440 * limit), [](std::int64_t minutes) {
          return static_cast<double>(minutes) / 1440.0 - 0.5;
        })}});
}

/// Base times mostly within a million days of the epoch, some as far as the calculations hold.
inline rc::Gen<double> moments() {
  return rc::gen::weightedOneOf<double>(
      {{8, momentsWithin(1e6)}, {1, momentsWithin(astro::baseTimeLimitDays)}});
}

/// Latitudes from pole to pole, in radians; the poles, the equator and the grazing ones more often.
inline rc::Gen<double> latitudes() {
  const auto degrees = [](rc::Gen<double> g) {
    return rc::gen::map(std::move(g), [](double d) { return d * astro::pi / 180.0; });
  };
  return rc::gen::weightedOneOf<double>(
      {{4, degrees(between(-90.0, 90.0))},
       {1, degrees(between(60.0, 70.0))},
       {1, degrees(between(-70.0, -60.0))},
       {1, rc::gen::element(-astro::halfPi, 0.0, astro::halfPi)}});
}

/// Longitudes once around the world, in radians.
inline rc::Gen<double> longitudes() {
  return between(-astro::pi, astro::pi);
}

/// Finite doubles of every magnitude, from their bits.
inline rc::Gen<double> finiteDoubles() {
  return rc::gen::suchThat(
      rc::gen::map(rc::gen::resize(rc::kNominalSize, rc::gen::arbitrary<std::uint64_t>()),
                   [](std::uint64_t bits) {
                     double number = 0.0;
                     std::memcpy(&number, &bits, sizeof number);
                     return number;
                   }),
      [](double number) { return std::isfinite(number); });
}

/// The signed distance of two angles, the short way round.
inline double apart(double a, double b) {
  return std::remainder(a - b, astro::twoPi);
}

inline double inRadians(double degrees) {
  return degrees * astro::pi / 180.0;
}

}  // namespace veyruna::tests
