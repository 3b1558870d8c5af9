#include "astro/bisection.h"

#include <cmath>
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "astro/moon.h"
#include "tests/support/random_sky.h"

namespace veyruna {
namespace {

using astro::bisect;
using astro::bisectSignChange;
using astro::phaseToleranceDays;

TEST(Bisection, EndsWithinATenThousandthOfADay) {
  EXPECT_EQ(phaseToleranceDays, 0.0001);
  const double wanted = 0.7234567;
  EXPECT_NEAR(bisect({0.0, 1.0}, [&](double t) { return t >= wanted; }), wanted,
              phaseToleranceDays / 2.0);
}

TEST(Bisection, ADayTakesFourteenHalvingsAndAQuarterTwelve) {
  int halvings = 0;
  const auto counted = [&halvings](double t) {
    ++halvings;
    return t >= 0.1;
  };
  bisect({0.0, 1.0}, counted);
  EXPECT_EQ(halvings, 14);
  halvings = 0;
  bisect({0.0, 0.25}, counted);
  EXPECT_EQ(halvings, 12);
}

TEST(Bisection, AnIntervalAsLongAsTheToleranceIsNotHalved) {
  const auto unexpected = [](double) {
    ADD_FAILURE() << "nothing is left to halve";
    return true;
  };
  EXPECT_EQ(bisect({0.0, phaseToleranceDays}, unexpected), phaseToleranceDays / 2.0);
  EXPECT_EQ(bisect({5.0, 5.0}, unexpected), 5.0);
}

TEST(Bisection, AnIntervalTurnedAroundIsHalvedToo) {
  EXPECT_NEAR(bisectSignChange({1.0, 0.0}, 0.5, [](double t) { return t - 0.3; }), 0.3,
              phaseToleranceDays);
}

TEST(Bisection, AnExactZeroMovesTheLowEndForGood) {
  // From a zero on, no product is below zero any more, so the search runs to the high end.
  const auto zeroInTheMiddle = [](double t) { return t == 0.5 ? 0.0 : t - 0.5; };
  EXPECT_NEAR(bisectSignChange({0.0, 1.0}, -0.5, zeroInTheMiddle), 1.0, phaseToleranceDays);
  EXPECT_NEAR(bisectSignChange({0.0, 1.0}, 0.0, [](double t) { return t - 0.3; }), 1.0,
              phaseToleranceDays);
}

TEST(Bisection, EndsWhereNeighbouringDoublesLeaveNothingToHalve) {
  for (const double start : {1e13, 1e15, 1e17, 1e300, -1e300}) {
    const double end = std::nextafter(std::nextafter(start, 1e308), 1e308);
    for (const bool before : {true, false}) {
      const double middle = bisect({start, end}, [before](double) { return before; });
      EXPECT_GE(middle, start);
      EXPECT_LE(middle, end);
    }
  }
}

TEST(Bisection, EndsOverTheWholeRangeOfDoubles) {
  const auto sign = [](double t) { return t < 12345.0 ? -1.0 : 1.0; };
  EXPECT_NEAR(bisectSignChange({-1e300, 1e300}, -1.0, sign), 12345.0, phaseToleranceDays);
  EXPECT_TRUE(std::isinf(bisect({1.5e308, 1.7e308}, [](double) { return false; })));
}

double literalLoop(double low, double high, double wanted) {
  double middle = (low + high) / 2.0;
  while (std::abs(high - low) > 0.0001) {
    if ((low - wanted) * (middle - wanted) < 0.0) {
      high = middle;
    } else {
      low = middle;
    }
    middle = (low + high) / 2.0;
  }
  return middle;
}

RC_GTEST_PROP(Bisection, IsThePlainLoopBitForBit, ()) {
  const double low = *tests::momentsWithin(1e9);
  const double high = low + *rc::gen::element(0.25, 1.0, 30.0);
  const double wanted = low + (high - low) * *tests::between(0.001, 0.999);
  const auto fromWanted = [wanted](double t) { return t - wanted; };
  RC_ASSERT(bisectSignChange({low, high}, low - wanted, fromWanted) ==
            literalLoop(low, high, wanted));
}

RC_GTEST_PROP(Bisection, FindsTheMomentTheMoonCrossesTheEcliptic, ()) {
  const double start = *tests::momentsWithin(1e6);
  const double end = start + 10.0;
  const double atStart = astro::moonLatitude(start);
  RC_PRE(atStart * astro::moonLatitude(end) < 0.0);
  const double crossing = bisectSignChange({start, end}, atStart, astro::moonLatitude);
  RC_ASSERT(astro::moonLatitude(crossing - phaseToleranceDays) *
                astro::moonLatitude(crossing + phaseToleranceDays) <=
            0.0);
}

}  // namespace
}  // namespace veyruna
