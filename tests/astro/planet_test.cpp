#include "astro/planet.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>
#include <set>

#include "astro/planet_pair.h"
#include "astro/rotation.h"
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

TEST(Planet, ATableWithoutAPlanetIsFoundOut) {
  struct Row {
    Planet planet = Planet::count;
  };
  astro::PerPlanet<Row> rows = {{{Planet::bralo}, {Planet::dunmor}, {Planet::galvi}}};
  EXPECT_FALSE(astro::hasEveryPlanet(rows));
  rows.back().planet = Planet::pallox;
  EXPECT_TRUE(astro::hasEveryPlanet(rows));
  std::swap(rows[1], rows[2]);
  EXPECT_FALSE(astro::hasEveryPlanet(rows));
}

TEST(PlanetPair, EveryTwoPlanetsAreOnePair) {
  std::set<std::string> codes;
  for (const astro::PlanetPair& pair : astro::allPlanetPairs) {
    std::string code;
    appendCode(code, pair);
    codes.insert(code);
  }
  EXPECT_EQ(codes, (std::set<std::string>{"BR-DU", "BR-GA", "BR-PA", "DU-GA", "DU-PA", "GA-PA"}));
}

TEST(PlanetPair, ATableWithAPairTwiceOrNeverIsFoundOut) {
  struct Row {
    astro::PlanetPair pair;
  };
  astro::PerPlanetPair<Row> rows;
  std::ranges::transform(astro::allPlanetPairs, rows.rbegin(),
                         [](const astro::PlanetPair& pair) { return Row{pair}; });
  EXPECT_TRUE(astro::hasEveryPair(rows)) << "in whatever order";
  rows[0] = rows[1];
  EXPECT_FALSE(astro::hasEveryPair(rows));
  rows[0] = {};
  EXPECT_FALSE(astro::hasEveryPair(rows));
}

TEST(Planet, OrbitsObeyTheThirdLaw) {
  for (const Planet planet : allPlanets) {
    const astro::PlanetFacts& facts = factsOf(planet);
    const double radius = std::pow(std::abs(facts.orbitPeriod) / 360.0, 2.0 / 3.0);
    EXPECT_NEAR(facts.orbitRadius, radius, 1e-15 * radius) << displayName(planet);
  }
}

TEST(Planet, PhasesAreTheRoundAnglesTheyWereTakenFrom) {
  const std::array<double, 4> partsOfPi = {1.6, 0.4, 0.8, 1.2};
  for (std::size_t i = 0; i < partsOfPi.size(); ++i) {
    EXPECT_NEAR(astro::planetFacts.at(i).orbitPhase, partsOfPi[i] * astro::pi, 1e-15);
  }
}

/// The direction from the world to a planet at a heliocentric longitude, by plain addition.
double seenFromWorld(Planet planet, double heliocentric, double t) {
  const double sun = astro::sunLongitude(t);
  const double radius = factsOf(planet).orbitRadius;
  return std::atan2(std::sin(sun) + radius * std::sin(heliocentric),
                    std::cos(sun) + radius * std::cos(heliocentric));
}

TEST(Planet, PhasesCountTurnsNotRadians) {
  const double dunmor = planetEcliptic(Planet::dunmor, 0.0).phi;
  EXPECT_NEAR(dunmor, seenFromWorld(Planet::dunmor, twoPi * 0.2566370614359172, 0.0), 1e-12);
  EXPECT_GT(std::abs(dunmor - seenFromWorld(Planet::dunmor, 0.4 * astro::pi, 0.0)), 0.1);
}

TEST(Planet, BraloKeepsNearTheSun) {
  const double most = std::asin(factsOf(Planet::bralo).orbitRadius);
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
  const astro::PlanetFacts& facts = factsOf(planet);
  const double t = *tests::momentsWithin(1e6);
  const double heliocentric = (facts.orbitPhase + t / facts.orbitPeriod) * twoPi;
  RC_ASSERT(std::abs(tests::apart(planetEcliptic(planet, t).phi,
                                  seenFromWorld(planet, heliocentric, t))) < 1e-9);
}

}  // namespace
}  // namespace veyruna
