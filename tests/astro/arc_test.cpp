#include "astro/arc.h"

#include <cmath>
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "tests/support/c_printf.h"
#include "tests/support/random_sky.h"

namespace veyruna {
namespace {

using astro::Arc;
using tests::inRadians;

Arc degMinSec(double degrees, double minutes, double seconds) {
  return Arc(inRadians(degrees + minutes / 60.0 + seconds / 3600.0));
}

TEST(Arc, IsAllZeroBeforeAnAngleIsSplit) {
  const Arc arc;
  EXPECT_EQ(arc.d, 0);
  EXPECT_EQ(arc.m, 0);
  EXPECT_EQ(arc.s, 0.0);
  EXPECT_FALSE(arc.negative);
}

TEST(Arc, HoldsTheMagnitudeUnsignedAndTheSignBeside) {
  const Arc arc(-inRadians(12.5));
  EXPECT_TRUE(arc.negative);
  EXPECT_EQ(arc.d, 12);
  EXPECT_EQ(arc.m, 30);
  EXPECT_NEAR(arc.s, 0.0, 1e-6);
}

TEST(Arc, NegativeZeroIsNotNegative) {
  const Arc arc(-0.0);
  EXPECT_FALSE(arc.negative);
  EXPECT_EQ(arc.degMinText(), "    :00");
  EXPECT_EQ(arc.degMinSecText(), "        00");
}

TEST(Arc, AHairBelowAWholeDegreeIsTheWholeDegree) {
  const Arc arc(inRadians(29.99999999));
  EXPECT_EQ(arc.d, 30);
  EXPECT_EQ(arc.m, 0);
  EXPECT_EQ(arc.s, 0.0);
}

TEST(Arc, AHairBelowAWholeMinuteIsTheWholeMinute) {
  const Arc arc(inRadians((40.0 - 1e-8) / 60.0));
  EXPECT_EQ(arc.d, 0);
  EXPECT_EQ(arc.m, 40);
  EXPECT_EQ(arc.s, 0.0);
}

TEST(Arc, MoreThanAHairBelowAWholeDegreeIsNot) {
  const Arc arc(inRadians(29.999999));
  EXPECT_EQ(arc.d, 29);
  EXPECT_EQ(arc.m, 59);
  EXPECT_NEAR(arc.s, 59.9964, 1e-6);
}

TEST(Arc, ExactlyThirtySecondsDoNotRoundTheMinutesUp) {
  Arc arc;
  arc.s = 30.0;
  EXPECT_EQ(arc.degMinText(), "    :00");
  arc.s = 30.0000001;
  EXPECT_EQ(arc.degMinText(), "    :01");
}

TEST(Arc, AnAngleOfThirtySecondsRoundsByWhatLiesBeyondThem) {
  double angle = inRadians(30.0 / 3600.0);
  while (Arc(angle).s > 30.0) {
    angle = std::nextafter(angle, 0.0);
  }
  while (Arc(angle).s < 30.0) {
    angle = std::nextafter(angle, 1.0);
  }
  ASSERT_EQ(Arc(angle).s, 30.0);
  EXPECT_EQ(Arc(angle).degMinText(), "    :00");
  EXPECT_EQ(degMinSec(0, 0, 30.0000001).degMinText(), "    :01");
}

TEST(Arc, RoundedMinutesDoNotCarryIntoTheDegrees) {
  EXPECT_EQ(degMinSec(1, 59, 45).degMinText(), " 001:60");
  EXPECT_EQ(degMinSec(0, 59, 31).degMinText(), "    :60");
  EXPECT_EQ(Arc(-inRadians(359.9999)).degMinText(), "-359:60");
}

TEST(Arc, DegreesStandBeforeTheColonAndTheSignBeforeThem) {
  EXPECT_EQ(Arc(-inRadians(12.0 + 5.0 / 60.0)).degMinText(), "-012:05");
  EXPECT_EQ(degMinSec(123, 59, 59).degMinText(), " 123:60");
}

TEST(Arc, BelowOneDegreeTheSignStandsBesideTheColon) {
  EXPECT_EQ(Arc(-inRadians(5.0 / 60.0)).degMinText(), "   -:05");
  EXPECT_EQ(degMinSec(0, 30, 0).degMinText(), "    :30");
}

TEST(Arc, SecondsAreLeftOfNothingAndLoseWhatIsZeroBeforeThem) {
  EXPECT_EQ(degMinSec(45, 7, 31).degMinSecText(), " 045:07:31");
  EXPECT_EQ(Arc(-inRadians(7.0 / 60.0 + 31.0 / 3600.0)).degMinSecText(), "    -07:31");
  EXPECT_EQ(degMinSec(45, 0, 31).degMinSecText(), " 045:00:31");
}

TEST(Arc, BelowOneMinuteOnlySignAndSecondsArePrinted) {
  EXPECT_EQ(degMinSec(0, 0, 31).degMinSecText(), "        31");
  EXPECT_EQ(Arc(-inRadians(31.0 / 3600.0)).degMinSecText(), "       -31");
  EXPECT_EQ(degMinSec(0, 0, 3).degMinSecText(), "        03");
}

TEST(Arc, RoundedSecondsDoNotCarryIntoTheMinutes) {
  EXPECT_EQ(degMinSec(1, 2, 59.7).degMinSecText(), " 001:02:60");
  EXPECT_EQ(degMinSec(0, 0, 59.7).degMinSecText(), "        60");
}

TEST(Arc, AppendingLeavesWhatWasThere) {
  std::string text = "at ";
  degMinSec(10, 20, 0).appendDegMinText(text);
  text += " and ";
  degMinSec(10, 20, 30).appendDegMinSecText(text);
  EXPECT_EQ(text, "at  010:20 and  010:20:30");
}

RC_GTEST_PROP(Arc, TextsHaveTheirFixedWidths, ()) {
  const Arc arc(*tests::between(-inRadians(999.99), inRadians(999.99)));
  RC_ASSERT(arc.degMinText().size() == 7U);
  RC_ASSERT(arc.degMinSecText().size() == 10U);
}

RC_GTEST_PROP(Arc, ThePartsAddUpToTheAngle, ()) {
  const double angle = *tests::between(-100.0, 100.0);
  const Arc arc(angle);
  RC_ASSERT(arc.m >= 0 && arc.m <= 59);
  RC_ASSERT(arc.s >= 0.0 && arc.s < 60.0);
  const double degrees =
      static_cast<double>(arc.d) + static_cast<double>(arc.m) / 60.0 + arc.s / 3600.0;
  // A tenth of a microdegree is what the splitting forgives.
  RC_ASSERT(std::abs(degrees - std::abs(angle) * 180.0 / astro::pi) <= 1.02e-7);
}

// Angles of whole tenths of seconds have texts that whole numbers predict.
RC_GTEST_PROP(Arc, TextsFollowFromWholeTenthsOfSeconds, ()) {
  const std::int64_t d = *tests::wholeBetween(0, 719);
  const std::int64_t m = *tests::wholeBetween(0, 59);
  const std::int64_t tenths = *tests::wholeBetween(0, 599);
  RC_PRE(tenths % 10 != 5 && tenths != 300);
  const bool south = *rc::gen::arbitrary<bool>() && d + m + tenths > 0;
  const double degrees = static_cast<double>((d * 60 + m) * 600 + tenths) / 36000.0;
  const Arc arc(south ? -inRadians(degrees) : inRadians(degrees));

  const char sign = south ? '-' : ' ';
  const auto minutes = static_cast<int>(m + (tenths > 300 ? 1 : 0));
  const auto seconds = static_cast<int>((tenths + 5) / 10);
  const auto wholeDegrees = static_cast<int>(d);
  RC_ASSERT(arc.degMinText() == (d > 0
                                     ? tests::printedInC("%c%03d:%02d", sign, wholeDegrees, minutes)
                                     : tests::printedInC("   %c:%02d", sign, minutes)));
  const auto wholeMinutes = static_cast<int>(m);
  const std::string withSeconds =
      d > 0   ? tests::printedInC("%c%03d:%02d:%02d", sign, wholeDegrees, wholeMinutes, seconds)
      : m > 0 ? tests::printedInC("    %c%02d:%02d", sign, wholeMinutes, seconds)
              : tests::printedInC("       %c%02d", sign, seconds);
  RC_ASSERT(arc.degMinSecText() == withSeconds);
}

}  // namespace
}  // namespace veyruna
