#include "words/values.h"

#include <functional>
#include <gtest/gtest.h>
#include <limits>

#include "astro/angle.h"
#include "astro/calendar.h"
#include "astro/number_text.h"
#include "tests/support/random_sky.h"
#include "words/quoting.h"
#include "words/usage_error.h"

namespace veyruna {
namespace {

using tests::inRadians;

/// The message a reading is refused with; empty where it is not.
std::string refusalOf(const std::function<void()>& reading) {
  try {
    reading();
  } catch (const words::UsageError& error) {
    return error.what();
  }
  return "";
}

bool holds(const std::string& message, const std::string& piece) {
  return message.find(piece) != std::string::npos;
}

TEST(Hour, FractionsAndBothEndsOfTheDay) {
  EXPECT_EQ(words::readHour("--hour", "18.25"), 18.25);
  EXPECT_EQ(words::readHour("--hour", "0"), 0.0);
  EXPECT_EQ(words::readHour("--hour", "24"), 24.0);
  EXPECT_EQ(words::readHour("--hour", "24:00"), 24.0);
  EXPECT_EQ(words::readHour("--hour", "7:05"), words::readHour("--hour", "07:05"));
}

TEST(Hour, RefusesWhatIsNoTimeOfDay) {
  for (const char* const text :
       {"24:01", "25",     "-1",    "24.001", "12:60", "12:5",     "12:",  ":30",
        ":",     "012:00", "-1:00", "+1:00",  "12:-5", "12:30:00", "noon", "",
        "1,5",   " 12",    "12 ",   "0x10",   "inf",   "nan",      "1e999"}) {
    const std::string message = refusalOf([&] { words::readHour("--hour", text); });
    EXPECT_TRUE(holds(message, std::string("--hour: \"") + text + "\"")) << text << ": " << message;
    EXPECT_TRUE(holds(message, "from 0 to 24")) << message;
    EXPECT_TRUE(holds(message, "18:15")) << message;
  }
}

TEST(Month, NumbersAndNamesInAnyCase) {
  for (std::size_t i = 0; i < astro::monthNames.size(); ++i) {
    const auto index = static_cast<std::int64_t>(i);
    std::string lower(astro::monthNames[i]);
    std::string upper = lower;
    for (std::size_t k = 0; k < lower.size(); ++k) {
      lower[k] = static_cast<char>(lower[k] | 0x20);
      upper[k] = static_cast<char>(upper[k] & ~0x20);
    }
    EXPECT_EQ(words::readMonthIndex("--month", std::to_string(i + 1)), index);
    EXPECT_EQ(words::readMonthIndex("--month", astro::monthNames[i]), index);
    EXPECT_EQ(words::readMonthIndex("--month", lower), index);
    EXPECT_EQ(words::readMonthIndex("--month", upper), index);
  }
}

TEST(Month, RefusalNamesThemAll) {
  for (const char* const text : {"0", "13", "-1", "1.0", "Dov", "Dovri ", "Dovrii", "", "@OLMA"}) {
    const std::string message = refusalOf([&] { words::readMonthIndex("--month", text); });
    EXPECT_TRUE(holds(message, std::string("--month: \"") + text + "\"")) << text;
    EXPECT_TRUE(holds(message, "1 to 12"));
    for (const std::string_view name : astro::monthNames) {
      EXPECT_TRUE(holds(message, std::string(name)));
    }
  }
}

struct Angle {
  const char* text;
  double radians;
};

TEST(Latitude, SignsLettersAndDegreeSigns) {
  const double north = 40.5 * astro::pi / 180.0;
  for (const auto& [text, radians] : {Angle{"40.5", north},
                                      {"+40.5", north},
                                      {"40.5N", north},
                                      {"40.5n", north},
                                      {"40.5 N", north},
                                      {"40.5°", north},
                                      {"40.5°N", north},
                                      {"40.5° N", north},
                                      {"-40.5", -north},
                                      {"-40.5°", -north},
                                      {"40.5S", -north},
                                      {"40.5°s", -north},
                                      {"0", 0.0},
                                      {"90", astro::halfPi},
                                      {"90S", -astro::halfPi},
                                      {"-90", -astro::halfPi}}) {
    EXPECT_EQ(words::readLatitude("--lat", text), radians) << text;
  }
}

TEST(Longitude, SignsLettersAndDegreeSigns) {
  for (const auto& [text, radians] : {Angle{"25.3", inRadians(25.3)},
                                      {"25.3E", inRadians(25.3)},
                                      {"25.3°e", inRadians(25.3)},
                                      {"-20.9", -inRadians(20.9)},
                                      {"20.9W", -inRadians(20.9)},
                                      {"20.9° w", -inRadians(20.9)},
                                      {"180", astro::pi},
                                      {"180W", -astro::pi},
                                      {"-180", -astro::pi}}) {
    EXPECT_EQ(words::readLongitude("--long", text), radians) << text;
  }
}

TEST(Latitude, RefusesOtherAngles) {
  for (const char* const text :
       {"91",   "-90.0001", "90.0001N", "abc", "nan", "inf", "",    "N",
        "°",    "-5S",      "-0S",      "5E",  "5W",  "N5",  "5NN", "5°°",
        "40,5", "40°30'",   " 5",       "5 ",  "--5", "+-5", "0x5", "1e999"}) {
    const std::string message = refusalOf([&] { words::readLatitude("--lat", text); });
    EXPECT_TRUE(holds(message, std::string("--lat: \"") + text + "\"")) << text << message;
    EXPECT_TRUE(holds(message, "-90 to 90")) << message;
    EXPECT_TRUE(holds(message, "N or S")) << message;
  }
}

TEST(Longitude, RefusesOtherAngles) {
  for (const char* const text : {"180.5", "-181", "181W", "20N", "20S", "E", "-20W", "west"}) {
    const std::string message = refusalOf([&] { words::readLongitude("--long", text); });
    EXPECT_TRUE(holds(message, std::string("--long: \"") + text + "\"")) << text << message;
    EXPECT_TRUE(holds(message, "-180 to 180")) << message;
    EXPECT_TRUE(holds(message, "E or W")) << message;
  }
}

TEST(WholeNumber, KeepsItsBounds) {
  EXPECT_EQ(words::readWholeNumber("--day", "1", 1, 30), 1);
  EXPECT_EQ(words::readWholeNumber("--day", "+30", 1, 30), 30);
  EXPECT_EQ(words::readWholeNumber("--day", "-5", -5, 30), -5);
  for (const char* const text :
       {"0", "31", "", "1.0", "1e1", " 1", "1 ", "++1", "+", "9223372036854775808", "0x1"}) {
    const std::string message = refusalOf([&] { words::readWholeNumber("--day", text, 1, 30); });
    EXPECT_TRUE(holds(message, std::string("--day: \"") + text + "\"")) << text << message;
    EXPECT_TRUE(holds(message, "a whole number from 1 to 30")) << message;
  }
}

TEST(Number, KeepsItsBoundsAndStaysFinite) {
  constexpr double limit = astro::baseTimeLimitDays;
  EXPECT_EQ(words::readNumber("--base-time", "1000000000", -limit, limit), limit);
  EXPECT_EQ(words::readNumber("--base-time", "-1e9", -limit, limit), -limit);
  EXPECT_EQ(words::readNumber("--base-time", "+.5", -limit, limit), 0.5);
  for (const char* const text : {"1000000000.0000002", "-1000000001", "inf", "-inf", "nan", "1e999",
                                 "", "-", "1,5", "12 days", "0x10"}) {
    const std::string message =
        refusalOf([&] { words::readNumber("--base-time", text, -limit, limit); });
    EXPECT_TRUE(holds(message, std::string("--base-time: \"") + text + "\"")) << text << message;
    EXPECT_TRUE(holds(message, "a number from -1000000000 to 1000000000")) << message;
  }
}

TEST(Number, ReadsTheShortestTextOfEveryNumber) {
  EXPECT_TRUE(rc::check("read(shortestText(x)) == x", [] {
    const double number = *tests::finiteDoubles();
    constexpr double all = std::numeric_limits<double>::max();
    RC_ASSERT(words::readNumber("--base-time", astro::shortestText(number), -all, all) == number);
  }));
}

TEST(StepDays, NumbersAndFractions) {
  EXPECT_EQ(words::readStepDays("0.5"), 0.5);
  EXPECT_EQ(words::readStepDays("1/24"), 1.0 / 24.0);
  EXPECT_EQ(words::readStepDays("-1/144"), -1.0 / 144.0);
  EXPECT_EQ(words::readStepDays("2.5/-10"), -0.25);
  EXPECT_EQ(words::readStepDays("-1e9"), -1e9);
  for (const char* const text : {"1/0", "0/0", "1/", "/24", "/", "", "1/24/2", "1 / 24", "nan",
                                 "inf", "1/inf", "1000000001", "1e9/0.5", "1e308/1e-308", "day"}) {
    const std::string message = refusalOf([&] { words::readStepDays(text); });
    EXPECT_TRUE(holds(message, std::string("--step: \"") + text + "\"")) << text << message;
    EXPECT_TRUE(holds(message, "1/24")) << message;
    EXPECT_TRUE(holds(message, "1000000000")) << message;
  }
}

}  // namespace
}  // namespace veyruna
