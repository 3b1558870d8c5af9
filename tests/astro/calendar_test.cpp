#include "astro/calendar.h"

#include <cmath>
#include <cstdio>
#include <gtest/gtest.h>
#include <limits>
#include <rapidcheck/gtest.h>

#include "astro/clock.h"
#include "tests/support/c_printf.h"
#include "tests/support/random_sky.h"

namespace veyruna {
namespace {

using astro::calendarLabel;
using astro::CalendarReading;
using astro::calendarReading;
using astro::standardBaseTime;

constexpr double secondsPerDay = 86400.0;

/// The base time that many seconds after the first midnight.
double sinceFirstMidnight(double seconds) {
  return seconds / secondsPerDay - 0.5;
}

TEST(Calendar, AYearHasTwelveMonthsOfThirtyDays) {
  EXPECT_EQ(astro::monthsPerYear * astro::daysPerMonth, astro::daysPerYear);
  EXPECT_EQ(astro::daysPerYear, 360);
  ASSERT_EQ(astro::monthNames.size(), 12U);
  EXPECT_EQ(astro::monthNames.front(), "Brenwic");
  EXPECT_EQ(astro::monthNames[6], "Cendo");
  EXPECT_EQ(astro::monthNames.back(), "Thaven");
}

TEST(Calendar, NoonOfTheFirstDayOfYear720IsAWholeNumberOfDays) {
  EXPECT_EQ(standardBaseTime({720, 0, 0, 12.0}), 258840.0);
  EXPECT_EQ(calendarLabel(258840.0), "720-01-01 12:00 OST");
}

TEST(Calendar, TheFirstDayBeginsHalfADayBeforeTheEpoch) {
  EXPECT_EQ(calendarLabel(-0.5), "001-01-01 00:00 OST");
  EXPECT_EQ(calendarLabel(0.0), "001-01-01 12:00 OST");
  EXPECT_EQ(standardBaseTime({1, 0, 0, 0.0}), -0.5);
  EXPECT_EQ(standardBaseTime({1, 0, 0, 12.0}), 0.0);
}

TEST(Calendar, MinutesOfTheHourAreCutNotRounded) {
  EXPECT_EQ(calendarLabel(standardBaseTime({9, 4, 7, 23.99})), "009-05-08 23:59 OST");
  EXPECT_EQ(standardBaseTime({9, 4, 7, 12.999}), standardBaseTime({9, 4, 7, 12.99}));
  EXPECT_EQ(calendarLabel(standardBaseTime({9, 4, 7, 12.999})), "009-05-08 12:59 OST");
}

TEST(Calendar, HalfASecondBeforeAMinuteReadsAsTheMinute) {
  EXPECT_EQ(calendarLabel(sinceFirstMidnight(59.51)), "001-01-01 00:01 OST");
  EXPECT_EQ(calendarLabel(sinceFirstMidnight(59.49)), "001-01-01 00:00 OST");
  EXPECT_EQ(calendarLabel(sinceFirstMidnight(secondsPerDay - 0.49)), "001-01-02 00:00 OST");
  EXPECT_EQ(calendarLabel(sinceFirstMidnight(secondsPerDay - 0.51)), "001-01-01 23:59 OST");
}

TEST(Calendar, TheMomentBeforeTheFirstMidnightTurnsFieldsNegative) {
  EXPECT_EQ(calendarLabel(-1.0), "001-01-01 -12:00 OST");
  EXPECT_EQ(calendarLabel(sinceFirstMidnight(-60.0)), "001-01-01 00:-1 OST");
  EXPECT_EQ(calendarLabel(-0.5 - 3.0), "001-01--2 00:00 OST");
  EXPECT_EQ(calendarLabel(-0.5 - 360.0 - 45.5), "000-00--14 -12:00 OST");
}

TEST(Calendar, HourTwentyFourIsTheNextMidnight) {
  EXPECT_EQ(calendarLabel(standardBaseTime({4, 11, 29, 24.0})), "005-01-01 00:00 OST");
}

TEST(Calendar, AYearOfFourDigitsTakesFour) {
  EXPECT_EQ(calendarLabel(standardBaseTime({12345, 0, 0, 0.0})), "12345-01-01 00:00 OST");
}

TEST(Calendar, AppendingLeavesWhatWasThere) {
  std::string text = "at ";
  astro::appendCalendarLabel(text, 0.0);
  EXPECT_EQ(text, "at 001-01-01 12:00 OST");
}

/// A calendar of whole minutes since the first midnight.
std::string labelOfMinute(std::int64_t minutes) {
  const auto day = minutes / 1440;
  return tests::printedInC("%03lld-%02d-%02d %02d:%02d OST", static_cast<long long>(day / 360 + 1),
                           static_cast<int>(day / 30 % 12 + 1), static_cast<int>(day % 30 + 1),
                           static_cast<int>(minutes / 60 % 24), static_cast<int>(minutes % 60));
}

TEST(Calendar, EveryMinuteOfAYearReadsAsItself) {
  const std::int64_t firstMinute = 719LL * 360 * 1440;
  for (std::int64_t minute = firstMinute; minute < firstMinute + 360 * 1440; ++minute) {
    ASSERT_EQ(calendarLabel(sinceFirstMidnight(static_cast<double>(minute) * 60.0)),
              labelOfMinute(minute));
  }
}

RC_GTEST_PROP(Calendar, LabelsAgreeWithACalendarOfWholeSeconds, ()) {
  const std::int64_t seconds = *tests::wholeBetween(0, 3000LL * 360 * 86400 - 1);
  RC_ASSERT(calendarLabel(sinceFirstMidnight(static_cast<double>(seconds))) ==
            labelOfMinute(seconds / 60));
}

// Hours in 64ths are exact doubles, so that whole numbers tell where their minutes are cut.
RC_GTEST_PROP(Calendar, WhatWasEnteredIsWhatTheLabelReads, ()) {
  const std::int64_t year = *tests::wholeBetween(1, 3000);
  const std::int64_t month = *tests::wholeBetween(0, 11);
  const std::int64_t day = *tests::wholeBetween(0, 29);
  const std::int64_t parts = *tests::wholeBetween(0, 24 * 64 - 1);
  const double t = standardBaseTime({year, month, day, static_cast<double>(parts) / 64.0});
  const std::int64_t days = (year - 1) * 360 + month * 30 + day;
  const std::int64_t minutes = days * 1440 + parts / 64 * 60 + parts % 64 * 60 / 64;
  RC_ASSERT(calendarLabel(t) == labelOfMinute(minutes));
  RC_ASSERT(std::abs(t + 0.5 - static_cast<double>(minutes) / 1440.0) < 1e-9);
}

/// The seconds a label stands for, its fields added up with their signs.
std::int64_t secondsOf(const std::string& label) {
  long long year = 0;
  int month = 0;
  int day = 0;
  int hour = 0;
  int minute = 0;
  const int fields =
      std::sscanf(label.c_str(), "%lld-%d-%d %d:%d OST", &year, &month, &day, &hour, &minute);
  RC_ASSERT(fields == 5);
  return ((((year - 1) * 12 + month - 1) * 30 + day - 1) * 24 + hour) * 3600 + minute * 60;
}

RC_GTEST_PROP(Calendar, TheFieldsOfALabelAddUpToItsMoment, ()) {
  const double t = *tests::moments();
  const double seconds = std::round((t + 0.5) * secondsPerDay);
  const double cut = seconds - static_cast<double>(secondsOf(calendarLabel(t)));
  // Seconds are cut toward the first midnight on either side of it.
  RC_ASSERT(std::abs(cut) < 60.0);
  RC_ASSERT(cut * seconds >= 0.0);
}

/// Base times that the calendar has, from the first midnight to where the calculations hold.
rc::Gen<double> momentsSinceTheFirst() {
  return rc::gen::map(tests::moments(), [](double t) { return std::abs(t + 0.5) - 0.5; });
}

RC_GTEST_PROP(Calendar, AReadingHasTheLabelItWasReadFrom, ()) {
  const double t = *momentsSinceTheFirst();
  const auto reading = calendarReading(t);
  RC_ASSERT(reading.has_value());
  RC_ASSERT(reading->year >= 1);
  RC_ASSERT(reading->monthIndex >= 0 && reading->monthIndex < 12);
  RC_ASSERT(reading->dayIndex >= 0 && reading->dayIndex < 30);
  RC_ASSERT(reading->hour >= 0.0 && reading->hour < 24.0);
  const double back = standardBaseTime(*reading);
  RC_ASSERT(calendarLabel(back) == calendarLabel(t));
  RC_ASSERT(std::abs(back - t) < 60.0 / secondsPerDay);
}

RC_GTEST_PROP(Calendar, AMinuteOfTheCalendarIsReadAsItself, ()) {
  const std::int64_t minute = *tests::wholeBetween(0, 3000LL * 360 * 1440 - 1);
  const auto reading = calendarReading(sinceFirstMidnight(static_cast<double>(minute) * 60.0));
  RC_ASSERT(reading.has_value());
  const std::int64_t day = minute / 1440;
  const double hour =
      astro::hourOfClock(static_cast<double>(minute / 60 % 24), static_cast<double>(minute % 60));
  RC_ASSERT(*reading == (CalendarReading{day / 360 + 1, day / 30 % 12, day % 30, hour}));
}

TEST(Calendar, MidnightsAreReadAsTheDayThatBegins) {
  EXPECT_EQ(calendarReading(-0.5), (CalendarReading{1, 0, 0, 0.0}));
  EXPECT_EQ(calendarReading(standardBaseTime({4, 11, 29, 24.0})), (CalendarReading{5, 0, 0, 0.0}));
  EXPECT_EQ(calendarReading(sinceFirstMidnight(secondsPerDay - 0.49)),
            (CalendarReading{1, 0, 1, 0.0}));
  EXPECT_EQ(calendarReading(sinceFirstMidnight(secondsPerDay - 0.51)),
            (CalendarReading{1, 0, 0, astro::hourOfClock(23, 59)}));
}

TEST(Calendar, WhatNoCalendarHasIsNotRead) {
  EXPECT_NE(calendarReading(sinceFirstMidnight(-0.49)), std::nullopt);  // rounds to midnight
  constexpr double infinity = std::numeric_limits<double>::infinity();
  for (const double t : {sinceFirstMidnight(-0.51), -1.0, -1e9, 1e300, infinity, -infinity,
                         std::numeric_limits<double>::quiet_NaN()}) {
    EXPECT_EQ(calendarReading(t), std::nullopt) << t;
  }
}

}  // namespace
}  // namespace veyruna
