// λ longitude, A ascendant. The ascendant itself moves by no bounded rate where the ecliptic comes
// near to lying in the horizon, and leaps where it does. But whenever it passes a point of the
// ecliptic, that point stands in the horizon; so its verdicts are watched by the heights of points,
// which are as smooth at every latitude as those of stars.
#include <algorithm>
#include <cmath>
#include <limits>

#include "almanac/motion/height.h"
#include "almanac/motion/moving_angle.h"
#include "almanac/search/questions.h"
#include "almanac/search/spheres.h"
#include "almanac/search/strength_walls.h"
#include "astro/horizon.h"
#include "charts/star_catalogue.h"

namespace veyruna::almanac {

namespace {

/// A height, and by how much its rate changes in a day at most.
struct BoundedHeight {
  Height height;
  double bend = 0.0;

  /// For how long it cannot come to a level.
  [[nodiscard]] double daysUntil(double level) const {
    const double above = height.sine - level;
    // What stands exactly at the level is not above it, and may be about to be.
    return daysUntilReached(std::abs(above), above > 0.0 ? height.rate : -height.rate, bend);
  }
};

/// For how long a point of the ecliptic cannot come into the horizon. `bend` is that of heights.
double daysUntilInHorizon(const Motion& point, const astro::Observer& observer, double bend) {
  const Height height = heightOf(courseOnEcliptic(point), observer);
  return std::abs(height.sine) <= blurAt(observer.baseTime)
             ? 0.0
             : BoundedHeight{height, bend}.daysUntil(0.0);
}

/// The bend of the height of a point that moves so on the ecliptic.
double heightBendOf(double speed, double bend, double latitude) {
  return heightBend({.speed = speed, .bend = speed * speed + bend}, latitude);
}

double ascendantAt(const astro::Observer& observer) {
  return charts::ascendantOf(astro::localSiderealAngle(observer), observer.latitude);
}

}  // namespace

Question question(const RisingSign& rising, const astro::Observer& place) {
  const auto next = static_cast<std::size_t>(rising.sign - reports::zodiacSigns.data()) + 1;
  const double end = reports::zodiacSigns[next % reports::zodiacSigns.size()].start;
  return [rising, place, end, bend = heightBendOf(0.0, 0.0, place.latitude)](double t) {
    const astro::Observer observer = place.at(t);
    const double longitude = ascendantAt(observer) + (rising.isDescending ? astro::pi : 0.0);
    return State{&reports::signAt(longitude) == rising.sign,
                 std::min(daysUntilInHorizon({rising.sign->start, 0.0}, observer, bend),
                          daysUntilInHorizon({end, 0.0}, observer, bend))};
  };
}

Question question(const NatalIs& is, const astro::Observer& place) {
  const Body body = bodyOf(is.planet);
  const double bend = heightBendOf(speedOf(body), bendOf(body), place.latitude);
  return [is, place, body, bend, walls = wallsOf(is.strength)](double t) {
    const astro::Observer observer = place.at(t);
    const Motion planet = motionAt(body, t);
    double unchanged = std::numeric_limits<double>::infinity();
    for (const double wall : {walls.inner, -walls.inner, walls.outer, -walls.outer}) {
      unchanged = std::min(
          unchanged, daysUntilInHorizon({planet.longitude + wall, planet.rate}, observer, bend));
    }
    return State{charts::strengthOf(planet.longitude, ascendantAt(observer)) == is.strength,
                 unchanged};
  };
}

Question question(const DominantSphere& is, const astro::Observer& place) {
  const double speed = (speedOf(Body::thessil) + speedOf(Body::ivro)) / 2.0;
  return [is, place, bend = heightBendOf(speed, 0.0, place.latitude)](double t) {
    const astro::Observer observer = place.at(t);
    const Lights lights(t);
    double unchanged = daysUntilSpheresPart(lights);
    if (spheresPart(lights)) {
      // The points opposite to these are in the horizon at the same moments.
      const MovingAngle middle = lights.middle();
      for (const double wall : {sphereWall, -sphereWall}) {
        unchanged = std::min(unchanged,
                             daysUntilInHorizon({middle.at + wall, middle.rate}, observer, bend));
      }
    }
    return State{sphereAt(ascendantAt(observer), lights) == is.sphere, unchanged};
  };
}

Question question(const BodyAbove& is, const astro::Observer& place) {
  const double level = std::sin(astro::radiansOf(is.degrees));
  const double bend = heightBend(courseBoundsOf(is.body), place.latitude);
  return [body = is.body, place, level, bend](double t) {
    const Height height = heightOf(courseAt(body, t), place.at(t));
    return State{height.sine > level, BoundedHeight{height, bend}.daysUntil(level)};
  };
}

Question question(const StarAbove& is, const astro::Observer& place) {
  const astro::Vec3D& star = charts::builtInCatalogue().stars().at(is.star).eq;
  const Course course{{star.v[0], star.v[1], star.v[2]}, {}};
  const double level = std::sin(astro::radiansOf(is.degrees));
  const double bend = heightBend({}, place.latitude) * std::cos(star.theta);
  return [course, place, level, bend](double t) {
    const Height height = heightOf(course, place.at(t));
    return State{height.sine > level, BoundedHeight{height, bend}.daysUntil(level)};
  };
}

Question question(const LightIs& is, const astro::Observer& place) {
  const double level = -std::sin(twilightDepth);
  const double bend = heightBend(courseBoundsOf(Body::thessil), place.latitude);
  return [light = is.light, place, level, bend](double t) {
    const Height sun = heightOf(courseAt(Body::thessil, t), place.at(t));
    const Light now = sun.sine > 0.0     ? Light::day
                      : sun.sine > level ? Light::twilight
                                         : Light::night;
    const BoundedHeight bounded{sun, bend};
    return State{now == light, std::min(bounded.daysUntil(0.0), bounded.daysUntil(level))};
  };
}

}  // namespace veyruna::almanac
