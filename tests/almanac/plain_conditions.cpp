#include "tests/almanac/plain_conditions.h"

#include <algorithm>
#include <cmath>
#include <string_view>

#include "astro/angle.h"
#include "astro/calendar.h"
#include "astro/horizon.h"
#include "astro/lunar_events.h"
#include "astro/moon.h"
#include "astro/planet.h"
#include "astro/rotation.h"
#include "astro/sun.h"
#include "charts/star_catalogue.h"

namespace veyruna::tests {

namespace {

using namespace almanac;

double degreesApart(double a, double b) {
  return std::abs(std::remainder(a - b, astro::twoPi)) * 180.0 / astro::pi;
}

/// The sign of x y′ − y x′, of the way from the world to the planet.
bool runsBackward(astro::Planet planet, double t) {
  const astro::PlanetFacts& facts = factsOf(planet);
  const double sun = astro::sunLongitude(t);
  const double helio = astro::meanAngle(facts.orbitPhase + t / facts.orbitPeriod);
  const double x = std::cos(sun) + facts.orbitRadius * std::cos(helio);
  const double y = std::sin(sun) + facts.orbitRadius * std::sin(helio);
  const double sunRate = astro::sunMeanMotion;
  const double helioRate = facts.orbitRadius / facts.orbitPeriod;
  const double xRate = -std::sin(sun) * sunRate - std::sin(helio) * helioRate;
  const double yRate = std::cos(sun) * sunRate + std::cos(helio) * helioRate;
  return x * yRate - y * xRate < 0.0;
}

/// Whether t lies where sun and moon are aligned, and the moon crosses the ecliptic meanwhile.
bool eclipseLasts(double t) {
  if (astro::lunarEventText(t).empty()) {
    return false;
  }
  double low = t - 0.5;  // longer than any alignment lasts
  double high = t + 0.5;
  const bool isNorth = astro::moonLatitude(low) > 0.0;
  if ((astro::moonLatitude(high) > 0.0) == isNorth) {
    return false;
  }
  for (int halving = 0; halving < 40; ++halving) {
    const double middle = (low + high) / 2.0;
    ((astro::moonLatitude(middle) > 0.0) == isNorth ? low : high) = middle;
  }
  return !astro::lunarEventText(high).empty();
}

double localDaysAt(const astro::Observer& observer) {
  const double hourAngle =
      astro::localSiderealAngle(observer) - astro::Sun(observer.baseTime).eq.phi;
  double ahead = hourAngle / astro::twoPi - observer.baseTime;
  ahead -= std::round(ahead);
  return observer.baseTime + ahead + 0.5;
}

struct Judge {
  const PlainSky& sky;
  const PlainHorizon& horizon;
  bool isLocal;

  [[nodiscard]] double longitude(Body body) const {
    return sky.longitudes[static_cast<std::size_t>(body)];
  }
  [[nodiscard]] double days() const { return isLocal ? horizon.localDays : sky.t + 0.5; }
  [[nodiscard]] double elongation() const {
    return astro::wrappedToTurn(longitude(Body::ivro) - longitude(Body::thessil)) * 180.0 /
           astro::pi;
  }

  bool operator()(const InSign& in) const {
    return &reports::signAt(longitude(in.body)) == in.sign;
  }
  bool operator()(const Together& pair) const {
    return degreesApart(longitude(pair.body),
                        longitude(pair.other) + (pair.isOpposite ? astro::pi : 0.0)) <
           pair.withinDegrees;
  }
  bool operator()(const MoonIs& moon) const {
    switch (moon.phase) {
      case Phase::full:
        return elongation() > 174.0 && elongation() < 186.0;
      case Phase::fresh:
        return elongation() < 6.0 || elongation() > 354.0;
      case Phase::waxing:
        return elongation() > 0.0 && elongation() < 180.0;
      default:
        return elongation() >= 180.0 || elongation() <= 0.0;
    }
  }
  bool operator()(const Running& running) const {
    return sky.isBackward[astro::indexOf(running.planet)] == running.isBackward;
  }
  bool operator()(const EclipseLasts& /*eclipse*/) const { return sky.isEclipse; }
  bool operator()(const RisingSign& rising) const {
    return &reports::signAt(horizon.nativity.ascendant + (rising.isDescending ? astro::pi : 0.0)) ==
           rising.sign;
  }
  bool operator()(const PowerIs& is) const {
    return charts::powerOf(horizon.nativity.moonLatitude) == is.power;
  }
  bool operator()(const KeepIs& is) const {
    return charts::isTwistedKeep(horizon.nativity.planets) == is.isTwisted;
  }
  bool operator()(const ElementIs& is) const {
    return charts::strengthOf(horizon.nativity.planets[indexOf(is.element->pair.first)],
                              horizon.nativity.planets[indexOf(is.element->pair.second)]) ==
           is.strength;
  }
  bool operator()(const NatalIs& is) const {
    return charts::strengthOf(horizon.nativity.planets[indexOf(is.planet)],
                              horizon.nativity.ascendant) == is.strength;
  }
  bool operator()(const Favours& favours) const {
    return charts::sphereOf(horizon.nativity.planets[indexOf(favours.planet)], horizon.nativity) ==
           favours.sphere;
  }
  bool operator()(const DominantSphere& is) const {
    return charts::sphereOf(horizon.nativity.ascendant, horizon.nativity) == is.sphere;
  }
  bool operator()(const BodyAbove& is) const {
    return horizon.altitudes[static_cast<std::size_t>(is.body)] > is.degrees * astro::pi / 180.0;
  }
  bool operator()(const StarAbove& is) const {
    return toHorizon(charts::builtInCatalogue().stars()[is.star].eq, horizon.observer).theta >
           is.degrees * astro::pi / 180.0;
  }
  bool operator()(const LightIs& is) const {
    const double sun = horizon.altitudes[0] * 180.0 / astro::pi;
    return is.light == (sun > 0.0 ? Light::day : sun > -6.0 ? Light::twilight : Light::night);
  }
  bool operator()(const HourBetween& hours) const {
    const double hour = 24.0 * (days() - std::floor(days()));
    const bool isIn = hours.from < hours.to ? hour >= hours.from && hour < hours.to
                                            : hour >= hours.from || hour < hours.to;
    return days() >= 0.0 && isIn;
  }
  bool operator()(const MonthIs& is) const {
    return days() >= 0.0 && static_cast<long>(days()) / 30 % 12 == is.monthIndex;
  }
  bool operator()(const DayIs& is) const {
    return days() >= 0.0 && static_cast<long>(days()) % 30 == is.dayIndex;
  }
  bool operator()(const AnyOf& any) const {
    return std::ranges::any_of(any.parts, [this](const Condition& part) { return holds(part); });
  }
  bool operator()(const AllOf& all) const {
    return std::ranges::all_of(all.parts, [this](const Condition& part) { return holds(part); });
  }
  bool operator()(const Not& negation) const { return !holds(negation.parts.front()); }

  [[nodiscard]] bool holds(const Condition& condition) const {
    return std::visit(*this, condition.form);
  }
};

}  // namespace

PlainSky::PlainSky(double moment)
    : t(moment), longitudes{}, moonLatitude{}, isBackward{}, isEclipse{} {
  const astro::Sun sun(t);
  const astro::Moon moon(t);
  longitudes[astro::sunRow] = sun.ec.phi;
  directions.push_back(sun.eq);
  longitudes[astro::moonRow] = moon.ec.phi;
  directions.push_back(moon.eq);
  moonLatitude = moon.ec.theta;
  for (const astro::Planet planet : astro::allPlanets) {
    const astro::Vec3D ecliptic = planetEcliptic(planet, t, sun);
    longitudes[rowOf(planet)] = ecliptic.phi;
    directions.push_back(rotated(ecliptic, astro::eclipticToEquatorial));
    isBackward[indexOf(planet)] = runsBackward(planet, t);
  }
  isEclipse = eclipseLasts(t);
}

PlainHorizon::PlainHorizon(const PlainSky& sky, const astro::Observer& place)
    : observer(place.at(sky.t)),
      altitudes{},
      nativity{sky.longitudes[astro::sunRow],
               sky.longitudes[astro::moonRow],
               sky.moonLatitude,
               {},
               charts::ascendantOf(astro::localSiderealAngle(observer), place.latitude)},
      localDays(localDaysAt(observer)) {
  const astro::HorizonFrame frame(observer);
  for (std::size_t body = 0; body < altitudes.size(); ++body) {
    altitudes[body] = frame.toHorizon(sky.directions[body]).theta;
  }
  for (const astro::Planet planet : astro::allPlanets) {
    nativity.planets[indexOf(planet)] = sky.longitudes[rowOf(planet)];
  }
}

bool plainHolds(const Condition& condition, const PlainSky& sky, const PlainHorizon& horizon,
                bool isLocal) {
  return Judge{sky, horizon, isLocal}.holds(condition);
}

}  // namespace veyruna::tests
