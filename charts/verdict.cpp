#include "charts/verdict.h"

#include <cmath>
#include <utility>

#include "astro/angle.h"

namespace veyruna::charts {

double separation(double a, double b) {
  constexpr double manyTurns = 1000.0 * astro::twoPi;
  const double apart = std::abs(a - b);
  const double angle = apart > manyTurns ? std::fmod(apart, astro::twoPi) : apart;
  double units = angle * unitsPerTurn / astro::twoPi;
  while (units > unitsPerTurn) {
    units -= unitsPerTurn;
  }
  return units > unitsPerTurn / 2.0 ? unitsPerTurn - units : units;
}

Sphere sphereOf(double longitude, const Nativity& nativity) {
  const double fromSun = separation(longitude, nativity.sun);
  const double fromMoon = separation(longitude, nativity.moon);
  if (fromSun > fromMoon + clearlyNearer) {
    return Sphere::fate;
  }
  return fromSun > fromMoon - clearlyNearer ? Sphere::balanced : Sphere::will;
}

Strength strengthOf(double a, double b) {
  const double units = separation(a, b);
  for (const StrengthEntry& entry : strengths) {
    if (units > entry.above) {
      return entry.strength;
    }
  }
  return Strength::impotent;
}

Power powerOf(double moonLatitude) {
  if (moonLatitude > powerLatitude) {
    return Power::superior;
  }
  return moonLatitude > -powerLatitude ? Power::balanced : Power::inferior;
}

bool isTwistedKeep(const astro::PerPlanet<double>& planetLongitudes) {
  static_assert(astro::planetCount == 4, "the keep is that of two groups of two planets");
  astro::PerPlanet<std::pair<double, int>> order{};
  for (std::size_t i = 0; i < order.size(); ++i) {
    order[i] = {astro::wrappedToClosedTurn(planetLongitudes[i]), static_cast<int>(i % 2)};
  }
  // A bubble sort, descending: planets at one longitude keep their places, and so their verdict.
  for (std::size_t pass = 0; pass + 1 < order.size(); ++pass) {
    for (std::size_t i = 0; i + 1 < order.size(); ++i) {
      if (order[i].first < order[i + 1].first) {
        std::swap(order[i], order[i + 1]);
      }
    }
  }
  return order[0].second == order[2].second;
}

}  // namespace veyruna::charts
