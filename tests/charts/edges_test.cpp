// The ends of the earth, of time and of the catalogue.
#include <cmath>
#include <gtest/gtest.h>
#include <limits>

#include "astro/rotation.h"
#include "charts/horoscope.h"
#include "charts/star_map.h"
#include "charts/verdict.h"
#include "tests/charts/sphere.h"
#include "tests/charts/xml_check.h"
#include "tests/support/expect_stop.h"

namespace veyruna::charts {
namespace {

using astro::halfPi;
using tests::radians;
using tests::readXml;
using tests::select;

const StarCatalogue& emptySky() {
  static const StarCatalogue sky({}, {});
  return sky;
}

TEST(ChartEdges, AtTheNorthPoleHeightIsDeclination) {
  const StarCatalogue sky({makeStar("High", true, "#f4f4f3", 2.0, radians(60.0), 0.0),
                           makeStar("Deep", true, "#f4f4f3", 2.0, radians(-60.0), 0.0)},
                          {});
  const auto north = select(readXml(starMap({12.5, halfPi, 0.0}, sky)), "text", "fill", "#f4f4f3");
  ASSERT_EQ(north.size(), 1U);
  EXPECT_EQ(north[0].text, "High");
  EXPECT_NEAR(std::hypot(north[0].number("x") - 180.0, north[0].number("y") - 180.0), 60.0, 0.71);
  const auto south = select(readXml(starMap({12.5, -halfPi, 0.0}, sky)), "text", "fill", "#f4f4f3");
  ASSERT_EQ(south.size(), 1U);
  EXPECT_EQ(south[0].text, "Deep");
}

TEST(ChartEdges, PolesAndPolarCirclesHaveBothCharts) {
  for (const double latitude : {90.0, 69.0, 21.0, 0.0, -21.0, -69.0, -90.0}) {
    for (const double longitude : {-180.0, -0.0, 180.0}) {
      EXPECT_NO_THROW(readXml(starMap({0.0, radians(latitude), radians(longitude)}, emptySky())));
      EXPECT_NO_THROW(
          readXml(horoscope(true, {0.0, radians(latitude), radians(longitude)}, emptySky())));
    }
  }
}

TEST(ChartEdges, AtThePoleTheEclipticRisesAtTheEquinoxes) {
  // Only longitudes 0° and 180° ever touch the pole's horizon.
  for (const double latitude : {halfPi, -halfPi}) {
    for (const double t : {0.0, 0.3, 0.8, 1234.5}) {
      const auto dots = select(readXml(horoscope(false, {t, latitude, 0.0}, emptySky())), "circle",
                               "fill", "black");
      ASSERT_EQ(dots.size(), 1U);
      EXPECT_EQ(dots[0].number("cx"), 180.0);
      EXPECT_TRUE(dots[0].number("cy") == 0.0 || dots[0].number("cy") == 360.0);
    }
  }
}

TEST(ChartEdges, ThePoleCircleEndsAtTheLatitudeOfTheTilt) {
  const auto circles = [](double latitude) {
    return select(readXml(horoscope(false, {0.0, latitude, 0.0}, emptySky())), "circle",
                  "stroke-weight", "1");
  };
  EXPECT_TRUE(circles(-astro::obliquity).empty());
  EXPECT_EQ(circles(std::nextafter(-astro::obliquity, 0.0)).size(), 1U);
  ASSERT_EQ(circles(astro::obliquity).size(), 1U);
  EXPECT_EQ(circles(astro::obliquity)[0].attribute("r"), "138.0");
  EXPECT_EQ(circles(astro::obliquity)[0].attributes.count("stroke-width"), 0U);
}

TEST(ChartEdges, MomentsAsFarAsTimeGoesHaveBothCharts) {
  for (const double t : {astro::baseTimeLimitDays, -astro::baseTimeLimitDays, 1e13, -1e13}) {
    EXPECT_NO_THROW(readXml(starMap({t, 0.7, 1.0}, emptySky()))) << t;
    EXPECT_NO_THROW(readXml(horoscope(false, {t, 0.7, 1.0}, emptySky()))) << t;
  }
}

TEST(ChartEdges, LongitudesOfManyTurnsAreDrawnWithoutCountingThem) {
  for (const double longitude : {1e5, -1e9, 1e15, -1e17}) {
    EXPECT_NO_THROW(readXml(starMap({0.25, 0.7, longitude}, emptySky()))) << longitude;
    EXPECT_NO_THROW(readXml(horoscope(false, {0.25, 0.7, longitude}, emptySky()))) << longitude;
  }
}

TEST(ChartEdges, JudgementsOfHugeAnglesEnd) {
  for (const double huge : {1e9, -1e16, 1e300, -1e300}) {
    const double apart = separation(huge, 0.25);
    EXPECT_GE(apart, 0.0);
    EXPECT_LE(apart, 100.0);
    EXPECT_NE(strengthOf(0.25, huge), Strength::count);
    EXPECT_NE(sphereOf(huge, Nativity{1.0, huge, 0.0, {}, 0.0}), Sphere::count);
    isTwistedKeep({huge, 1.0, -huge, 2.0});
  }
}

using ChartEdgesDeathTest = testing::TestWithParam<double>;

TEST_P(ChartEdgesDeathTest, WhatNoCalendarOrArcCanHoldStopsTheProgramAtOnce) {
  const double outside = GetParam();
  const char* const message = "veyruna: broken invariant: ";
  EXPECT_STOP(starMap({outside, 0.5, 0.5}, emptySky()), message);
  EXPECT_STOP(starMap({0.0, 0.5, outside}, emptySky()), message);
  EXPECT_STOP(horoscope(false, {outside, 0.5, 0.5}, emptySky()), message);
  EXPECT_STOP(horoscope(true, {0.0, outside, 0.5}, emptySky()), message);
}

INSTANTIATE_TEST_SUITE_P(Numbers, ChartEdgesDeathTest,
                         testing::Values(1e300, -1e300, std::numeric_limits<double>::infinity(),
                                         std::numeric_limits<double>::quiet_NaN()));

TEST(ChartEdges, AnEmptySkyStillHasWanderersAndFrame) {
  const auto wheel = readXml(horoscope(false, {3.0, 0.5, 0.5}, emptySky()));
  EXPECT_TRUE(select(wheel, "line", "opacity", "0.6").empty());
  EXPECT_EQ(select(wheel, "textPath").size(), 4U) << "the planets' names";
  const auto map = readXml(starMap({3.0, 0.5, 0.5}, emptySky()));
  EXPECT_TRUE(select(map, "line", "opacity", "0.5").empty());
  EXPECT_FALSE(select(map, "line", "opacity", "0.7").empty());
}

TEST(ChartEdges, NamesOfMarkupAreTextOnBothCharts) {
  const std::string name = "Rook & <Hound> \"Old\"";
  const std::string written = ">Rook &amp; &lt;Hound&gt; &quot;Old&quot;<";
  for (const double latitude : {0.0, 1.0}) {  // along the rim of the wheel, and inside it
    const StarCatalogue sky({makeStar(name, false, "#f4f4f3", 1.0, latitude, 0.0)}, {});
    EXPECT_NE(horoscope(false, {0.0, 0.5, 1.0}, sky).find(written), std::string::npos);
    EXPECT_NE(starMap({0.0, 0.5, 1.0}, sky).find(written), std::string::npos);
  }
}

TEST(ChartEdges, LinesOfADoubledNameGoToTheFirstOfTheTwo) {
  const auto star = [](const char* name, double longitude) {
    return makeStar(name, false, "#f4f4f3", longitude, radians(45.0), 2.0);
  };
  const StarCatalogue sky({star("Hub", 0.0), star("Far", astro::pi), star("Far", halfPi)},
                          {{"Hub", "Far"}, {"Hub", "Lost"}, {"Lost", "Far"}});
  const std::string wheel = horoscope(false, {0.0, 0.5, 1.0}, sky);
  EXPECT_NE(wheel.find("<line x1=\"180.0\" y1=\"90.0\" x2=\"180.0\" y2=\"270.0\" "
                       "stroke=\"#eaeae9\" stroke-width=\"0.4\" opacity=\"0.6\" />\n"),
            std::string::npos);
  EXPECT_EQ(select(readXml(wheel), "line", "opacity", "0.6").size(), 1U);
}

TEST(ChartEdges, AStarAtEitherEclipticPoleHasAPlaceOnTheWheel) {
  const StarCatalogue sky({makeStar("Top", false, "#adadad", 1.0, halfPi, 1.0),
                           makeStar("Bottom", false, "#adadad", halfPi, -halfPi, 1.0)},
                          {});
  const auto dots =
      select(readXml(horoscope(false, {0.0, 0.5, 1.0}, sky)), "circle", "fill", "#adadad");
  ASSERT_EQ(dots.size(), 2U);
  EXPECT_TRUE(dots[0].has("cx", "180") && dots[0].has("cy", "180"));
  EXPECT_TRUE(dots[1].has("cx", "540") && dots[1].has("cy", "180")) << "outside, and clipped";
}

}  // namespace
}  // namespace veyruna::charts
