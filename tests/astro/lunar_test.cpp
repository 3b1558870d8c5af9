#include <cmath>
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "astro/arc.h"
#include "astro/bisection.h"
#include "astro/calendar.h"
#include "astro/lunar_events.h"
#include "astro/lunar_phases.h"
#include "astro/moon.h"
#include "astro/sun.h"
#include "tests/support/random_sky.h"

namespace veyruna {
namespace {

using astro::elongation;
using astro::fullMoonElongation;
using astro::lunarEventText;
using astro::newMoonElongation;
using astro::nextPhase;
using astro::nodeEclipseEvent;
using tests::inRadians;

constexpr double gainPerDay = (astro::moonMeanMotion - astro::sunMeanMotion) * astro::twoPi;
constexpr double synodicMonth = astro::twoPi / gainPerDay;

/// The earliest moment, to the last bit, from which on the elongation is no longer below `wanted`.
/// The search begins at the new moon after `start`.
double whenElongationReaches(double wanted, double start) {
  const double middle = nextPhase({start, newMoonElongation}) + wanted / gainPerDay;
  double before = middle - 0.01;
  double after = middle + 0.01;
  EXPECT_LT(elongation(before, 0.0), wanted);
  EXPECT_GE(elongation(after, 0.0), wanted);
  while (std::nextafter(before, after) != after) {
    const double t = before + (after - before) / 2.0;
    (elongation(t, 0.0) >= wanted ? after : before) = t;
  }
  return after;
}

std::string codeAt(double t) {
  return lunarEventText(t).substr(0, 5);
}

/// The code on either side of the moment at which the elongation grows past `limit`.
void expectCodes(double limit, const std::string& below, const std::string& fromThere) {
  for (const double start : {0.0, 258840.0, -100000.0}) {
    const double t = whenElongationReaches(limit, start);
    EXPECT_EQ(codeAt(t - 1e-9), below) << t;
    EXPECT_EQ(codeAt(t + 1e-9), fromThere) << t;
  }
}

TEST(LunarEvent, CodesChangeAtTheirElongations) {
  expectCodes(inRadians(1.70), "  TS ", "  PS ");
  expectCodes(inRadians(2.54), "  PS ", "");
  expectCodes(inRadians(178.42), "", " PPL ");
  expectCodes(inRadians(179.11), " PPL ", " FPL ");
  expectCodes(inRadians(179.65), " FPL ", " FUL ");
}

TEST(LunarEvent, CodesAreTheSameBeforeAndAfterTheAlignment) {
  expectCodes(-inRadians(2.54), "", "  PS ");
  expectCodes(-inRadians(1.70), "  PS ", "  TS ");
  expectCodes(-inRadians(179.65), " FUL ", " FPL ");
  expectCodes(-inRadians(179.11), " FPL ", " PPL ");
  expectCodes(-inRadians(178.42), " PPL ", "");
}

// At these moments the elongation is the limit itself, to the last bit.
TEST(LunarEvent, AnElongationOfExactlyALimitBelongsToTheLesserEvent) {
  const double at179Degrees39 = 44.158571652053851;
  ASSERT_EQ(std::abs(elongation(at179Degrees39, 0.0)), 3.135484001207813);
  EXPECT_EQ(codeAt(at179Degrees39), " FPL ");
  const double at179Degrees07 = -75.79636837044616;
  ASSERT_EQ(std::abs(elongation(at179Degrees07, 0.0)), 3.1260592232470437);
  EXPECT_EQ(codeAt(at179Degrees07), " PPL ");
  const double at178Degrees25 = -15.738898399196156;
  ASSERT_EQ(std::abs(elongation(at178Degrees25, 0.0)), 3.1140164514082826);
  EXPECT_EQ(codeAt(at178Degrees25), "");
}

// No moment has a solar limit itself for its elongation; the first one not below it comes closest.
TEST(LunarEvent, TheFirstMomentNotBelowASolarLimitBelongsToTheLesserEvent) {
  EXPECT_EQ(codeAt(whenElongationReaches(0.029670597283903602, 0.0)), "  PS ");
  EXPECT_EQ(codeAt(whenElongationReaches(0.044331363000655974, 0.0)), "");
}

TEST(LunarEvent, FarFromNewAndFullMoonNothingIsPrinted) {
  for (double degrees = 2.55; degrees < 178.42; degrees += 1.0) {
    EXPECT_EQ(lunarEventText(whenElongationReaches(inRadians(degrees), 1000.0)), "");
    EXPECT_EQ(lunarEventText(whenElongationReaches(-inRadians(degrees), 1000.0)), "");
  }
}

RC_GTEST_PROP(LunarEvent, TextIsCodeMomentAndSignedElongation, ()) {
  const double aroundPhase = *tests::between(-0.2, 0.2);
  const double target = *rc::gen::element(newMoonElongation, fullMoonElongation);
  const double t = nextPhase({*tests::momentsWithin(1e6), target}) + aroundPhase;
  const std::string text = lunarEventText(t);
  if (!text.empty()) {
    RC_ASSERT(text.substr(5) ==
              astro::calendarLabel(t) + " " + astro::Arc(elongation(t, 0.0)).degMinSecText() + " ");
  }
}

RC_GTEST_PROP(Elongation, LiesInHalfATurnEitherWayAndIsTheDifference, ()) {
  const double t = *tests::moments();
  const double target = *tests::longitudes();
  const double e = elongation(t, target);
  RC_ASSERT(std::abs(e) <= astro::pi);
  RC_ASSERT(std::abs(tests::apart(e, astro::moonLongitude(t) - astro::sunLongitude(t) - target)) <
            1e-14);
}

RC_GTEST_PROP(NextPhase, IsThatPhaseAndTheFirstAfterTheStart, ()) {
  const double start = *tests::momentsWithin(1e6);
  const double target = *rc::gen::element(newMoonElongation, fullMoonElongation, -1.0, 0.5);
  const double t = nextPhase({start, target});
  RC_ASSERT(t > start);
  RC_ASSERT(t - start <= synodicMonth + astro::phaseToleranceDays);
  // The middle of an interval of 0.0001 days is at most half of it from the phase.
  RC_ASSERT(std::abs(elongation(t, target)) <= astro::phaseToleranceDays / 2.0 * gainPerDay + 1e-9);
}

TEST(NextPhase, PhasesFollowEachOtherByAMonth) {
  double t = nextPhase({258840.0, fullMoonElongation});
  for (int month = 0; month < 100; ++month) {
    const double next = nextPhase({t + 1.0, fullMoonElongation});
    EXPECT_NEAR(next - t, synodicMonth, astro::phaseToleranceDays);
    t = next;
  }
}

TEST(NextPhase, FullAndNewMoonAreHalfAMonthApart) {
  const double full = nextPhase({1000.0, fullMoonElongation});
  EXPECT_NEAR(nextPhase({full, newMoonElongation}) - full, synodicMonth / 2.0,
              astro::phaseToleranceDays);
}

TEST(NextPhase, AskedExactlyAtAPhaseItIsThatPhase) {
  double newMoon = whenElongationReaches(0.0, 0.0);
  for (int month = 0; month < 1000 && elongation(newMoon, 0.0) != 0.0; ++month) {
    newMoon = whenElongationReaches(0.0, newMoon + 1.0);
  }
  ASSERT_EQ(elongation(newMoon, 0.0), 0.0);
  const double t = nextPhase({newMoon, newMoonElongation});
  EXPECT_GE(t, newMoon);
  EXPECT_LE(t, newMoon + astro::phaseToleranceDays);
}

TEST(NextPhase, AskedJustAfterAPhaseItIsTheNextOne) {
  const double newMoon = whenElongationReaches(0.0, 500.0);
  EXPECT_NEAR(nextPhase({newMoon + 0.001, newMoonElongation}) - newMoon, synodicMonth,
              astro::phaseToleranceDays);
}

/// The start of a quarter-day in which the moon crosses the ecliptic in line with sun and world.
double quarterDayOfAnEclipse() {
  double start = 258840.0;
  while (nodeEclipseEvent(start, 0.25).empty()) {
    start += 0.25;
  }
  return start;
}

TEST(NodeEclipse, IsTheEventOfTheCrossing) {
  const double start = quarterDayOfAnEclipse();
  double before = start;
  double after = start + 0.25;
  while (after - before > 1e-9) {
    const double t = (before + after) / 2.0;
    const bool crossed = astro::moonLatitude(t) * astro::moonLatitude(start) < 0.0;
    (crossed ? after : before) = t;
  }
  const std::string text = nodeEclipseEvent(start, 0.25);
  EXPECT_EQ(text.substr(0, 5), codeAt(after));
  const std::string label = text.substr(5, text.size() - 17);
  EXPECT_TRUE(label == astro::calendarLabel(after - 0.0001) ||
              label == astro::calendarLabel(after + 0.0001))
      << text;
}

TEST(NodeEclipse, TwoCrossingsInOneIntervalCancelOut) {
  const double aMonthWithAnEclipse = quarterDayOfAnEclipse() - 3.0;
  const double draconicMonth = 1.0 / astro::moonNodalRate;
  ASSERT_GT(astro::moonLatitude(aMonthWithAnEclipse) *
                astro::moonLatitude(aMonthWithAnEclipse + draconicMonth),
            0.0);
  EXPECT_EQ(nodeEclipseEvent(aMonthWithAnEclipse, draconicMonth), "");
}

TEST(NodeEclipse, ALatitudeNearZeroAtTheStartIsACrossingByItself) {
  const double quarter = quarterDayOfAnEclipse();
  const double crossing = astro::bisectSignChange(
      {quarter, quarter + 0.25}, astro::moonLatitude(quarter), astro::moonLatitude);
  ASSERT_LT(std::abs(astro::moonLatitude(crossing)), 0.0001);
  EXPECT_EQ(nodeEclipseEvent(crossing, 0.25), lunarEventText(crossing));
  const double justBefore = crossing - 0.002;  // 6e-5 radians, and the crossing still ahead
  ASSERT_LT(std::abs(astro::moonLatitude(justBefore)), 0.0001);
  EXPECT_EQ(nodeEclipseEvent(justBefore, 0.25), lunarEventText(justBefore));
}

TEST(NodeEclipse, ACrossingFarFromNewAndFullMoonIsNone) {
  int crossings = 0;
  for (double start = 1000.0; start < 2000.0; start += 0.25) {
    const bool crosses = astro::moonLatitude(start) * astro::moonLatitude(start + 0.25) < 0.0;
    const double separation = std::abs(elongation(start, 0.0));
    if (crosses && separation > inRadians(6.0) && separation < inRadians(174.0)) {
      EXPECT_EQ(nodeEclipseEvent(start, 0.25), "");
      ++crossings;
    }
  }
  EXPECT_GT(crossings, 50);
}

}  // namespace
}  // namespace veyruna
