#include "astro/sun.h"

#include <cmath>
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "astro/rotation.h"
#include "tests/support/random_sky.h"

namespace veyruna {
namespace {

using astro::halfPi;
using astro::Sun;
using astro::twoPi;

TEST(Sun, AYearIs360DaysAndTwoMinutesLong) {
  EXPECT_NEAR(1.0 / astro::sunMeanMotion, 360.0011, 0.00005);
}

TEST(Sun, TheSkyTurnsOnceMoreAYearThanTheDay) {
  EXPECT_EQ(astro::siderealRate, 1.0 + astro::sunMeanMotion);
}

TEST(Sun, TheEpochLiesHalfADayBeforeTheEquinox) {
  EXPECT_EQ(astro::sunPhaseAtEpoch, -astro::sunMeanMotion / 2.0);
}

TEST(Sun, StandsAtTheEquinoxAtTheFirstDaysEnd) {
  const Sun sun(0.5);
  EXPECT_EQ(sun.ec.phi, 0.0);
  EXPECT_EQ(sun.ec.theta, 0.0);
  EXPECT_EQ(sun.eq.phi, 0.0);
  EXPECT_EQ(sun.eq.theta, 0.0);
}

TEST(Sun, StandsJustBelowAFullTurnAtTheEpoch) {
  EXPECT_EQ(astro::sunLongitude(0.0), (1.0 - 0.0013888846450746957) * twoPi);
  EXPECT_LT(Sun(0.0).ec.phi, twoPi);
  EXPECT_LT(Sun(0.0).eq.theta, 0.0);
}

TEST(Sun, ReachesItsGreatestDeclinationAQuarterOfTheWayRound) {
  const double quarterYear = 0.25 / astro::sunMeanMotion;
  const Sun summer(0.5 + quarterYear);
  EXPECT_NEAR(summer.ec.phi, halfPi, 1e-12);
  EXPECT_NEAR(summer.eq.theta, astro::obliquity, 1e-12);
  EXPECT_GT(summer.eq.theta, Sun(0.5 + quarterYear - 5.0).eq.theta);
  EXPECT_GT(summer.eq.theta, Sun(0.5 + quarterYear + 5.0).eq.theta);
  EXPECT_NEAR(Sun(0.5 + 3.0 * quarterYear).eq.theta, -astro::obliquity, 1e-12);
}

RC_GTEST_PROP(Sun, NeverLeavesTheTropics, ()) {
  const Sun sun(*tests::moments());
  RC_ASSERT(std::abs(sun.eq.theta) <= astro::obliquity + 1e-15);
  RC_ASSERT(sun.ec.theta == 0.0);
}

RC_GTEST_PROP(Sun, ItsAnglesLieInOneTurn, ()) {
  const Sun sun(*tests::moments());
  RC_ASSERT(sun.ec.phi >= 0.0 && sun.ec.phi < twoPi);
  RC_ASSERT(sun.eq.phi >= 0.0 && sun.eq.phi < twoPi);
}

RC_GTEST_PROP(Sun, MovesUniformly, ()) {
  const double t = *tests::momentsWithin(1e6);
  const double days = *tests::between(0.0, 100.0);
  RC_ASSERT(std::abs(tests::apart(astro::sunLongitude(t + days) - astro::sunLongitude(t),
                                  days * astro::sunMeanMotion * twoPi)) < 1e-9);
}

RC_GTEST_PROP(Sun, DeclinationFollowsFromLongitudeAndTilt, ()) {
  const Sun sun(*tests::moments());
  RC_ASSERT(std::abs(std::sin(sun.eq.theta) - std::sin(astro::obliquity) * std::sin(sun.ec.phi)) <
            1e-14);
}

}  // namespace
}  // namespace veyruna
