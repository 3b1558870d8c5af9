#include "charts/star_catalogue.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "tests/charts/sphere.h"

namespace veyruna::charts {
namespace {

using tests::radians;

FixedStar entryNamed(const std::string& name, double magnitude = 1.0) {
  return makeStar(name, true, "#f4f4f3", 1.0, 0.5, magnitude);
}

TEST(FixedStar, AnUnderscoreAloneEndsInNoDigitAndIsAMarker) {
  EXPECT_TRUE(entryNamed("_").isMarker());
}

TEST(FixedStar, AnEmptyNameIsNeitherMarkerNorStar) {
  const FixedStar nameless = entryNamed("");
  EXPECT_FALSE(nameless.isMarker());
  EXPECT_EQ(nameless.eq.phi, 1.0) << "turned with the star field";
}

TEST(FixedStar, TheNameDecidesTheRole) {
  EXPECT_TRUE(entryNamed("_VONI").isMarker());
  EXPECT_FALSE(entryNamed("_VONI1").isMarker());
  EXPECT_FALSE(entryNamed("_BACKGROUND017").isMarker());
  EXPECT_FALSE(entryNamed("Voni").isMarker());
  EXPECT_FALSE(entryNamed("7").isMarker());
  EXPECT_TRUE(entryNamed("_7a").isMarker());
  EXPECT_TRUE(entryNamed("_é").isMarker());
}

TEST(FixedStar, BrighterStarsHaveLargerDots) {
  EXPECT_DOUBLE_EQ(entryNamed("_A1", 1.0).dotSize(), 1.7);
  EXPECT_DOUBLE_EQ(entryNamed("_A1", 0.54).dotSize(), 1.838);
  EXPECT_DOUBLE_EQ(entryNamed("_A1", 4.0).dotSize(), 0.8);
  EXPECT_EQ(entryNamed("_A1", 5.5).dotSize(), 0.4);
  EXPECT_EQ(entryNamed("_A1", 6.0).dotSize(), 0.4);
}

TEST(FixedStar, MagnitudeZeroOrLessHasNoDot) {
  EXPECT_EQ(entryNamed("Hathel", 0.0).dotSize(), 0.0);
  EXPECT_EQ(entryNamed("Hathel", -0.0).dotSize(), 0.0);
  EXPECT_EQ(entryNamed("Hathel", -1.4).dotSize(), 0.0);
  EXPECT_NEAR(entryNamed("Hathel", 1e-9).dotSize(), 2.0, 1e-9);
}

TEST(MakeStar, AStarAtTheEquinoxAppearsEighteenDegreesBackOnTheEcliptic) {
  const FixedStar star = makeStar("_VONI1", true, "#f4f4f3", 0.0, 0.0, 2.0);
  EXPECT_NEAR(tests::nearZero(star.ec.phi), radians(-18.0), 1e-15);
  EXPECT_EQ(star.ec.theta, 0.0);
  const tests::Place expected = tests::equatorialOfEcliptic(radians(-18.0));
  EXPECT_NEAR(tests::nearZero(star.eq.phi - expected.phi), 0.0, 1e-15);
  EXPECT_NEAR(star.eq.theta, expected.theta, 1e-15);
  EXPECT_GE(star.eq.phi, 0.0);
}

TEST(MakeStar, BackgroundStarsTurnWithTheConstellations) {
  const FixedStar star = makeStar("_BACKGROUND001", false, "#adadad", 2.0, 0.3, 5.0);
  EXPECT_DOUBLE_EQ(star.ec.phi, 2.0 - radians(18.0));
  EXPECT_EQ(star.ec.theta, 0.3);
}

TEST(MakeStar, LabelsAndMarkersOnTheEclipticStayWhereTheyAre) {
  for (const char* const name : {"Voni", "_VONI", "Gate 7", "_", ""}) {
    const FixedStar entry = makeStar(name, false, "#f4f4f3", 5.74599, -0.06, 0.0);
    EXPECT_EQ(entry.ec.phi, 5.74599) << name;
    EXPECT_EQ(entry.ec.theta, -0.06) << name;
  }
}

TEST(MakeStar, LabelsOnTheEquatorStayWhereTheyAre) {
  const FixedStar entry = makeStar("The Harp", true, "#f4f4f3", -0.5, 0.25, 0.0);
  EXPECT_EQ(entry.eq.phi, -0.5);
  EXPECT_EQ(entry.eq.theta, 0.25);
}

TEST(MakeStar, TheRestIsKept) {
  const FixedStar star = makeStar("_VONI1", true, "#FEF651", 0.0, 0.0, 2.25);
  EXPECT_EQ(star.name, "_VONI1");
  EXPECT_EQ(star.color, "#FEF651");
  EXPECT_EQ(star.magnitude, 2.25);
}

// In both frames the direction is the same: its angles from the equinox, and from the two poles
// by the triangle of ecliptic pole, celestial pole and star.
RC_GTEST_PROP(MakeStar, BothFramesNameOneDirection, ()) {
  const double phi = *rc::gen::inRange(-7'000'000, 7'000'001) / 1e6;
  const double theta = *rc::gen::inRange(-1'570'796, 1'570'797) / 1e6;
  const auto name = *rc::gen::elementOf(std::vector<std::string>{"_VONI1", "_VONI", "Voni"});
  const FixedStar star = makeStar(name, *rc::gen::arbitrary<bool>(), "#f4f4f3", phi, theta, 1.0);
  const double fromEquinox = std::cos(star.eq.theta) * std::cos(star.eq.phi);
  RC_ASSERT(std::abs(std::cos(star.ec.theta) * std::cos(star.ec.phi) - fromEquinox) < 1e-14);
  const double sineOfDeclination =
      std::sin(star.ec.theta) * std::cos(tests::tilt) +
      std::cos(star.ec.theta) * std::sin(tests::tilt) * std::sin(star.ec.phi);
  RC_ASSERT(std::abs(std::sin(star.eq.theta) - sineOfDeclination) < 1e-14);
}

TEST(StarCatalogue, LinesBeginAndEndAtTheFirstOfTwoEntriesWithOneName) {
  const StarCatalogue sky({entryNamed("_B1"), entryNamed("_A1"), entryNamed("_A1")},
                          {{"_A1", "_B1"}});
  ASSERT_EQ(sky.lines().size(), 1U);
  EXPECT_EQ(sky.lines()[0].from, 1U);
  EXPECT_EQ(sky.lines()[0].to, 0U);
}

TEST(StarCatalogue, LinesToAMissingStarAreLeftOut) {
  const StarCatalogue sky({entryNamed("_A1"), entryNamed("_A2")},
                          {{"_A1", "_A3"}, {"_A0", "_A2"}, {"_A1", "_A2"}, {"", ""}});
  ASSERT_EQ(sky.lines().size(), 1U);
  EXPECT_EQ(sky.lines()[0].to, 1U);
}

TEST(StarCatalogue, NamesAreFoundWholeAndAsWritten) {
  const StarCatalogue sky({entryNamed("_A12"), entryNamed("_B1")},
                          {{"_A1", "_B1"}, {"_a12", "_B1"}, {"", "_B1"}, {"_A12", "_B1"}});
  ASSERT_EQ(sky.lines().size(), 1U);
  EXPECT_EQ(sky.lines()[0].from, 0U);
}

TEST(StarCatalogue, AnEmptySkyHasNothingToJoin) {
  const StarCatalogue sky({}, {{"_A1", "_A2"}});
  EXPECT_TRUE(sky.stars().empty());
  EXPECT_TRUE(sky.lines().empty());
}

}  // namespace
}  // namespace veyruna::charts
