// λ longitude; E elongation of the moon from the sun; u argument of the moon's latitude.
#include <cmath>
#include <limits>
#include <utility>

#include "almanac/motion/moving_angle.h"
#include "almanac/search/questions.h"
#include "almanac/search/spheres.h"
#include "almanac/search/strength_walls.h"
#include "astro/moon.h"
#include "astro/planet.h"

namespace veyruna::almanac {

namespace {

/// Where a sign ends.
double endOf(const reports::ZodiacSign& sign) {
  const auto next = static_cast<std::size_t>(&sign - reports::zodiacSigns.data()) + 1;
  return reports::zodiacSigns[next % reports::zodiacSigns.size()].start;
}

}  // namespace

Question question(const InSign& in) {
  return [in, bend = bendOf(in.body)](double t) {
    const MovingAngle longitude = longitudeOf(in.body, t, bend);
    return State{&reports::signAt(longitude.at) == in.sign,
                 daysUntilAnyOf(longitude, {in.sign->start, endOf(*in.sign)})};
  };
}

Question question(const Together& pair) {
  const double within = astro::radiansOf(pair.withinDegrees);
  const double target = pair.isOpposite ? astro::pi : 0.0;
  return
      [pair, within, target, bend = bendOf(pair.body), otherBend = bendOf(pair.other)](double t) {
        MovingAngle apart = longitudeOf(pair.body, t, bend) - longitudeOf(pair.other, t, otherBend);
        apart.at = astro::wrappedToHalfTurns(apart.at - target);
        return State{std::abs(apart.at) < within, daysUntilAnyOf(apart, {within, -within})};
      };
}

Question question(const MoonIs& moon) {
  const Phase phase = moon.phase;
  if (phase == Phase::waxing || phase == Phase::waning) {
    return [phase](double t) {
      const MovingAngle elongation = Lights(t).elongation();
      const double wrapped = astro::wrappedToTurn(elongation.at);
      const bool isWaxing = wrapped > 0.0 && wrapped < astro::pi;
      return State{isWaxing == (phase == Phase::waxing),
                   daysUntilAnyOf(elongation, {0.0, astro::pi})};
    };
  }
  const double target = phase == Phase::full ? astro::pi : 0.0;
  return [target](double t) {
    const MovingAngle elongation = Lights(t).elongation();
    return State{std::abs(astro::wrappedToHalfTurns(elongation.at - target)) < phaseOrb,
                 daysUntilAnyOf(elongation, {target - phaseOrb, target + phaseOrb})};
  };
}

Question question(const Running& running) {
  return [running, body = bodyOf(running.planet)](double t) {
    const bool isBackward = motionAt(body, t).rate < 0.0;
    // One that is just past is a rounding away.
    const auto station = nextStation(body, t - leastStepDays);
    return State{isBackward == running.isBackward,
                 station ? std::max(*station - t, 0.0) : std::numeric_limits<double>::infinity()};
  };
}

// β > 3° where sin u > 3° / i, and u moves evenly.
Question question(const PowerIs& is) {
  const double north = std::asin(charts::powerLatitude / astro::moonInclination);
  return [is, north](double t) {
    const MovingAngle u{
        astro::twoPi * astro::fractionOfTurn(t * astro::moonNodalRate) + astro::moonLatitudePhase,
        astro::twoPi * astro::moonNodalRate, 0.0, blurAt(t)};
    return State{charts::powerOf(astro::moonLatitude(t)) == is.power,
                 daysUntilAnyOf(u, {north, astro::pi - north, -north, astro::pi + north})};
  };
}

// Whether the groups alternate can change only where two planets of different groups meet.
Question question(const KeepIs& is) {
  astro::PerPlanet<double> bends{};
  for (const astro::Planet planet : astro::allPlanets) {
    bends[indexOf(planet)] = bendOf(bodyOf(planet));
  }
  return [is, bends](double t) {
    astro::PerPlanet<double> longitudes{};
    astro::PerPlanet<MovingAngle> angles{};
    for (const astro::Planet planet : astro::allPlanets) {
      angles[indexOf(planet)] = longitudeOf(bodyOf(planet), t, bends[indexOf(planet)]);
      longitudes[indexOf(planet)] = angles[indexOf(planet)].at;
    }
    double unchanged = std::numeric_limits<double>::infinity();
    for (std::size_t one = 0; one < angles.size(); one += 2) {
      for (std::size_t other = 1; other < angles.size(); other += 2) {
        unchanged = std::min(unchanged, daysUntilAnyOf(angles[one] - angles[other], {0.0}));
      }
    }
    return State{charts::isTwistedKeep(longitudes) == is.isTwisted, unchanged};
  };
}

Question question(const ElementIs& is) {
  const Body first = bodyOf(is.element->pair.first);
  const Body second = bodyOf(is.element->pair.second);
  return [strength = is.strength, walls = wallsOf(is.strength), first, second, bend = bendOf(first),
          otherBend = bendOf(second)](double t) {
    const MovingAngle one = longitudeOf(first, t, bend);
    const MovingAngle other = longitudeOf(second, t, otherBend);
    const MovingAngle apart = one - other;
    return State{charts::strengthOf(one.at, other.at) == strength,
                 daysUntilAnyOf(apart, {walls.inner, -walls.inner, walls.outer, -walls.outer})};
  };
}

Question question(const Favours& favours) {
  const Body body = bodyOf(favours.planet);
  return [sphere = favours.sphere, body, bend = bendOf(body)](double t) {
    const Lights lights(t);
    const MovingAngle longitude = longitudeOf(body, t, bend);
    double unchanged = daysUntilSpheresPart(lights);
    if (spheresPart(lights)) {
      const MovingAngle offset = longitude - lights.middle();
      unchanged = std::min(unchanged,
                           daysUntilAnyOf(offset, {sphereWall, -sphereWall, astro::pi + sphereWall,
                                                   astro::pi - sphereWall}));
    }
    return State{sphereAt(longitude.at, lights) == sphere, unchanged};
  };
}

}  // namespace veyruna::almanac
