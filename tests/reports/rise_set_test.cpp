#include "reports/rise_set.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "astro/horizon.h"
#include "astro/moon.h"
#include "astro/sun.h"
#include "tests/reports/table_lines.h"
#include "tests/support/random_sky.h"

namespace veyruna {
namespace {

using astro::halfPi;
using reports::eventIntervalDays;
using reports::moonRiseSetEvent;
using reports::RiseSetSearch;
using reports::sunRiseSetEvent;
using tests::hasShape;
using tests::inRadians;

/// An interval this long (days) passes between the ends of a search and the moment it prints.
constexpr double searchTolerance = 0.0001;

double sunAltitude(double t, double latitude) {
  return astro::toHorizon(astro::Sun(t).eq, {t, latitude, 0.0}).theta;
}

double moonAltitude(double t, double latitude) {
  return astro::toHorizon(astro::Moon(t).eq, {t, latitude, 0.0}).theta;
}

/// The moment in [start, end] at which the sun passes the horizon, to a nanoday.
double sunCrossing(double start, double end, double latitude) {
  const double atStart = sunAltitude(start, latitude);
  while (end - start > 1e-9) {
    const double middle = (start + end) / 2.0;
    (sunAltitude(middle, latitude) * atStart < 0.0 ? end : start) = middle;
  }
  return end;
}

/// The fraction of the day, counted from noon, that an event's clock reads.
double clockOf(const std::string& event) {
  int hours = 0;
  int minutes = 0;
  EXPECT_EQ(std::sscanf(event.c_str() + 3, "%2d:%2d", &hours, &minutes), 2) << event;
  return (hours * 60.0 + minutes) / 1440.0;
}

TEST(RiseSet, AQuarterDayIsTheIntervalOfOneEvent) {
  EXPECT_EQ(eventIntervalDays, 0.25);
}

TEST(RiseSet, OnTheEquatorTheSunRisesAndSetsOnceADay) {
  for (double t = 1000.1; t < 1100.0; t += 1.0) {
    std::string events;
    for (const double x : {t, t + 0.25, t + 0.5, t + 0.75}) {
      events += sunRiseSetEvent(x, 0.25, 0.0);
    }
    EXPECT_TRUE(hasShape(events, "S*@99:99 S*@99:99 ")) << events;
    EXPECT_NE(events.find("SR@"), std::string::npos);
    EXPECT_NE(events.find("SS@"), std::string::npos);
  }
}

TEST(RiseSet, TheClockOfAnEventBeginsAtNoon) {
  // On the equator the sun rises at six in the morning and sets at six in the evening.
  const double noon = 1000.0;
  const std::string evening = sunRiseSetEvent(noon + 0.125, 0.25, 0.0);
  const std::string morning = sunRiseSetEvent(noon + 0.625, 0.25, 0.0);
  EXPECT_EQ(evening.substr(0, 3), "SS@");
  EXPECT_NEAR(clockOf(evening), 6.0 / 24.0, 0.01);
  EXPECT_EQ(morning.substr(0, 3), "SR@");
  EXPECT_NEAR(clockOf(morning), 18.0 / 24.0, 0.01);
}

TEST(RiseSet, NothingRisesOrSetsInAPolarWinter) {
  const double midwinter = 0.5 + 0.75 / astro::sunMeanMotion;
  for (double x = midwinter - 10.0; x < midwinter + 10.0; x += 0.25) {
    EXPECT_EQ(sunRiseSetEvent(x, 0.25, inRadians(75.0)), "");
    EXPECT_EQ(sunRiseSetEvent(x, 0.25, inRadians(-75.0)), "");
  }
}

TEST(RiseSet, AtThePoleTheSunRisesOnceAYear) {
  std::string codes;
  const double start = 0.5 + 100.1;
  for (double x = start; x < start + 360.0; x += 0.25) {
    codes += sunRiseSetEvent(x, 0.25, halfPi).substr(0, 3);
  }
  EXPECT_EQ(codes, "SS@SR@");
}

TEST(RiseSet, ABodyOnTheHorizonAtTheStartHasItsEventThere) {
  const double setting = sunCrossing(1000.125, 1000.375, 0.5);
  const double rising = sunCrossing(1000.625, 1000.875, 0.5);
  ASSERT_LT(std::abs(sunAltitude(setting, 0.5)), 0.0001);
  ASSERT_LT(std::abs(sunAltitude(rising, 0.5)), 0.0001);
  const std::string set = sunRiseSetEvent(setting, 0.25, 0.5);
  const std::string rise = sunRiseSetEvent(rising, 0.25, 0.5);
  EXPECT_EQ(set.substr(0, 3), "SS@");
  EXPECT_EQ(rise.substr(0, 3), "SR@");
  EXPECT_EQ(clockOf(set), std::floor((setting - 1000.0) * 1440.0) / 1440.0);
  EXPECT_EQ(clockOf(rise), std::floor((rising - 1000.0) * 1440.0) / 1440.0);
}

TEST(RiseSet, ASearchThatMeetsTheHorizonExactlyGoesOnPastIt) {
  // At the pole the altitude is zero to the bit at 0.5, the first middle of this interval, and no
  // sign changes from there on: the search runs to the interval's end.
  EXPECT_EQ(sunRiseSetEvent(0.375, 0.25, halfPi), "SR@14:59 ");
  EXPECT_NEAR(clockOf(sunRiseSetEvent(0.376, 0.25, halfPi)), 0.5, 1.1 / 1440.0);
}

/// One random event that is neither at its interval's start nor absent.
struct RandomEvent {
  double start = *tests::momentsWithin(1e6);
  double latitude = *tests::latitudes();
  bool ofMoon = *rc::gen::arbitrary<bool>();

  [[nodiscard]] double altitude(double t) const {
    return ofMoon ? moonAltitude(t, latitude) : sunAltitude(t, latitude);
  }
  [[nodiscard]] std::string text() const {
    return ofMoon ? moonRiseSetEvent(start, 0.25, latitude)
                  : sunRiseSetEvent(start, 0.25, latitude);
  }
};

RC_GTEST_PROP(RiseSet, CodesTellWhereTheBodyGoes, ()) {
  const RandomEvent event;
  const double before = event.altitude(event.start);
  const double after = event.altitude(event.start + 0.25);
  const std::string text = event.text();
  if (std::abs(before) >= 0.0001) {
    RC_ASSERT(text.empty() == (before * after >= 0.0));
  }
  if (!text.empty()) {
    RC_ASSERT(text[0] == (event.ofMoon ? 'M' : 'S'));
    RC_ASSERT(text[1] == (after > 0.0 ? 'R' : 'S'));
    RC_ASSERT(hasShape(text, "**@99:99 "));
    RC_ASSERT(clockOf(text) < 1.0);
  }
}

RC_GTEST_PROP(RiseSet, TheBodyPassesTheHorizonAtTheClocksMinute, ()) {
  const RandomEvent event;
  const double before = event.altitude(event.start);
  RC_PRE(std::abs(before) >= 0.0001);
  const std::string text = event.text();
  RC_PRE(!text.empty());
  const double sinceStart = clockOf(text) - (event.start - std::floor(event.start));
  const double minute = event.start + sinceStart - std::floor(sinceStart + searchTolerance * 10);
  // Between the beginning of the printed minute and its end, give or take the search's tolerance.
  const double from = std::max(event.start, minute - searchTolerance);
  const double to = std::min(event.start + 0.25, minute + 1.0 / 1440.0 + searchTolerance);
  RC_ASSERT(event.altitude(from) * event.altitude(to) <= 0.0);
}

RC_GTEST_PROP(RiseSet, ASearchThatGoesOnFindsWhatSingleOnesFind, ()) {
  const double latitude = *tests::latitudes();
  double x = *tests::moments();
  RiseSetSearch moon(reports::risingMoon, latitude);
  RiseSetSearch sun(reports::risingSun, latitude);
  for (int i = 0; i < 12; ++i) {
    std::string goingOn;
    moon.appendEvent(goingOn, x, 0.25);
    sun.appendEvent(goingOn, x, 0.25);
    RC_ASSERT(goingOn == moonRiseSetEvent(x, 0.25, latitude) + sunRiseSetEvent(x, 0.25, latitude));
    // Mostly on to the next interval; now and then back, as a table's next row goes, or ahead.
    x = *rc::gen::weightedElement<double>({{4, x + 0.25}, {1, x - 0.5}, {1, x}, {1, x + 1.0}});
  }
}

}  // namespace
}  // namespace veyruna
