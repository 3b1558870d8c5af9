// Zeros, poles, moments beyond all calendars and numbers that are none.
#include <cmath>
#include <cstdint>
#include <gtest/gtest.h>
#include <limits>
#include <string>

#include "astro/arc.h"
#include "astro/bisection.h"
#include "astro/calendar.h"
#include "astro/horizon.h"
#include "astro/invariant.h"
#include "astro/local_time.h"
#include "astro/lunar_events.h"
#include "astro/lunar_phases.h"
#include "astro/moon.h"
#include "astro/number_text.h"
#include "astro/planet.h"
#include "astro/rotation.h"
#include "astro/sun.h"
#include "tests/support/expect_stop.h"

namespace veyruna {
namespace {

using astro::halfPi;
using astro::pi;
using astro::twoPi;
using astro::Vec3D;

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

/// From where days can no longer be told apart to where the squares of numbers overflow.
constexpr double hugeNumbers[] = {1e15, -1e15, 1e17, -1e17, 1e300, -1e300};

TEST(AstroEdges, ZerosOfBothSignsAreTheSameMoment) {
  EXPECT_EQ(astro::Sun(-0.0).ec.phi, astro::Sun(0.0).ec.phi);
  EXPECT_EQ(astro::moonLongitude(-0.0), astro::moonLongitude(0.0));
  EXPECT_EQ(astro::calendarLabel(-0.0), astro::calendarLabel(0.0));
  EXPECT_EQ(astro::localClockLabel({.baseTime = -0.0, .longitude = -0.0}),
            astro::localClockLabel({.baseTime = 0.0, .longitude = 0.0}));
}

TEST(AstroEdges, ZerosOfBothSignsStayWhatTheyAreWhenWrapped) {
  EXPECT_TRUE(std::signbit(astro::wrappedToHalfTurns(-0.0)));
  EXPECT_TRUE(std::signbit(astro::wrappedToTurn(-0.0)));
  EXPECT_TRUE(std::signbit(astro::wrappedToClosedTurn(-0.0)));
  EXPECT_FALSE(std::signbit(astro::wrappedToHalfTurns(0.0)));
}

TEST(AstroEdges, ComponentsOfNegativeZeroStandAtLongitudeZero) {
  EXPECT_EQ(Vec3D(-0.0, -0.0, 1.0).phi, 0.0);
  EXPECT_EQ(Vec3D(-0.0, 0.0, -0.0).theta, 0.0);
  // West of the seam by nothing at all is still due west, not minus half a turn.
  EXPECT_EQ(Vec3D(-1.0, 0.0, 0.0).phi, pi);
  EXPECT_EQ(Vec3D(-1.0, -0.0, 0.0).phi, -pi + twoPi);
}

TEST(AstroEdges, AHairSouthOfTheXAxisRoundsToAFullTurn) {
  EXPECT_EQ(Vec3D(1.0, -1e-20, 0.0).phi, twoPi);
  EXPECT_EQ(astro::Arc(twoPi).degMinText(), " 360:00");
}

TEST(AstroEdges, NumbersTooSmallToSquareHaveNoDirection) {
  const Vec3D tiny(1e-200, 1e-200, 0.0);
  EXPECT_EQ(tiny.phi, 0.0);
  EXPECT_EQ(tiny.r, 0.0);
  EXPECT_EQ(Vec3D(1e-200, 0.0, 1e-200).theta, halfPi);
}

TEST(AstroEdges, NumbersTooLargeToSquareKeepTheirLongitude) {
  const Vec3D vast(1e300, 1e300, 0.0);
  EXPECT_TRUE(std::isinf(vast.r));
  EXPECT_DOUBLE_EQ(vast.phi, pi / 4.0);
}

TEST(AstroEdges, FullTurnsOfAnArcArePrintedAsTheyAre) {
  EXPECT_EQ(astro::Arc(2.0 * twoPi).degMinText(), " 720:00");
  EXPECT_EQ(astro::Arc(-twoPi).degMinSecText(), "-360:00:00");
  EXPECT_EQ(astro::Arc(1e15).negative, false);
}

TEST(AstroEdges, AtThePolesTheSunKeepsItsAltitudeAllDay) {
  for (const double latitude : {halfPi, -halfPi}) {
    const Vec3D solstice(1.0, astro::obliquity);
    for (double t = 0.0; t < 1.0; t += 0.0625) {
      const double altitude = toHorizon(solstice, {t, latitude, 0.0}).theta;
      EXPECT_NEAR(altitude, latitude > 0.0 ? astro::obliquity : -astro::obliquity, 1e-12);
    }
  }
}

TEST(AstroEdges, TheYearEndsAtMidnight) {
  const double newYear = astro::standardBaseTime({721, 0, 0, 0.0});
  EXPECT_EQ(astro::calendarLabel(newYear), "721-01-01 00:00 OST");
  EXPECT_EQ(astro::calendarLabel(newYear - 1.0 / 86400.0), "720-12-30 23:59 OST");
  EXPECT_EQ(astro::standardBaseTime({720, 12, 0, 0.0}), newYear);
  EXPECT_EQ(astro::standardBaseTime({720, 11, 30, 0.0}), newYear);
}

TEST(AstroEdges, AnyStoredYearHasABaseTime) {
  constexpr std::int64_t last = std::numeric_limits<std::int64_t>::max();
  constexpr std::int64_t first = std::numeric_limits<std::int64_t>::min();
  EXPECT_NEAR(astro::standardBaseTime({last, 11, 29, 23.5}), 360.0 * 0x1p63, 1e7 * 360.0);
  EXPECT_NEAR(astro::standardBaseTime({first, 0, 0, 0.0}), -360.0 * 0x1p63, 1e7 * 360.0);
  EXPECT_TRUE(std::isfinite(astro::standardBaseTime({last, last, last, 1e300})));
  EXPECT_TRUE(std::isfinite(astro::localBaseTime({last, 11, 29, 23.5}, 1e300)));
}

TEST(AstroEdges, TheCalendarHoldsAsLongAsSecondsAreIntegers) {
  // 10^14 days are 277,777,777,777 years and 280 days; minutes are no longer told apart there.
  EXPECT_EQ(astro::calendarLabel(1e14).substr(0, 18), "277777777778-10-11");
}

TEST(AstroEdges, ModelsEndAtHugeMoments) {
  for (const double t : hugeNumbers) {
    const astro::Sun sun(t);
    const astro::Moon moon(t);
    const astro::Moon seen({t, -1e300, 1e300});
    EXPECT_TRUE(sun.ec.phi >= 0.0 && sun.ec.phi < twoPi) << t;
    EXPECT_TRUE(moon.ec.phi >= 0.0 && moon.ec.phi < twoPi) << t;
    EXPECT_LE(std::abs(moon.ec.theta), astro::moonInclination) << t;
    EXPECT_NEAR(seen.ec.r, astro::moonDistance, 1.0 + 1e-12) << t;
    for (const astro::Planet planet : astro::allPlanets) {
      EXPECT_LE(std::abs(planetEcliptic(planet, t).phi), pi) << t;
    }
    EXPECT_LE(std::abs(toHorizon(sun.eq, {t, 1e300, 1e300}).theta), halfPi) << t;
  }
}

TEST(AstroEdges, SearchesEndAtHugeMoments) {
  for (const double t : hugeNumbers) {
    EXPECT_LE(std::abs(astro::elongation(t, t)), pi) << t;
    const double phase = astro::nextPhase({t, astro::fullMoonElongation});
    EXPECT_TRUE(phase >= t && phase - t <= 66.0) << t;
    EXPECT_LE(std::abs(astro::elongation(0.0, t)), pi) << t;
    EXPECT_TRUE(std::isfinite(astro::nextPhase({0.0, t}))) << t;
  }
  for (const double t : {1e13, -1e13, 1e14, -1e14}) {
    for (const std::string& text : {astro::lunarEventText(t), astro::nodeEclipseEvent(t, 0.25),
                                    astro::nodeEclipseEvent(0.0, t)}) {
      EXPECT_TRUE(text.empty() || text.find(" OST ") != std::string::npos) << t << text;
    }
  }
  EXPECT_EQ(astro::nodeEclipseEvent(0.0, 0.0), "");
}

TEST(AstroEdges, ClocksEndAtHugeMomentsAndLongitudes) {
  for (const double huge : hugeNumbers) {
    EXPECT_EQ(astro::localClockLabel({.baseTime = huge, .longitude = 0.5}).size(), 5U) << huge;
    EXPECT_EQ(astro::localClockLabel({.baseTime = 0.5, .longitude = huge}).size(), 5U) << huge;
    EXPECT_TRUE(std::isfinite(astro::localBaseTime({720, 0, 0, 12.0}, huge))) << huge;
    EXPECT_TRUE(std::isfinite(astro::localBaseTime({720, 0, 0, huge}, 0.0))) << huge;
  }
}

TEST(AstroEdges, TextsOfHugeNumbersArePrintedInFull) {
  std::string text;
  astro::appendPaddedFixed(text, -1e300, 64, 9);
  EXPECT_EQ(text.size(), 1U + 301U + 1U + 9U);
  EXPECT_EQ(astro::shortestText(1e300), "1e+300");
}

constexpr const char* broken = "veyruna: broken invariant: ";

TEST(AstroEdgesDeathTest, ABrokenInvariantSaysWhichAndStops) {
  EXPECT_STOP(astro::requireInvariant(false, "the sky is above"),
              "^veyruna: broken invariant: the sky is above\n$");
  EXPECT_STOP(astro::requireInvariant(false, "the sky is above", -0.1, std::int64_t{-7}, 8U),
              "^veyruna: broken invariant: the sky is above \\(-0.1, -7, 8\\)\n$");
  EXPECT_STOP(astro::wrappedToTurn(notANumber), "an angle is finite \\(nan\\)\n$");
  astro::requireInvariant(true, "the sky is above");
}

TEST(AstroEdgesDeathTest, AnglesThatAreNoneStopTheProgram) {
  for (const double none : {notANumber, infinity, -infinity}) {
    EXPECT_STOP(astro::wrappedToHalfTurns(none), broken);
    EXPECT_STOP(astro::wrappedToHalfOpenHalfTurns(none), broken);
    EXPECT_STOP(astro::wrappedToTurn(none), broken);
    EXPECT_STOP(astro::wrappedToClosedTurn(none), broken);
    EXPECT_STOP(astro::Arc{none}, broken);
  }
  EXPECT_STOP(astro::Arc{1e18}, "the degrees of an angle are a finite 64-bit number");
}

TEST(AstroEdgesDeathTest, MomentsBeyondTheCalendarStopTheProgram) {
  for (const double none : {1e300, -1e300, 2e14, notANumber, infinity}) {
    EXPECT_STOP(astro::calendarLabel(none), "a base time is a 64-bit number of seconds");
  }
  EXPECT_STOP(astro::elongation(notANumber, 0.0), broken);
  EXPECT_STOP(astro::nextPhase({infinity, 0.0}), broken);
  EXPECT_STOP(astro::lunarEventText(notANumber), broken);
  EXPECT_STOP(astro::nodeEclipseEvent(notANumber, 0.25), broken);
  for (const double none : {notANumber, infinity, -infinity}) {
    EXPECT_STOP(astro::nodeEclipseEvent(0.0, none), "an interval ends at some time");
    EXPECT_STOP(astro::elongation(0.0, none), broken);
    EXPECT_STOP(astro::nextPhase({0.0, none}), broken);
    EXPECT_STOP(astro::nextPhase({none, 0.0}), broken);
    EXPECT_STOP(astro::lunarEventText(none), broken);
  }
}

TEST(AstroEdgesDeathTest, ClocksOfMomentsOrPlacesThatAreNoneStopTheProgram) {
  EXPECT_STOP(astro::localClockLabel({.baseTime = notANumber, .longitude = 0.0}),
              "a local clock reading is finite");
  EXPECT_STOP(astro::localClockLabel({.baseTime = 0.0, .longitude = infinity}),
              "a local clock reading is finite");
  EXPECT_STOP(astro::localBaseTime({720, 0, 0, 12.0}, notANumber), broken);
  EXPECT_STOP(astro::localBaseTime({720, 0, 0, infinity}, 0.0), broken);
}

TEST(AstroEdgesDeathTest, NumbersThatAreNoneAreNotPrinted) {
  std::string text;
  EXPECT_STOP(astro::appendFixed(text, notANumber, 2), "a number that is printed is finite");
  EXPECT_STOP(astro::appendSignedFixed(text, infinity, 1), "a number that is printed is finite");
  EXPECT_STOP(astro::appendPaddedFixed(text, -infinity, 6, 2), broken);
  EXPECT_STOP(astro::appendFixed(text, 1.0, 10), "a number format is in range");
  EXPECT_STOP(astro::appendFixed(text, 1.0, -1), "a number format is in range");
  EXPECT_STOP(astro::appendPaddedFixed(text, 1.0, 65, 2), "a number format is in range");
  EXPECT_STOP(astro::appendPaddedInteger(text, 1, 65), "a number format is in range");
}

}  // namespace
}  // namespace veyruna
