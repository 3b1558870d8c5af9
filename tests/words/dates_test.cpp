// Moments and lengths of time as a person types them.
#include "words/dates.h"

#include <gtest/gtest.h>
#include <limits>

#include "astro/angle.h"
#include "astro/local_time.h"
#include "astro/number_text.h"
#include "words/usage_error.h"

namespace veyruna {
namespace {

TEST(Dates, ADayBeginsAtItsMidnight) {
  EXPECT_EQ(words::readMoment("--from", "1-1-1"), astro::firstMidnight);
  const double moment = words::readMoment("--from", "720-06-12");
  EXPECT_EQ(astro::calendarLabel(moment), "720-06-12 00:00 OST");
  EXPECT_EQ(words::readMoment("--from", "0720-6-12"), moment);
  EXPECT_EQ(words::readMoment("--from", "720-ulvenhar-12"), moment);
  EXPECT_EQ(words::readMoment("--from", "720-06-12T24:00"), moment + 1.0);
  EXPECT_EQ(words::readMoment("--from", "720-06-12T22:30"), moment + 22.5 / 24.0);
  EXPECT_EQ(words::readMoment("--from", "720-06-12T22.5"), moment + 22.5 / 24.0);
}

TEST(Dates, ABaseTimeIsItself) {
  for (const double t : {0.0, -12.5, 258900.5, 1e9, -1e9}) {
    EXPECT_EQ(words::readMoment("--to", "@" + astro::shortestText(t)), t);
  }
}

TEST(Dates, AClockAtALongitudeIsLocal) {
  const double longitude = astro::radiansOf(-77.0);
  const double moment = words::readMoment("--from", "720-06-12T22:30", longitude);
  EXPECT_EQ(astro::localClockLabel({.baseTime = moment, .longitude = longitude}), "22:30");
  EXPECT_EQ(words::readMoment("--from", "@5.25", longitude), 5.25);
}

TEST(Dates, AllElseIsRefusedWithItsText) {
  for (const std::string text : {"",
                                 "720",
                                 "720-06",
                                 "720-06-31",
                                 "720-13-01",
                                 "0-01-01",
                                 "720-06-0",
                                 "-720-06-12",
                                 "720-06-12-",

                                 "720-06-12T",
                                 "720-06-12T25",
                                 "720-06-12T22:60",
                                 "720/06/12",
                                 " 720-06-12",
                                 "720-06-12 ",
                                 "2777779-01-01",
                                 "99999999999999999999-01-01",
                                 "720-06-1x",
                                 "720--06-12",
                                 "720-06-12t22:30",
                                 "@",
                                 "@x",
                                 "@nan",
                                 "@inf",
                                 "@ 5",
                                 "@@5",
                                 "noon",
                                 "--"}) {
    try {
      words::readMoment("--from", text);
      ADD_FAILURE() << text;
    } catch (const words::UsageError& error) {
      const std::string message = error.what();
      EXPECT_TRUE(message.starts_with("--from: \"" + text + "\" is not accepted")) << message;
      EXPECT_NE(message.find("720-06-12T22:30"), std::string::npos) << message;
    }
  }
  EXPECT_THROW(words::readMoment("--from", "@1000000000.5"), words::UsageError);
  EXPECT_THROW(words::readMoment("--from", "2777778-12-30"), words::UsageError);
}

TEST(Dates, LengthsHaveAUnit) {
  EXPECT_EQ(words::readLength("--for", "12 days"), 12.0);
  EXPECT_EQ(words::readLength("--for", "1 day"), 1.0);
  EXPECT_EQ(words::readLength("--for", "3months"), 90.0);
  EXPECT_EQ(words::readLength("--for", "0.5 years"), 180.0);
  EXPECT_EQ(words::readLength("--for", "1e8 years"), 360e8);
  for (const char* const text : {"", "3", "days", "-1 days", "3 weeks", "3 daysx", "3,5 days",
                                 "nan days", "3 days ago", "3 Days"}) {
    EXPECT_THROW(words::readLength("--for", text), words::UsageError) << text;
  }
}

}  // namespace
}  // namespace veyruna
