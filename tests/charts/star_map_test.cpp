// Seen from the pole a star's altitude is its declination, and at base time 0 the meridian's right
// ascension is the observer's longitude: both make places on the map easy to foretell.
#include "charts/star_map.h"

#include <gtest/gtest.h>

#include "astro/rotation.h"
#include "tests/charts/sphere.h"
#include "tests/charts/xml_check.h"

namespace veyruna::charts {
namespace {

using astro::halfPi;
using tests::radians;
using tests::readXml;
using tests::select;

FixedStar star(const std::string& name, double rightAscension, double declination,
               double magnitude = 2.0) {
  return makeStar(name, true, "#f4f4f3", rightAscension, declination, magnitude);
}

/// A constellation star that appears at this place after the star field has been turned back.
FixedStar turnedStar(const std::string& name, double rightAscension, double declination) {
  const astro::Vec3D ecliptic =
      rotated(astro::Vec3D(rightAscension, declination), astro::equatorialToEcliptic);
  return makeStar(name, false, "#f4f4f3", ecliptic.phi - starFieldOffset, ecliptic.theta, 2.0);
}

bool hasText(const std::string& map, const std::string& text) {
  return map.find(">" + text + "</text>") != std::string::npos;
}

TEST(StarMap, ABodyExactlyOnTheHorizonIsDrawnOnTheRim) {
  const StarCatalogue sky({star("Rim Star", 0.0, 0.0)}, {});
  const std::string map = starMap({0.0, halfPi, 0.0}, sky);
  EXPECT_TRUE(hasText(map, "Rim Star"));
  const auto dots = select(readXml(map), "circle", "fill", "#f4f4f3");
  ASSERT_EQ(dots.size(), 1U);
  EXPECT_EQ(std::hypot(dots[0].number("cx") - 180.0, dots[0].number("cy") - 180.0), 180.0);
}

TEST(StarMap, ABodyJustBelowTheHorizonIsOmittedWithItsName) {
  const StarCatalogue sky({star("Sunken", 0.0, -1e-300), star("Bare", 0.0, -1e-300, 0.0)}, {});
  EXPECT_EQ(starMap({0.0, halfPi, 0.0}, sky), starMap({0.0, halfPi, 0.0}, StarCatalogue({}, {})));
}

TEST(StarMap, TheZenithIsTheMiddle) {
  const StarCatalogue sky({star("Overhead", 1.0, 0.5)}, {});
  const auto dots = select(readXml(starMap({0.0, 0.5, 1.0}, sky)), "circle", "fill", "#f4f4f3");
  ASSERT_EQ(dots.size(), 1U);
  EXPECT_EQ(dots[0].attribute("cx"), "180");
  EXPECT_EQ(dots[0].attribute("cy"), "180");
}

TEST(StarMap, SouthIsAtTheTopAndEastAtTheLeft) {
  // On the equator, the meridian at right ascension 0: a star further east has the larger one.
  const StarCatalogue sky({star("South", 0.0, radians(-60.0)), star("North", 0.0, radians(60.0)),
                           star("East", radians(60.0), 0.0), star("West", radians(-60.0), 0.0)},
                          {});
  const std::string map = starMap({0.0, 0.0, 0.0}, sky);
  const auto dots = select(readXml(map), "circle", "fill", "#f4f4f3");
  ASSERT_EQ(dots.size(), 4U);
  const auto isAt = [&dots](std::size_t i, const char* x, const char* y) {
    return dots[i].has("cx", x) && dots[i].has("cy", y);
  };
  EXPECT_TRUE(isAt(0, "180", "60"));
  EXPECT_TRUE(isAt(1, "180", "300"));
  EXPECT_TRUE(isAt(2, "60", "180"));
  EXPECT_TRUE(isAt(3, "300", "180"));
  const auto letters = select(readXml(map), "text", "font-size", "10");
  ASSERT_EQ(letters.size(), 4U);
  EXPECT_EQ(letters[0].text, "S");
  EXPECT_LT(letters[0].number("y"), letters[1].number("y"));
  EXPECT_EQ(letters[2].text, "E");
  EXPECT_LT(letters[2].number("x"), letters[3].number("x"));
}

TEST(StarMap, AConstellationLineWithOneEndBelowTheHorizonIsLeftOutWhole) {
  const StarCatalogue sky({turnedStar("_WEN1", 1.0, 0.8), turnedStar("_WEN2", 1.2, 0.3),
                           turnedStar("_WEN3", 1.1, -0.01)},
                          {{"_WEN1", "_WEN2"}, {"_WEN2", "_WEN3"}, {"_WEN3", "_WEN1"}});
  const auto lines = select(readXml(starMap({0.0, halfPi, 0.0}, sky)), "line", "stroke", "#eaeae9");
  ASSERT_EQ(lines.size(), 1U);
  EXPECT_EQ(lines[0].attribute("stroke-width"), "0.4");
  EXPECT_EQ(lines[0].attribute("opacity"), "0.5");
}

TEST(StarMap, AMagnitudeOfZeroIsACentredNameWithoutADot) {
  const StarCatalogue sky({star("The Harp", 1.0, 0.5, 0.0)}, {});
  const std::string map = starMap({0.0, 0.5, 1.0}, sky);
  EXPECT_NE(map.find("<text x=\"180\" y=\"180\"  fill=\"#f4f4f3\"  font-family=\"Arial\" "
                     "font-size=\"5\" text-anchor=\"middle\">The Harp</text>\n"),
            std::string::npos);
  EXPECT_TRUE(select(readXml(map), "circle", "fill", "#f4f4f3").empty());
}

TEST(StarMap, ANameStandsToTheUpperRightOfItsDot) {
  const StarCatalogue sky({star("Far Ember", 1.0, 0.5, 1.0)}, {});
  EXPECT_NE(starMap({0.0, 0.5, 1.0}, sky)
                .find("<circle cx=\"180\" cy=\"180\" r=\"1.70\" fill=\"#f4f4f3\" />\n"
                      "<text x=\"183.40\" y=\"178.30\"  fill=\"#f4f4f3\"  font-family=\"Arial\" "
                      "font-size=\"5\">Far Ember</text>\n"),
            std::string::npos);
}

TEST(StarMap, UnnamedStarsAreDotsAndMarkersAreNoStars) {
  const StarCatalogue sky({turnedStar("_WEN1", 1.0, 0.8), turnedStar("_BACKGROUND001", 2.0, 0.8),
                           star("", 3.0, 0.8), star("_", 4.0, 0.8)},
                          {});
  const std::string map = starMap({0.0, halfPi, 0.0}, sky);
  EXPECT_EQ(select(readXml(map), "circle", "fill", "#f4f4f3").size(), 3U);
  EXPECT_EQ(tests::textsOf(readXml(map)),
            tests::textsOf(readXml(starMap({0.0, halfPi, 0.0}, StarCatalogue({}, {})))));
}

TEST(StarMap, NamesNeverRunAlongTheRim) {
  const StarCatalogue sky({star("Low Lamp", 1.0, radians(1.0)), star("Low Gate", 2.0, 0.0, 0.0)},
                          {});
  const auto elements = readXml(starMap({0.0, halfPi, 0.0}, sky));
  EXPECT_TRUE(select(elements, "textPath").empty());
  EXPECT_EQ(select(elements, "text", "fill", "#f4f4f3").size(), 2U);
}

// Beside the pole's horizon lies half the ecliptic: 0° and 180° are on it, what is between above.
TEST(StarMap, TheEclipticIsDrawnWhereItIsUp) {
  const auto segments = select(readXml(starMap({0.0, halfPi, 0.0}, StarCatalogue({}, {}))), "line",
                               "stroke", "#4af2a1");
  EXPECT_GE(segments.size(), 179U);
  EXPECT_LE(segments.size(), 180U) << "the end at 180° stands on the horizon within rounding";
  for (const auto& segment : segments) {
    EXPECT_EQ(segment.attribute("opacity"), "0.7");
    EXPECT_EQ(segment.attribute("stroke-width"), "0.4");
  }
}

TEST(StarMap, AMarkerMakesATickAcrossTheEcliptic) {
  // At 90° of ecliptic longitude, seen from the pole: 21° up, so 138 units from the middle; the
  // ecliptic runs square to the meridian there, the tick along it.
  const StarCatalogue sky({makeStar("_PEMI", false, "#f4f4f3", halfPi, 0.0, 1.0)}, {});
  const auto ticks =
      select(readXml(starMap({0.0, halfPi, halfPi}, sky)), "line", "stroke-width", "0.8");
  ASSERT_EQ(ticks.size(), 1U);
  EXPECT_NEAR(ticks[0].number("x1"), 180.0, 0.011);
  EXPECT_NEAR(ticks[0].number("x2"), 180.0, 0.011);
  EXPECT_NEAR((ticks[0].number("y1") + ticks[0].number("y2")) / 2.0, 180.0 - 138.0, 0.011);
  EXPECT_NEAR(std::abs(ticks[0].number("y1") - ticks[0].number("y2")), 4.0, 0.011);
  EXPECT_EQ(ticks[0].attribute("stroke"), "#4af2a1");
}

TEST(StarMap, ATickNeedsTheEclipticOnBothSidesAboveTheHorizon) {
  const auto ticksAt = [](double longitude) {
    const StarCatalogue sky({makeStar("_PEMI", false, "#f4f4f3", longitude, 0.0, 1.0)}, {});
    return select(readXml(starMap({0.0, halfPi, 0.0}, sky)), "line", "stroke-width", "0.8").size();
  };
  EXPECT_EQ(ticksAt(0.011), 1U);
  EXPECT_EQ(ticksAt(0.009), 0U);
  EXPECT_EQ(ticksAt(astro::pi - 0.011), 1U);
  EXPECT_EQ(ticksAt(astro::pi - 0.009), 0U);
  EXPECT_EQ(ticksAt(-1.0), 0U);
}

}  // namespace
}  // namespace veyruna::charts
