// n daily motion on a circle; a radius of a planet's orbit, Δ its heliocentric longitude less the
// sun's; λ longitude, β latitude of a body, u argument of the moon's latitude.
#include "almanac/motion/motion.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "astro/angle.h"
#include "astro/invariant.h"
#include "astro/moon.h"
#include "astro/rotation.h"
#include "astro/sun.h"

namespace veyruna::almanac {

namespace {

using astro::factsOf;
using astro::Planet;
using astro::twoPi;

constexpr double sunRate = twoPi * astro::sunMeanMotion;
constexpr double moonRate = twoPi * astro::moonMeanMotion;
constexpr double nodalRate = twoPi * astro::moonNodalRate;

double heliocentricRate(Planet planet) {
  return twoPi / factsOf(planet).orbitPeriod;
}

/// Δ in revolutions at a moment, and its motion a day.
struct Parting {
  double revolutions;
  double rate;
};

Parting partingAt(Planet planet, double t) {
  const astro::PlanetFacts& facts = factsOf(planet);
  const double rate = 1.0 / facts.orbitPeriod - astro::sunMeanMotion;
  return {facts.orbitPhase - astro::sunPhaseAtEpoch + rate * t, rate};
}

// The planet stands at λ = λ☉ + φ(Δ), φ being the direction of 1 + a·e^(iΔ). Its derivatives by Δ:
// φ′ = (a² + a cos Δ) / D and φ″ = a (a² − 1) sin Δ / D², with D = 1 + a² + 2 a cos Δ.
double planetRate(Planet planet, double t) {
  const double a = factsOf(planet).orbitRadius;
  const double cosine = std::cos(twoPi * astro::fractionOfTurn(partingAt(planet, t).revolutions));
  const double slope = (a * a + a * cosine) / (1.0 + a * a + 2.0 * a * cosine);
  return sunRate + slope * (heliocentricRate(planet) - sunRate);
}

/// The most of |φ″|, where its own derivative is 0: q cos²Δ − p cos Δ − 2 q = 0.
double planetBend(Planet planet) {
  const double a = factsOf(planet).orbitRadius;
  const double p = 1.0 + a * a;
  const double q = 2.0 * a;
  const double cosine = (p - std::sqrt(p * p + 8.0 * q * q)) / (2.0 * q);
  const double distance = p + q * cosine;
  const double sine = std::sqrt(1.0 - cosine * cosine);
  const double steepest = a * std::abs(a * a - 1.0) * sine / (distance * distance);
  const double partingRate = heliocentricRate(planet) - sunRate;
  return steepest * partingRate * partingRate;
}

/// The rate runs evenly from the one at conjunction to the one at opposition: one of the two is the
/// largest.
double planetSpeed(Planet planet) {
  const double a = factsOf(planet).orbitRadius;
  const double n = heliocentricRate(planet);
  const auto rateAt = [&](double cosine) {
    const double slope = (a * a + a * cosine) / (1.0 + a * a + 2.0 * a * cosine);
    return std::abs(sunRate + slope * (n - sunRate));
  };
  return std::max(rateAt(1.0), rateAt(-1.0));
}

std::array<double, 3> toEquator(const std::array<double, 3>& ecliptic) {
  return astro::product(astro::eclipticToEquatorial, ecliptic);
}

}  // namespace

Motion motionAt(Body body, double t) {
  if (const auto planet = planetOf(body)) {
    return {astro::planetEcliptic(*planet, t).phi, planetRate(*planet, t)};
  }
  return body == Body::thessil ? Motion{astro::sunLongitude(t), sunRate}
                               : Motion{astro::moonLongitude(t), moonRate};
}

double bendOf(Body body) {
  const auto planet = planetOf(body);
  return planet ? planetBend(*planet) : 0.0;
}

double speedOf(Body body) {
  const auto planet = planetOf(body);
  return planet ? planetSpeed(*planet) : body == Body::thessil ? sunRate : moonRate;
}

std::optional<double> nextStation(Body body, double t) {
  const auto planet = planetOf(body);
  if (!planet) {
    return std::nullopt;
  }
  // λ′ = 0 where cos Δ = −(n☉ + a² n) / (a (n☉ + n)).
  const double a = factsOf(*planet).orbitRadius;
  const double n = heliocentricRate(*planet);
  const double cosine = -(sunRate + a * a * n) / (a * (sunRate + n));
  if (!(std::abs(cosine) < 1.0)) {
    return std::nullopt;
  }
  const double half = std::acos(cosine) / twoPi;
  const Parting start = partingAt(*planet, 0.0);
  const double direction = start.rate < 0.0 ? -1.0 : 1.0;
  double next = std::numeric_limits<double>::infinity();
  for (const double target : {half, -half}) {
    // Counted from base time 0, a turn's moment is the same double from wherever it is sought.
    const auto momentOf = [&](double turns) {
      return (direction * turns + target - start.revolutions) / start.rate;
    };
    double turns = std::floor(direction * (partingAt(*planet, t).revolutions - target));
    while (momentOf(turns) <= t) {
      turns += 1.0;
    }
    next = std::min(next, momentOf(turns));
  }
  return next;
}

Course courseOnEcliptic(const Motion& motion) {
  const double sinL = std::sin(motion.longitude);
  const double cosL = std::cos(motion.longitude);
  return {toEquator({cosL, sinL, 0.0}), toEquator({-sinL * motion.rate, cosL * motion.rate, 0.0})};
}

Course courseAt(Body body, double t) {
  const Motion motion = motionAt(body, t);
  if (body != Body::ivro) {
    return courseOnEcliptic(motion);
  }
  const auto [longitude, rate] = motion;
  const double sinL = std::sin(longitude);
  const double cosL = std::cos(longitude);
  const double latitude = astro::moonLatitude(t);
  const double u =
      twoPi * astro::fractionOfTurn(t * astro::moonNodalRate) + astro::moonLatitudePhase;
  const double latitudeRate = std::cos(u) * astro::moonInclination * nodalRate;
  const double sinB = std::sin(latitude);
  const double cosB = std::cos(latitude);
  return {toEquator({cosB * cosL, cosB * sinL, sinB}),
          toEquator({-cosB * sinL * rate - sinB * cosL * latitudeRate,
                     cosB * cosL * rate - sinB * sinL * latitudeRate, cosB * latitudeRate})};
}

CourseBounds courseBoundsOf(Body body) {
  const double along = speedOf(body);
  const double across = body == Body::ivro ? astro::moonInclination * nodalRate : 0.0;
  const double acrossBend = across * nodalRate;
  const double speed = std::hypot(along, across);
  // (λ′² + β′² and twice their product bend the path, the rates' own changes come on top.)
  return {speed, (along + across) * (along + across) + bendOf(body) + acrossBend};
}

}  // namespace veyruna::almanac
