#include "astro/clock.h"

#include <cmath>
#include <gtest/gtest.h>

#include "astro/calendar.h"
#include "astro/number_text.h"

namespace veyruna::astro {
namespace {

/// "7:05", with a zero in front where the hours are to have two digits.
std::string written(int hours, int minutes, int hourDigits) {
  std::string text;
  appendPaddedInteger(text, hours, hourDigits);
  text += ':';
  appendPaddedInteger(text, minutes, 2);
  return text;
}

std::string labelAt(double hour) {
  return calendarLabel(standardBaseTime({720, 0, 0, hour}));
}

TEST(Clock, EveryMinuteOfTheDayReadsBack) {
  for (int h = 0; h < 24; ++h) {
    for (int m = 0; m < 60; ++m) {
      const std::string text = written(h, m, 2);
      const std::optional<double> hour = hourFromText(text);
      ASSERT_TRUE(hour) << text;
      EXPECT_EQ(clockText(*hour), text);
      EXPECT_EQ(labelAt(*hour), "720-01-01 " + text + " OST");
    }
  }
}

TEST(Clock, EveryMinuteIsTheSmallestNumberThatReadsBack) {
  for (int h = 0; h < 24; ++h) {
    for (int m = 0; m < 60; ++m) {
      const std::optional<double> hour = hourFromText(written(h, m, 1));
      ASSERT_TRUE(hour) << h << ':' << m;
      const double sum = h + m / 60.0;
      EXPECT_GE(*hour, sum);
      EXPECT_TRUE(*hour == sum || clockText(std::nextafter(*hour, -1.0)) != clockText(*hour))
          << h << ':' << m;
    }
  }
}

TEST(Clock, ReadsFractionsAndBothEndsOfTheDay) {
  EXPECT_EQ(hourFromText("18.25"), 18.25);
  EXPECT_EQ(hourFromText("+7.5"), 7.5);
  EXPECT_EQ(hourFromText("0"), 0.0);
  EXPECT_EQ(hourFromText("24"), 24.0);
  EXPECT_EQ(hourFromText("24:00"), 24.0);
  EXPECT_EQ(hourFromText("7:05"), hourFromText("07:05"));
}

TEST(Clock, ReadsNothingElse) {
  for (const char* const text :
       {"24:01",  "25",    "-1",    "24.001", "12:60",    "12:5", "12:", ":30", ":",
        "012:00", "-1:00", "+1:00", "12:-5",  "12:30:00", "noon", "",    "1,5", " 12",
        "12 ",    "0x10",  "inf",   "nan",    "1e999",    "++1",  "+-1"}) {
    EXPECT_EQ(hourFromText(text), std::nullopt) << text;
  }
}

TEST(Clock, WritesWholeMinutesAndDropsTheRest) {
  EXPECT_EQ(clockText(23.75), "23:45");
  EXPECT_EQ(clockText(12.999), "12:59");
  EXPECT_EQ(clockText(0.0), "00:00");
}

TEST(Clock, WritesHoursOutsideTheDay) {
  EXPECT_EQ(clockText(-0.5), "00:30");
  EXPECT_EQ(clockText(-0.0), "00:00");
  EXPECT_EQ(clockText(30.5), "30:30");
  EXPECT_GT(clockText(1e308).size(), 300U);
}

}  // namespace
}  // namespace veyruna::astro
