#include "astro/local_time.h"

#include <cmath>
#include <cstdio>
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "astro/calendar.h"
#include "astro/clock.h"
#include "astro/horizon.h"
#include "astro/rotation.h"
#include "astro/sun.h"
#include "tests/support/random_sky.h"

namespace veyruna {
namespace {

using astro::localBaseTime;
using astro::localCalendarReading;
using astro::localClockLabel;
using astro::standardBaseTime;
using tests::inRadians;

/// Minutes after local midnight that a clock label reads.
double minutesOf(const std::string& clock) {
  int hours = -1;
  int minutes = -1;
  const int fields = std::sscanf(clock.c_str(), "%2d:%2d", &hours, &minutes);
  EXPECT_EQ(fields, 2) << clock;
  EXPECT_EQ(clock.size(), 5U);
  EXPECT_TRUE(hours >= 0 && hours < 24 && minutes >= 0 && minutes < 60) << clock;
  return hours * 60.0 + minutes;
}

/// The signed distance of two clock readings in minutes, across midnight where that is shorter.
double minutesApart(double a, double b) {
  return std::remainder(a - b, 1440.0);
}

/// Minutes that local time at longitude 0 is ahead of standard time around a base time.
double localAheadAt(double t) {
  const double hour = std::floor((t + 0.5 - std::floor(t + 0.5)) * 24.0);
  const auto day = static_cast<std::int64_t>(std::floor(t + 0.5));
  return (standardBaseTime({1, 0, day, hour}) - localBaseTime({1, 0, day, hour}, 0.0)) * 1440.0;
}

/// The base time at which the mean sun stands that many quarters of the ecliptic after year 300.
double quarterOfTheYear(double quarters) {
  return 0.5 + (300.0 + quarters / 4.0) / astro::sunMeanMotion;
}

// Noon of the mean sun at longitude 0 comes two minutes before noon of standard time, half the
// sun's daily motion; the rest is what the tilt of the ecliptic does.
constexpr double meanSunMinutes = 2.0;

TEST(LocalTime, AtEquinoxesAndSolsticesTheTiltMakesNoDifference) {
  for (const double quarter : {0.0, 1.0, 2.0, 3.0}) {
    EXPECT_NEAR(localAheadAt(quarterOfTheYear(quarter)), meanSunMinutes, 0.1) << quarter;
  }
}

TEST(LocalTime, BetweenThemTheTiltMakesUpToEightMinutes) {
  // Right ascension and longitude part by at most about tan²(ε / 2) radians.
  const double tangent = std::tan(astro::obliquity / 2.0);
  const double most = tangent * tangent * 1440.0 / astro::twoPi;
  EXPECT_NEAR(localAheadAt(quarterOfTheYear(0.5)), meanSunMinutes + most, 0.3);
  EXPECT_NEAR(localAheadAt(quarterOfTheYear(1.5)), meanSunMinutes - most, 0.3);
  EXPECT_NEAR(localAheadAt(quarterOfTheYear(2.5)), meanSunMinutes + most, 0.3);
  EXPECT_NEAR(localAheadAt(quarterOfTheYear(3.5)), meanSunMinutes - most, 0.3);
}

TEST(LocalTime, TheSameHourHalfAWorldAwayIsHalfADayAway) {
  for (const double hour : {0.0, 6.0, 12.5, 23.75}) {
    const double east = localBaseTime({720, 3, 4, hour}, inRadians(90.0));
    const double west = localBaseTime({720, 3, 4, hour}, inRadians(-90.0));
    EXPECT_NEAR(west - east, 0.5, 0.001);
    const double zero = localBaseTime({720, 3, 4, hour}, 0.0);
    const double seam = localBaseTime({720, 3, 4, hour}, inRadians(180.0));
    EXPECT_NEAR(std::abs(seam - zero), 0.5, 0.001);
  }
}

TEST(LocalTime, AtLocalNoonTheSunStandsInTheSouth) {
  const double longitude = inRadians(25.3);
  const double t = localBaseTime({1243, 6, 18, 12.0}, longitude);
  const astro::Vec3D sun = astro::toHorizon(astro::Sun(t).eq, {t, inRadians(60.0), longitude});
  EXPECT_NEAR(tests::apart(sun.phi, 0.0), 0.0, 1e-4);
  EXPECT_EQ(localClockLabel({.baseTime = t, .longitude = longitude}), "12:00");
}

TEST(LocalTime, EastOfTheReferenceMeridianClocksAreAhead) {
  EXPECT_NEAR(
      minutesApart(minutesOf(localClockLabel({.baseTime = 1000.25, .longitude = inRadians(15.0)})),
                   minutesOf(localClockLabel({.baseTime = 1000.25, .longitude = 0.0}))),
      60.0, 1.0);
}

TEST(LocalTime, TheLabelOfAPhaseCarriesBothClocks) {
  EXPECT_EQ(astro::calendarLabelWithLocalClock({.baseTime = 258840.0, .longitude = 1.0}),
            "720-01-01 12:00 OST  (local " +
                localClockLabel({.baseTime = 258840.0, .longitude = 1.0}) + ")");
}

TEST(LocalTime, TheMinuteBeforeMidnightRoundsToMidnight) {
  // A clock never reads 24:00.
  const double midnight = localBaseTime({720, 0, 0, 24.0}, 0.5);
  EXPECT_EQ(localClockLabel({.baseTime = midnight, .longitude = 0.5}), "00:00");
  EXPECT_EQ(localClockLabel({.baseTime = midnight - 10.0 / 86400.0, .longitude = 0.5}), "00:00");
  EXPECT_EQ(localClockLabel({.baseTime = midnight - 50.0 / 86400.0, .longitude = 0.5}), "23:59");
}

RC_GTEST_PROP(LocalTime, TheLocalClockReadsTheHourAskedFor, ()) {
  const double hour = *tests::between(0.0, 24.0);
  const double longitude = *tests::longitudes();
  const double t = localBaseTime({*tests::wholeBetween(1, 3000), *tests::wholeBetween(0, 11),
                                  *tests::wholeBetween(0, 29), hour},
                                 longitude);
  // The search ends within 1e-5 rad, a seventh of a second; the rest is the rounding to minutes.
  RC_ASSERT(
      std::abs(minutesApart(minutesOf(localClockLabel({.baseTime = t, .longitude = longitude})),
                            hour * 60.0)) <= 0.51);
}

RC_GTEST_PROP(LocalTime, LiesWithinHalfADayAndTheTiltOfTheStandardHour, ()) {
  const std::int64_t year = *tests::wholeBetween(1, 3000);
  const double hour = *tests::between(0.0, 24.0);
  const double local = localBaseTime({year, 5, 6, hour}, *tests::longitudes());
  RC_ASSERT(std::abs(local - standardBaseTime({year, 5, 6, hour})) < 0.51);
}

RC_GTEST_PROP(LocalTime, FifteenDegreesAreAnHour, ()) {
  const double t = *tests::momentsWithin(1e6);
  const double longitude = *tests::longitudes();
  const double here = minutesOf(localClockLabel({.baseTime = t, .longitude = longitude}));
  const double there =
      minutesOf(localClockLabel({.baseTime = t, .longitude = longitude + inRadians(15.0)}));
  RC_ASSERT(std::abs(minutesApart(there, here) - 60.0) <= 1.0);
}

RC_GTEST_PROP(LocalTime, TheClockReadsTheHourAngleOfTheSun, ()) {
  const double t = *tests::momentsWithin(1e6);
  const double longitude = *tests::longitudes();
  // From the north pole the azimuth is the hour angle itself.
  const astro::Vec3D sun = astro::toHorizon(astro::Sun(t).eq, {t, astro::halfPi, longitude});
  const double minutes = (sun.phi * 12.0 / astro::pi + 12.0) * 60.0;
  RC_ASSERT(std::abs(minutesApart(
                minutesOf(localClockLabel({.baseTime = t, .longitude = longitude})), minutes)) <=
            0.5001);
}

double baseTimeOf(const astro::CalendarReading& reading, double longitude) {
  return localBaseTime(reading, longitude);
}

RC_GTEST_PROP(LocalTime, AReadingGivesBackItsMomentWithinAMinute, ()) {
  const double t = std::abs(*tests::momentsWithin(1e6)) + 1.0;
  // Nearer to 180 degrees some moments have no reading.
  const double longitude = *tests::between(inRadians(-177.0), inRadians(177.0));
  const auto reading = localCalendarReading({.baseTime = t, .longitude = longitude});
  RC_ASSERT(reading.has_value());
  RC_ASSERT(std::abs(baseTimeOf(*reading, longitude) - t) * 1440.0 < 0.51);
  const auto minutes = static_cast<double>(static_cast<std::int64_t>(reading->hour * 60.0 + 0.5));
  RC_ASSERT(minutesOf(localClockLabel({.baseTime = t, .longitude = longitude})) == minutes);
}

RC_GTEST_PROP(LocalTime, AReadingAtTheSeamGivesBackItsMomentOrIsNone, ()) {
  const double t = std::abs(*tests::momentsWithin(1e6)) + 1.0;
  const double longitude = *rc::gen::element(-1.0, 1.0) * *tests::between(3.0, astro::pi);
  const auto reading = localCalendarReading({.baseTime = t, .longitude = longitude});
  RC_CLASSIFY(!reading.has_value(), "no reading");
  if (reading) {  // RC_ASSERT looks at both sides of an "or"
    RC_ASSERT(std::abs(baseTimeOf(*reading, longitude) - t) * 1440.0 < 0.51);
  }
}

RC_GTEST_PROP(LocalTime, AnEnteredMinuteIsReadBack, ()) {
  const astro::CalendarReading entered{
      *tests::wholeBetween(2, 3000), *tests::wholeBetween(0, 11), *tests::wholeBetween(0, 29),
      astro::hourOfClock(static_cast<double>(*tests::wholeBetween(0, 23)),
                         static_cast<double>(*tests::wholeBetween(0, 59)))};
  const double longitude = *tests::between(inRadians(-177.0), inRadians(177.0));
  RC_ASSERT(localCalendarReading(
                {.baseTime = baseTimeOf(entered, longitude), .longitude = longitude}) == entered);
}

TEST(LocalTime, MidnightIsReadAsTheDayThatBegins) {
  const double midnight = localBaseTime({720, 0, 0, 24.0}, 0.5);
  EXPECT_EQ(localCalendarReading({.baseTime = midnight, .longitude = 0.5}),
            (astro::CalendarReading{720, 0, 1, 0.0}));
  EXPECT_EQ(localCalendarReading({.baseTime = midnight - 10.0 / 86400.0, .longitude = 0.5}),
            (astro::CalendarReading{720, 0, 1, 0.0}));
  EXPECT_EQ(localCalendarReading({.baseTime = midnight - 50.0 / 86400.0, .longitude = 0.5}),
            (astro::CalendarReading{720, 0, 0, astro::hourOfClock(23, 59)}));
}

TEST(LocalTime, BeforeTheFirstLocalMidnightNothingIsRead) {
  const double first = localBaseTime({1, 0, 0, 0.0}, -1.0);
  EXPECT_GT(first, -0.5);
  EXPECT_EQ(localCalendarReading({.baseTime = first + 1e-4, .longitude = -1.0}),
            (astro::CalendarReading{1, 0, 0, 0.0}));
  EXPECT_EQ(localCalendarReading({.baseTime = first - 0.01, .longitude = -1.0}), std::nullopt);
  EXPECT_EQ(localCalendarReading({.baseTime = -3.0, .longitude = 1.0}), std::nullopt);
  EXPECT_EQ(localCalendarReading({.baseTime = 2e9, .longitude = 1.0}), std::nullopt);
  EXPECT_EQ(localCalendarReading({.baseTime = std::nan(""), .longitude = 1.0}), std::nullopt);
}

}  // namespace
}  // namespace veyruna
