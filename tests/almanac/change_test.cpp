// The search by itself: what it finds, what it may leave out, and how it ends.
#include "almanac/motion/change.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace veyruna {
namespace {

using almanac::daysUntilReached;
using almanac::nextChange;
using almanac::State;

constexpr double forever = std::numeric_limits<double>::infinity();

TEST(DaysUntilReached, AreThoseOfTheSteepestWay) {
  EXPECT_EQ(daysUntilReached(6.0, -2.0, 0.0), 3.0);
  EXPECT_EQ(daysUntilReached(6.0, 2.0, 0.0), forever);
  EXPECT_EQ(daysUntilReached(6.0, 0.0, 0.0), forever);
  EXPECT_EQ(daysUntilReached(8.0, 0.0, 4.0), 2.0);   // 8 − 4 · 2² / 2 = 0
  EXPECT_EQ(daysUntilReached(6.0, -1.0, 4.0), 1.5);  // 6 − 1.5 − 4 · 1.5² / 2 = 0
  EXPECT_EQ(daysUntilReached(0.0, 2.0, 4.0), 1.0);
  EXPECT_EQ(daysUntilReached(0.0, -2.0, 4.0), 0.0);
}

/// Holds where the cosine is above a level; a bound for its bend is 1.
State aboveLevel(double level, double t) {
  const double value = std::cos(t) - level;
  const double rate = -std::sin(t);
  return {value > 0.0, daysUntilReached(std::abs(value), value > 0.0 ? rate : -rate, 1.0)};
}

TEST(NextChange, FindsWhatIsThereForwardsAndBackwards) {
  const auto state = [](double t) { return aboveLevel(0.5, t); };
  EXPECT_NEAR(nextChange(state, 0.0, 100.0).value(), std::acos(0.5), 1e-6);
  EXPECT_NEAR(nextChange(state, 0.0, -100.0).value(), -std::acos(0.5), 1e-6);
  EXPECT_EQ(nextChange(state, 0.0, 1.0), std::nullopt);
  EXPECT_EQ(nextChange(state, 3.0, 3.0), std::nullopt);
  EXPECT_FALSE(state(nextChange(state, 0.0, 100.0).value()).holds);  // it has changed
}

TEST(NextChange, FindsTheSameNumberFromWhereverItBegan) {
  const auto found = [](double from, double to) {
    return nextChange([](double t) { return aboveLevel(0.5, t); }, from, to,
                      almanac::toTheLastDouble);
  };
  for (int hundredths = -100; hundredths < 100; ++hundredths) {
    const double from = hundredths / 100.0;
    EXPECT_EQ(found(from, 100.0), found(0.0, 100.0)) << from;
    EXPECT_EQ(found(from, -100.0), found(0.0, -100.0)) << from;
  }
}

TEST(NextChange, FindsTheFirstNumberWhereTheAnswerFlickers) {
  constexpr double first = 1000.0;
  constexpr double ulp = 0x1p-43;  // of what follows 512
  // Changed at the first number, then not for three, and so on, for good from the twentieth.
  const auto state = [](double t) {
    const double number = (t - first) / ulp;
    return State{number >= 20.0 || (number >= 0.0 && std::fmod(number, 4.0) == 0.0), 0.0};
  };
  for (int steps = 1; steps <= 40; ++steps) {
    const double from = first - steps * 3.1e-7;
    EXPECT_EQ(nextChange(state, from, 2000.0, almanac::toTheFirstDouble), first) << steps;
  }
}

TEST(NextChange, MissesNoGlimpseLongerThanItsLeastStep) {
  for (const double half : {1e-1, 1e-2, 1e-3, 1e-4, 1e-5, 1e-6}) {
    const double level = 1.0 - half * half / 2.0;  // holds for 2 · half about each turn
    int steps = 0;
    const auto state = [&](double t) {
      ++steps;
      return aboveLevel(level, t);
    };
    const auto found = nextChange(state, 1.0, 8.0);
    ASSERT_TRUE(found) << half;
    EXPECT_NEAR(*found, 2.0 * 3.141592653589793 - std::acos(level), 2e-6);
    EXPECT_LT(steps, 200);
  }
}

TEST(NextChange, EndsWhereNeighbouringNumbersAreFurtherApartThanItsStep) {
  constexpr double far = 1e12;
  const auto state = [](double t) { return State{t > far + 1.0, 0.0}; };
  EXPECT_EQ(nextChange(state, far, far + 2.0).has_value(), true);
}

}  // namespace
}  // namespace veyruna
