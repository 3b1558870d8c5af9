#include "astro/angle.h"

#include <cmath>
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "tests/support/random_sky.h"

namespace veyruna {
namespace {

using astro::pi;
using astro::twoPi;

TEST(Angle, ConstantsFitTogether) {
  EXPECT_EQ(pi, std::acos(-1.0));
  EXPECT_EQ(twoPi, 2.0 * std::acos(-1.0));
  EXPECT_EQ(astro::halfPi, std::acos(0.0));
  EXPECT_EQ(astro::degreesPerRadian, 180.0 / pi);
}

TEST(Angle, TypedDegreesComeBackFromRadiansAsTheyWere) {
  EXPECT_EQ(astro::radiansOf(180.0), pi);
  EXPECT_EQ(astro::radiansOf(-90.0), -astro::halfPi);
  EXPECT_EQ(astro::degreesOf(pi), 180.0);
  for (int thousandths = -180'000; thousandths <= 180'000; ++thousandths) {
    const double degrees = thousandths / 1000.0;
    const double radians = astro::radiansOf(degrees);
    ASSERT_EQ(std::round(astro::typedDegreesOf(radians) * 1000.0), thousandths);
    ASSERT_NEAR(astro::degreesOf(radians), degrees, 1e-13);
  }
}

TEST(Angle, FractionsOfTurnsCountFromBelow) {
  EXPECT_EQ(astro::fractionOfTurn(2.25), 0.25);
  EXPECT_EQ(astro::fractionOfTurn(-2.25), 0.75);
  EXPECT_EQ(astro::fractionOfTurn(-3.0), 0.0);
  EXPECT_EQ(astro::meanAngle(-0.25), 0.75 * twoPi);
}

TEST(Angle, BothHalfTurnsStayInTheClosedRange) {
  EXPECT_EQ(astro::wrappedToHalfTurns(pi), pi);
  EXPECT_EQ(astro::wrappedToHalfTurns(-pi), -pi);
  EXPECT_EQ(astro::wrappedToHalfTurns(std::nextafter(pi, 4.0)), std::nextafter(pi, 4.0) - twoPi);
  EXPECT_EQ(astro::wrappedToHalfTurns(std::nextafter(-pi, -4.0)),
            std::nextafter(-pi, -4.0) + twoPi);
}

TEST(Angle, TheNegativeHalfTurnLeavesTheHalfOpenRange) {
  EXPECT_EQ(astro::wrappedToHalfOpenHalfTurns(pi), pi);
  EXPECT_EQ(astro::wrappedToHalfOpenHalfTurns(-pi), pi);
}

TEST(Angle, AFullTurnStaysInTheClosedTurnOnly) {
  EXPECT_EQ(astro::wrappedToClosedTurn(twoPi), twoPi);
  EXPECT_EQ(astro::wrappedToTurn(twoPi), 0.0);
  EXPECT_EQ(astro::wrappedToTurn(-twoPi), 0.0);
  EXPECT_EQ(astro::wrappedToClosedTurn(-twoPi), 0.0);
}

TEST(Angle, AHairBelowZeroIsAFullTurnAndThatIsZero) {
  EXPECT_EQ(astro::wrappedToTurn(-1e-20), 0.0);
  EXPECT_EQ(astro::wrappedToClosedTurn(-1e-20), twoPi);
}

double inHalfTurnsByLoop(double angle) {
  while (angle > pi) {
    angle -= 2.0 * pi;
  }
  while (angle < -pi) {
    angle += 2.0 * pi;
  }
  return angle;
}

double inHalfOpenHalfTurnsByLoop(double angle) {
  while (angle > pi) {
    angle -= 2.0 * pi;
  }
  while (angle <= -pi) {
    angle += 2.0 * pi;
  }
  return angle;
}

double inTurnByLoop(double angle) {
  while (angle < 0.0) {
    angle += 2.0 * pi;
  }
  while (angle >= 2.0 * pi) {
    angle -= 2.0 * pi;
  }
  return angle;
}

double inClosedTurnByLoop(double angle) {
  while (angle > 2.0 * pi) {
    angle -= 2.0 * pi;
  }
  while (angle < 0.0) {
    angle += 2.0 * pi;
  }
  return angle;
}

/// Angles met in practice, and whole and half turns with their neighbours.
rc::Gen<double> ordinaryAngles() {
  return rc::gen::oneOf(
      tests::between(-20.0, 20.0), tests::between(-999.0 * twoPi, 999.0 * twoPi),
      rc::gen::map(rc::gen::pair(tests::wholeBetween(-200, 200), tests::wholeBetween(-1, 1)),
                   [](const std::pair<std::int64_t, std::int64_t>& p) {
                     const double halfTurns = static_cast<double>(p.first) * pi;
                     return p.second == 0
                                ? halfTurns
                                : std::nextafter(halfTurns, static_cast<double>(p.second) * 1e9);
                   }));
}

RC_GTEST_PROP(Angle, WrappingIsThePlainLoopBitForBit, ()) {
  const double angle = *ordinaryAngles();
  RC_ASSERT(astro::wrappedToHalfTurns(angle) == inHalfTurnsByLoop(angle));
  RC_ASSERT(astro::wrappedToHalfOpenHalfTurns(angle) == inHalfOpenHalfTurnsByLoop(angle));
  RC_ASSERT(astro::wrappedToTurn(angle) == inTurnByLoop(angle));
  RC_ASSERT(astro::wrappedToClosedTurn(angle) == inClosedTurnByLoop(angle));
}

RC_GTEST_PROP(Angle, EveryFiniteAngleEndsInItsRange, ()) {
  const double angle = *tests::finiteDoubles();
  RC_ASSERT(std::abs(astro::wrappedToHalfTurns(angle)) <= pi);
  const double halfOpen = astro::wrappedToHalfOpenHalfTurns(angle);
  RC_ASSERT(halfOpen > -pi && halfOpen <= pi);
  const double turn = astro::wrappedToTurn(angle);
  RC_ASSERT(turn >= 0.0 && turn < twoPi);
  const double closed = astro::wrappedToClosedTurn(angle);
  RC_ASSERT(closed >= 0.0 && closed <= twoPi);
}

RC_GTEST_PROP(Angle, WrappingKeepsTheDirection, ()) {
  const double angle = *tests::between(-5000.0 * twoPi, 5000.0 * twoPi);
  for (const double wrapped :
       {astro::wrappedToHalfTurns(angle), astro::wrappedToHalfOpenHalfTurns(angle),
        astro::wrappedToTurn(angle), astro::wrappedToClosedTurn(angle)}) {
    RC_ASSERT(std::abs(tests::apart(wrapped, angle)) < 1e-8);
  }
}

RC_GTEST_PROP(Angle, MeanAnglesLieInOneTurnAtEveryMoment, ()) {
  const double angle = astro::meanAngle(*tests::moments());
  RC_ASSERT(angle >= 0.0 && angle < twoPi);
}

}  // namespace
}  // namespace veyruna
