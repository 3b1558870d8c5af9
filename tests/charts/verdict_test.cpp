#include "charts/verdict.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "astro/moon.h"
#include "tests/charts/sphere.h"

namespace veyruna::charts {
namespace {

using tests::degrees;
using tests::radians;

/// The largest longitude up to the half turn that stands no further than `units` from 0.
double lastWithin(double units) {
  double within = 0.0;
  double beyond = astro::pi;
  while (std::nextafter(within, beyond) < beyond) {
    const double middle = within + (beyond - within) / 2.0;
    (separation(middle, 0.0) <= units ? within : beyond) = middle;
  }
  return within;
}

double justBeyond(double angle) {
  return std::nextafter(angle, 10.0);
}

TEST(Separation, RunsFromZeroTogetherToAHundredOpposite) {
  EXPECT_EQ(separation(1.25, 1.25), 0.0);
  EXPECT_DOUBLE_EQ(separation(0.0, astro::pi), 100.0);
  EXPECT_DOUBLE_EQ(separation(0.0, astro::halfPi), 50.0);
  EXPECT_DOUBLE_EQ(separation(radians(1.8), 0.0), 1.0);
}

TEST(Separation, IsMeasuredTheShorterWayRound) {
  EXPECT_NEAR(separation(radians(359.0), radians(1.0)), 2.0 / 1.8, 1e-12);
  EXPECT_NEAR(separation(radians(-10.0), radians(10.0)), 20.0 / 1.8, 1e-12);
}

TEST(Separation, AWholeTurnIsNone) {
  EXPECT_EQ(separation(0.0, astro::twoPi), 0.0);
  EXPECT_NEAR(separation(0.5, 0.5 + 5.0 * astro::twoPi), 0.0, 1e-12);
}

RC_GTEST_PROP(Separation, IsTheAngleBetweenTwoDirections, ()) {
  const double a = *rc::gen::inRange(-20'000'000, 20'000'001) / 1e6;
  const double b = *rc::gen::inRange(-20'000'000, 20'000'001) / 1e6;
  const double angle =
      tests::angleBetween(tests::directionOf({a, 0.0}), tests::directionOf({b, 0.0}));
  RC_ASSERT(std::abs(separation(a, b) - degrees(angle) / 1.8) < 1e-11);
  RC_ASSERT(separation(a, b) == separation(b, a));
  RC_ASSERT(separation(a, b) >= 0.0);
  RC_ASSERT(separation(a, b) <= 100.0);
}

std::string_view strengthWord(double a, double b) {
  return entryOf(strengthOf(a, b)).name;
}

TEST(PairStrength, OppositionIsStrongestAndConjunctionWeakest) {
  EXPECT_EQ(strengthWord(0.3, 0.3 + astro::pi), "Exceptional");
  EXPECT_EQ(strengthWord(0.3, 0.3), "Impotent");
  EXPECT_EQ(strengthWord(-0.3, 0.3), "Weak");
}

TEST(PairStrength, FiveUnitsExactlyAreImpotentAndTheNextAngleFeeble) {
  const double nineDegrees = lastWithin(5.0);
  ASSERT_EQ(separation(nineDegrees, 0.0), 5.0);
  ASSERT_NEAR(degrees(nineDegrees), 9.0, 1e-13);
  EXPECT_EQ(strengthWord(nineDegrees, 0.0), "Impotent");
  EXPECT_EQ(strengthWord(justBeyond(nineDegrees), 0.0), "Feeble");
}

struct Step {
  double units;
  double degrees;
  const char* upTo;
  const char* beyond;
  friend std::ostream& operator<<(std::ostream& out, const Step& step) {
    return out << step.units << " units";
  }
};

class PairStrengthStep : public testing::TestWithParam<Step> {};

TEST_P(PairStrengthStep, TheStepItselfStillBelongsToTheWeakerSide) {
  const Step& step = GetParam();
  const double last = lastWithin(step.units);
  ASSERT_LE(separation(last, 0.0), step.units);
  ASSERT_GT(separation(justBeyond(last), 0.0), step.units);
  ASSERT_NEAR(degrees(last), step.degrees, 1e-12);
  EXPECT_EQ(strengthWord(last, 0.0), step.upTo);
  EXPECT_EQ(strengthWord(0.0, last), step.upTo);
  EXPECT_EQ(strengthWord(justBeyond(last), 0.0), step.beyond);
}

INSTANTIATE_TEST_SUITE_P(Steps, PairStrengthStep,
                         testing::Values(Step{5.0, 9.0, "Impotent", "Feeble"},
                                         Step{15.0, 27.0, "Feeble", "Weak"},
                                         Step{30.0, 54.0, "Weak", "Neutral"},
                                         Step{50.0, 90.0, "Neutral", "Strong"},
                                         Step{75.0, 135.0, "Strong", "Exceptional"}));

/// A longitude of 0 judged against sun and moon.
std::string_view verdictBetween(double sun, double moon) {
  return entryOf(sphereOf(0.0, Nativity{sun, moon, 0.0, {}, 0.0})).verdict;
}

TEST(AspectVerdict, FollowsTheNearerLight) {
  EXPECT_EQ(verdictBetween(radians(5.0), radians(170.0)), "THESSIL (Will)");
  EXPECT_EQ(verdictBetween(radians(170.0), radians(5.0)), "IVRO (Fate)");
  EXPECT_EQ(verdictBetween(radians(-5.0), radians(190.0)), "THESSIL (Will)");
}

TEST(AspectVerdict, EqualDistancesAreBalanced) {
  EXPECT_EQ(verdictBetween(1.0, -1.0), "BALANCED");
  EXPECT_EQ(verdictBetween(2.0, 2.0), "BALANCED");
  EXPECT_EQ(verdictBetween(0.0, 0.0), "BALANCED");
  EXPECT_EQ(verdictBetween(astro::pi, astro::pi), "BALANCED");
}

TEST(AspectVerdict, TwentyUnitsNearerToTheMoonIsStillBalanced) {
  const double twenty = lastWithin(20.0);
  ASSERT_EQ(separation(twenty, 0.0), 20.0);
  EXPECT_EQ(verdictBetween(twenty, 0.0), "BALANCED");
  EXPECT_EQ(verdictBetween(justBeyond(twenty), 0.0), "IVRO (Fate)");
}

TEST(AspectVerdict, TwentyUnitsNearerToTheSunIsTheSuns) {
  const double twenty = lastWithin(20.0);
  EXPECT_EQ(verdictBetween(0.0, twenty), "THESSIL (Will)");
  EXPECT_EQ(verdictBetween(0.0, twenty - 1e-12), "BALANCED");
}

std::string_view powerVerdict(double moonLatitude) {
  return entryOf(powerOf(moonLatitude)).verdict;
}

TEST(PowerVerdict, ThreeDegreesNorthIsBalancedAndThreeSouthInferior) {
  constexpr double three = 0.05235987755982988;
  ASSERT_DOUBLE_EQ(three, radians(3.0));
  const std::string_view superior = "SUPERIOR.  The Fates hold sway over Veyruna.";
  const std::string_view balanced = "BALANCED.  Fate and Will are equal in Veyruna.";
  const std::string_view inferior = "INFERIOR.  Will can overcome Fate across Veyruna.";
  EXPECT_EQ(powerVerdict(astro::moonInclination), superior);
  EXPECT_EQ(powerVerdict(justBeyond(three)), superior);
  EXPECT_EQ(powerVerdict(three), balanced);
  EXPECT_EQ(powerVerdict(0.0), balanced);
  EXPECT_EQ(powerVerdict(justBeyond(-three)), balanced);
  EXPECT_EQ(powerVerdict(-three), inferior);
  EXPECT_EQ(powerVerdict(-astro::moonInclination), inferior);
}

/// Walks once around the circle and sees whether no two neighbours are of one group.
bool groupsAlternate(const std::array<double, 4>& longitudes) {
  std::array<std::size_t, 4> planets = {0, 1, 2, 3};
  const auto onCircle = [&longitudes](std::size_t i) {
    return std::atan2(std::sin(longitudes[i]), std::cos(longitudes[i]));
  };
  std::sort(planets.begin(), planets.end(),
            [&](std::size_t i, std::size_t k) { return onCircle(i) < onCircle(k); });
  const auto isInFirstGroup = [](std::size_t planet) { return planet == 0 || planet == 2; };
  bool alternate = true;
  for (std::size_t i = 0; i < 4; ++i) {
    alternate = alternate && isInFirstGroup(planets[i]) != isInFirstGroup(planets[(i + 1) % 4]);
  }
  return alternate;
}

TEST(Keep, IsTwistedInTheOrderOfThePlanetsAndItsRotations) {
  EXPECT_TRUE(isTwistedKeep({0.5, 1.5, 2.5, 3.5}));
  EXPECT_TRUE(isTwistedKeep({3.5, 0.5, 1.5, 2.5}));
  EXPECT_TRUE(isTwistedKeep({2.5, 3.5, 0.5, 1.5}));
  EXPECT_TRUE(isTwistedKeep({1.5, 2.5, 3.5, 0.5}));
  EXPECT_FALSE(isTwistedKeep({0.5, 2.5, 1.5, 3.5})) << "the order 1, 3, 2, 4";
}

TEST(Keep, IsTwistedWhereTheGroupsAlternateInEveryOrder) {
  std::array<double, 4> longitudes = {0.1, 1.9, 3.3, 5.8};
  int twisted = 0;
  int orders = 0;
  do {
    EXPECT_EQ(isTwistedKeep(longitudes), groupsAlternate(longitudes)) << orders;
    twisted += isTwistedKeep(longitudes) ? 1 : 0;
    ++orders;
  } while (std::next_permutation(longitudes.begin(), longitudes.end()));
  EXPECT_EQ(orders, 24);
  EXPECT_EQ(twisted, 8) << "alternating: two groups, four places to begin";
}

TEST(Keep, PlanetsAtOneLongitudeStandInTheirOwnOrder) {
  EXPECT_FALSE(isTwistedKeep({1.0, 1.0, 2.0, 0.5})) << "from the highest: 3, 1, 2, 4";
  EXPECT_TRUE(isTwistedKeep({1.0, 1.0, 0.5, 2.0})) << "from the highest: 4, 1, 2, 3";
  EXPECT_TRUE(isTwistedKeep({1.0, 1.0, 1.0, 1.0}));
}

RC_GTEST_PROP(Keep, DoesNotDependOnWholeTurnsOrWhereTheCircleIsCut, ()) {
  std::array<double, 4> longitudes{};
  for (double& longitude : longitudes) {
    longitude = *rc::gen::inRange(-20'000'000, 20'000'001) / 1e6;
  }
  for (std::size_t i = 0; i < 4; ++i) {
    for (std::size_t k = 0; k < i; ++k) {
      RC_PRE(std::abs(tests::nearZero(longitudes[i] - longitudes[k])) > 1e-9);
    }
  }
  RC_ASSERT(isTwistedKeep(longitudes) == groupsAlternate(longitudes));
}

}  // namespace
}  // namespace veyruna::charts
