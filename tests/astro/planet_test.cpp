#include "astro/planet.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>
#include <set>

#include "tests/support/random_sky.h"

namespace veyruna {
namespace {

using astro::allPlanets;
using astro::Planet;
using astro::planetEcliptic;
using astro::twoPi;
using astro::Vec3D;

rc::Gen<Planet> planets() {
  return rc::gen::elementOf(allPlanets);
}

/// How far the planet stands from the sun in longitude, east positive.
double elongationOf(Planet planet, double t) {
  return tests::apart(planetEcliptic(planet, t).phi, astro::sunLongitude(t));
}

TEST(Planet, TheirOrderAndNamesAreThoseOfEveryTable) {
  EXPECT_EQ(allPlanets, (std::array{Planet::bralo, Planet::dunmor, Planet::galvi, Planet::pallox}));
  const std::array<std::string_view, 4> names = {"Bralo", "Dunmor", "Galvi", "Pallox"};
  for (const Planet planet : allPlanets) {
    EXPECT_EQ(displayName(planet), names[indexOf(planet)]);
  }
}

TEST(Planet, OrbitsObeyTheThirdLaw) {
  for (const Planet planet : allPlanets) {
    const std::size_t i = indexOf(planet);
    const double radius = std::pow(std::abs(astro::orbitPeriod[i]) / 360.0, 2.0 / 3.0);
    EXPECT_NEAR(astro::orbitRadius[i], radius, 1e-15 * radius) << displayName(planet);
  }
}

TEST(Planet, PhasesAreTheRoundAnglesTheyWereTakenFrom) {
  const std::array<double, 4> partsOfPi = {1.6, 0.4, 0.8, 1.2};
  for (std::size_t i = 0; i < partsOfPi.size(); ++i) {
    EXPECT_NEAR(astro::orbitPhase[i], partsOfPi[i] * astro::pi, 1e-15);
  }
}

/// The direction from the world to a planet at a heliocentric longitude, by plain addition.
double seenFromWorld(Planet planet, double heliocentric, double t) {
  const double sun = astro::sunLongitude(t);
  const double radius = astro::orbitRadius[indexOf(planet)];
  return std::atan2(std::sin(sun) + radius * std::sin(heliocentric),
                    std::cos(sun) + radius * std::cos(heliocentric));
}

TEST(Planet, PhasesCountTurnsNotRadians) {
  const double dunmor = planetEcliptic(Planet::dunmor, 0.0).phi;
  EXPECT_NEAR(dunmor, seenFromWorld(Planet::dunmor, twoPi * 0.2566370614359172, 0.0), 1e-12);
  EXPECT_GT(std::abs(dunmor - seenFromWorld(Planet::dunmor, 0.4 * astro::pi, 0.0)), 0.1);
}

TEST(Planet, BraloKeepsNearTheSun) {
  const double most = std::asin(astro::orbitRadius[0]);
  EXPECT_NEAR(most * 180.0 / astro::pi, 42.2, 0.05);
  double widest = 0.0;
  for (double t = 0.0; t < 2000.0; t += 0.25) {
    widest = std::max(widest, std::abs(elongationOf(Planet::bralo, t)));
  }
  EXPECT_LE(widest, most + 1e-12);
  EXPECT_NEAR(widest, most, 0.001);
}

// Against the sun's motion Bralo's adds up: it passes the sun twice in 1 / (1/198 + 1/360) days.
TEST(Planet, BraloRunsAgainstTheOthers) {
  const double synodicPeriod = 1.0 / (1.0 / 198.0 + astro::sunMeanMotion);
  int passages = 0;
  for (double t = 0.0; t < 100.0 * synodicPeriod; t += 0.25) {
    const double here = elongationOf(Planet::bralo, t);
    const double next = elongationOf(Planet::bralo, t + 0.25);
    passages += here * next < 0.0 ? 1 : 0;
  }
  EXPECT_EQ(passages, 200);
}

TEST(Planet, TheOuterPlanetsReachEveryDistanceFromTheSun) {
  for (const Planet planet : {Planet::dunmor, Planet::galvi, Planet::pallox}) {
    std::set<int> tensOfDegrees;
    for (double t = 0.0; t < 800.0; t += 0.5) {
      const double degrees = elongationOf(planet, t) * 180.0 / astro::pi;
      tensOfDegrees.insert(static_cast<int>(std::floor(degrees / 10.0)));
    }
    EXPECT_EQ(tensOfDegrees.size(), 36U) << displayName(planet);
  }
}

TEST(Planet, WestOfTheEquinoxLongitudesAreNegative) {
  for (const Planet planet : allPlanets) {
    bool negative = false;
    bool positive = false;
    for (double t = 0.0; t < 31000.0; t += 10.0) {
      const double longitude = planetEcliptic(planet, t).phi;
      negative = negative || longitude < -0.5;
      positive = positive || longitude > 0.5;
    }
    EXPECT_TRUE(negative && positive) << displayName(planet);
  }
}

RC_GTEST_PROP(Planet, StandsOnTheEclipticWithASignedLongitude, ()) {
  const Vec3D direction = planetEcliptic(*planets(), *tests::moments());
  RC_ASSERT(direction.theta == 0.0);
  RC_ASSERT(direction.r == 0.0);
  RC_ASSERT(direction.phi > -astro::pi && direction.phi <= astro::pi);
}

RC_GTEST_PROP(Planet, NeverLeavesTheTropics, ()) {
  const Vec3D direction = planetEcliptic(*planets(), *tests::moments());
  const Vec3D equatorial = rotated(direction, astro::eclipticToEquatorial);
  RC_ASSERT(std::abs(equatorial.theta) <= astro::obliquity + 1e-15);
  RC_ASSERT(equatorial.phi >= 0.0 && equatorial.phi < twoPi);
}

RC_GTEST_PROP(Planet, ASunAtHandGivesTheSameDirection, ()) {
  const Planet planet = *planets();
  const double t = *tests::moments();
  RC_ASSERT(planetEcliptic(planet, t, astro::Sun(t)).v == planetEcliptic(planet, t).v);
}

RC_GTEST_PROP(Planet, CirclesTheSunUniformly, ()) {
  const Planet planet = *planets();
  const std::size_t i = indexOf(planet);
  const double t = *tests::momentsWithin(1e6);
  const double heliocentric = (astro::orbitPhase[i] + t / astro::orbitPeriod[i]) * twoPi;
  RC_ASSERT(std::abs(tests::apart(planetEcliptic(planet, t).phi,
                                  seenFromWorld(planet, heliocentric, t))) < 1e-9);
}

}  // namespace
}  // namespace veyruna
