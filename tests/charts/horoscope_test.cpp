#include "charts/horoscope.h"

#include <gtest/gtest.h>

#include "charts/projection.h"
#include "tests/charts/sphere.h"
#include "tests/charts/xml_check.h"

namespace veyruna::charts {
namespace {

using tests::radians;
using tests::readXml;
using tests::select;

constexpr double southernmost = -0.3665191429188092;

FixedStar named(const std::string& name, double longitude, double latitude, double magnitude,
                const std::string& color = "#f4f4f3") {
  return makeStar(name, false, color, longitude, latitude, magnitude);
}

std::string wheelWith(const FixedStar& entry, bool blackAndWhite = false) {
  return horoscope(blackAndWhite, {1000.25, 0.5, -0.25}, StarCatalogue({entry}, {}));
}

std::string emptyWheel(double t, double latitude, double longitude) {
  return horoscope(false, {t, latitude, longitude}, StarCatalogue({}, {}));
}

bool contains(const std::string& document, const std::string& part) {
  return document.find(part) != std::string::npos;
}

/// The label of a one-entry sky as it runs along the rim: its path and where it begins.
tests::XmlElement rimLabel(const FixedStar& entry, bool blackAndWhite = false) {
  for (const auto& label : select(readXml(wheelWith(entry, blackAndWhite)), "textPath")) {
    if (label.text == entry.name) {
      return label;
    }
  }
  throw tests::XmlError(entry.name + " is not on the rim");
}

TEST(Horoscope, LongitudeZeroOnTheEclipticIsTheTopAndTheBeginningOfTheRim) {
  const std::string wheel = wheelWith(named("Spring", 0.0, 0.0, 1.0));
  EXPECT_TRUE(contains(wheel,
                       "<circle cx=\"180\" cy=\"0\" r=\"1.70\" fill=\"#f4f4f3\" />\n"
                       "<text fill=\"#f4f4f3\" font-family=\"Arial\" font-size=\"5\">\n"
                       "<textPath xlink:href=\"#rim\" startOffset=\"0.0%\">Spring"
                       "</textPath></text>\n"));
}

TEST(Horoscope, ARimNameBeginsAtItsLongitude) {
  EXPECT_EQ(rimLabel(named("A", astro::halfPi, 0.0, 1.0)).attribute("startOffset"), "25.0%");
  EXPECT_EQ(rimLabel(named("A", radians(200.0), 0.0, 1.0)).attribute("startOffset"), "55.6%");
  EXPECT_EQ(rimLabel(named("A", -astro::halfPi, 0.0, 1.0)).attribute("startOffset"), "75.0%");
  EXPECT_EQ(rimLabel(named("A", -1.9, 0.0, 1.0)).attribute("startOffset"), "69.8%");
}

TEST(Horoscope, ANameSouthOfTheEclipticStillRunsAlongTheRim) {
  EXPECT_EQ(rimLabel(named("Deep Well", 1.0, -0.9, 1.0)).attribute("startOffset"), "15.9%");
}

TEST(Horoscope, NineDegreesNorthIsTheFirstLatitudeOffTheRim) {
  // The latitude where the distance from the pole is nine tenths of the radius, to the last bit.
  double onRim = radians(8.9);
  double inside = radians(9.1);
  while (std::nextafter(onRim, inside) < inside) {
    const double middle = onRim + (inside - onRim) / 2.0;
    (projected(1.0, middle).distance > 0.9 ? onRim : inside) = middle;
  }
  ASSERT_NEAR(tests::degrees(inside), 9.0, 1e-12);
  EXPECT_NO_THROW(rimLabel(named("A Gate", 1.0, onRim, 1.0)));
  EXPECT_THROW(rimLabel(named("A Gate", 1.0, inside, 1.0)), tests::XmlError);
  EXPECT_TRUE(contains(wheelWith(named("A Gate", 1.0, inside, 1.0)), ">A Gate</text>"));
}

TEST(Horoscope, TheRimAlsoCarriesNamesWithoutADot) {
  const FixedStar sign = named("Gimbral", 0.23, -0.06, 0.0);
  EXPECT_EQ(rimLabel(sign).attribute("startOffset"), "3.7%");
  EXPECT_TRUE(select(readXml(wheelWith(sign)), "circle", "fill", "#f4f4f3").empty());
  EXPECT_FALSE(contains(wheelWith(sign), "text-anchor"));
}

TEST(Horoscope, AMagnitudeOfZeroIsACentredNameWithoutADot) {
  const std::string wheel = wheelWith(named("The Harp", astro::pi, radians(45.0), 0.0));
  EXPECT_TRUE(contains(wheel,
                       "<text x=\"180\" y=\"270\"  fill=\"#f4f4f3\"  font-family=\"Arial\" "
                       "font-size=\"5\" text-anchor=\"middle\">The Harp</text>\n"));
  EXPECT_TRUE(select(readXml(wheel), "circle", "fill", "#f4f4f3").empty());
}

TEST(Horoscope, AStarsNameStandsToTheUpperRightOfItsDot) {
  const std::string wheel = wheelWith(named("Far Ember", astro::pi, radians(45.0), 1.0));
  EXPECT_TRUE(contains(wheel,
                       "<circle cx=\"180\" cy=\"270\" r=\"1.70\" fill=\"#f4f4f3\" />\n"
                       "<text x=\"183.40\" y=\"268.30\"  fill=\"#f4f4f3\"  "
                       "font-family=\"Arial\" font-size=\"5\">Far Ember</text>\n"));
}

TEST(Horoscope, TheOuterRimBelongsToTheSignsColour) {
  EXPECT_EQ(rimLabel(named("A", 1.0, 0.0, 0.0)).attribute("xlink:href"), "#rim");
  EXPECT_EQ(rimLabel(named("A", 1.0, 0.0, 0.0, "#fef651")).attribute("xlink:href"), "#rim_inner");
  EXPECT_EQ(rimLabel(named("A", 1.0, 0.0, 0.0, "#adadad")).attribute("xlink:href"), "#rim_inner");
}

TEST(Horoscope, InBlackAndWhiteEveryRimNameRunsInside) {
  for (const char* const color : {"#f4f4f3", "#fef651", "#adadad"}) {
    EXPECT_EQ(rimLabel(named("A", 1.0, 0.0, 0.0, color), true).attribute("xlink:href"),
              "#rim_inner");
  }
}

TEST(Horoscope, MarkersAreTicksAcrossTheRim) {
  const std::string wheel = wheelWith(named("_PEMI", astro::halfPi, 0.0, 1.0));
  EXPECT_TRUE(contains(wheel,
                       "<line x1=\"354.00\" y1=\"180.00\" x2=\"366.00\" y2=\"180.00\" "
                       "stroke=\"#f4f4f3\" stroke-width=\"0.8\" />\n"));
  EXPECT_TRUE(select(readXml(wheel), "circle", "fill", "#f4f4f3").empty());
  EXPECT_FALSE(contains(wheel, "_PEMI"));
}

TEST(Horoscope, NamesBeginningWithAnUnderscoreAreDotsAlone) {
  const std::string wheel = wheelWith(named("_PEMI1", 1.0, 0.4, 1.0));
  EXPECT_EQ(select(readXml(wheel), "circle", "fill", "#f4f4f3").size(), 1U);
  EXPECT_FALSE(contains(wheel, "_PEMI"));
}

TEST(Horoscope, APoleCircleLargerThanTheWheelIsNotDrawn) {
  const auto circles = [](double latitude) {
    return select(readXml(emptyWheel(3.0, latitude, 0.0)), "circle", "stroke", "orange");
  };
  EXPECT_TRUE(circles(southernmost).empty());
  EXPECT_TRUE(circles(std::nextafter(southernmost, -1.0)).empty());
  EXPECT_TRUE(circles(radians(-60.0)).empty());
  ASSERT_EQ(circles(std::nextafter(southernmost, 0.0)).size(), 1U);
  EXPECT_EQ(circles(std::nextafter(southernmost, 0.0))[0].attribute("r"), "222.0");
}

TEST(Horoscope, ThePoleCircleHoldsTheStarsThatNeverSet) {
  EXPECT_TRUE(contains(emptyWheel(3.0, radians(40.5), 0.0),
                       "<circle cx=\"222\" cy=\"180\" r=\"99.0\" fill=\"none\" stroke=\"orange\" "
                       "stroke-weight=\"1\" />\n"));
  EXPECT_TRUE(contains(emptyWheel(3.0, 0.0, 0.0), "cx=\"222\" cy=\"180\" r=\"180.0\""));
  EXPECT_TRUE(contains(emptyWheel(3.0, astro::halfPi, 0.0), "cx=\"222\" cy=\"180\" r=\"0.0\""));
}

TEST(Horoscope, TheChordsJoinThePlanetsInTheColoursOfTheElements) {
  const auto lines = select(readXml(emptyWheel(77.0, 0.3, 0.1)), "line", "stroke-width", "0.8");
  const std::array<std::string, 6> colors = {"green", "orange", "purple", "yellow", "pink", "blue"};
  ASSERT_EQ(lines.size(), colors.size());
  for (std::size_t i = 0; i < colors.size(); ++i) {
    EXPECT_EQ(lines[i].attribute("stroke"), colors[i]);
    for (const auto& [x, y] : {std::pair{"x1", "y1"}, std::pair{"x2", "y2"}}) {
      EXPECT_NEAR(std::hypot(lines[i].number(x) - 180.0, lines[i].number(y) - 180.0), 180.0, 0.71)
          << "the ends lie on the edge";
    }
  }
  EXPECT_TRUE(lines[0].has("x1", lines[1].attribute("x1"))) << "both begin at the first planet";
}

TEST(Horoscope, TheSkyIsClippedAndTheRestIsNot) {
  const std::string wheel = wheelWith(named("Deep Well", 1.0, -0.9, 1.0));
  const std::size_t opens = wheel.find("<g clip-path=\"url(#horoscopeClip)\">\n");
  const std::size_t closes = wheel.rfind("</g>\n");
  const std::size_t star = wheel.find(">Deep Well<");
  const std::size_t ascendant = wheel.find(">GEN<");
  ASSERT_NE(opens, std::string::npos);
  EXPECT_LT(opens, star);
  EXPECT_LT(star, closes);
  EXPECT_LT(closes, ascendant);
  EXPECT_LT(ascendant, wheel.find(">Sun HA: "));
  EXPECT_LT(wheel.find(">Sun HA: "), wheel.find("stroke=\"orange\" stroke-weight"));
}

}  // namespace
}  // namespace veyruna::charts
