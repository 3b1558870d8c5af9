// λ elongation of the moon from the sun.
#include "charts/moon_glyph.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "tests/charts/sphere.h"
#include "tests/charts/xml_check.h"

namespace veyruna::charts {
namespace {

std::string moonDocument(const MoonGlyph& moon) {
  std::string document;
  SvgWriter svg(document);
  drawMoon(svg, moon, "gray");
  return document;
}

std::string drawnAt(double elongation) {
  return moonDocument({{100.0, 50.0}, {160.0, 50.0}, elongation, "white"});
}

std::string litPath(const std::string& document) {
  const auto elements = tests::readXml("<svg>" + document + "</svg>");
  return tests::select(elements, "path").at(0).attribute("d");
}

TEST(MoonGlyph, DiscLitPartAndNameInThisOrder) {
  EXPECT_EQ(drawnAt(astro::halfPi / 1.5),
            "<g transform=\"rotate(0.00, 100.00, 50.00)\">\n"
            "<circle cx=\"100.00\" cy=\"50.00\" r=\"5.00\" fill=\"#3a3a3a\" />\n"
            "<path d=\"M 100.00,45.00 A 5.00,5.00 0 0,1 100.00,55.00 A 2.50,5.00 0 0,0 "
            "100.00,45.00 Z\" fill=\"white\" />\n"
            "</g>\n"
            "<text x=\"110.00\" y=\"45.00\"  fill=\"gray\"  font-family=\"Arial\" "
            "font-size=\"5\">IVRO</text>\n");
}

TEST(MoonGlyph, TheNewMoonIsAllShadow) {
  EXPECT_EQ(litPath(drawnAt(0.0)),
            "M 100.00,45.00 A 5.00,5.00 0 0,1 100.00,55.00 A 5.00,5.00 0 0,0 100.00,45.00 Z");
}

TEST(MoonGlyph, TheFullMoonIsAllLight) {
  EXPECT_EQ(litPath(drawnAt(astro::pi)),
            "M 100.00,45.00 A 5.00,5.00 0 0,1 100.00,55.00 A 5.00,5.00 0 0,1 100.00,45.00 Z");
}

TEST(MoonGlyph, AFullTurnIsNewMoonAgain) {
  EXPECT_EQ(drawnAt(astro::twoPi), drawnAt(0.0));
  EXPECT_EQ(drawnAt(-astro::twoPi), drawnAt(0.0));
  EXPECT_EQ(drawnAt(-astro::pi), drawnAt(astro::pi));
}

TEST(MoonGlyph, WaxingAndWaningMoonsDifferOnlyInWhereTheSunStands) {
  EXPECT_EQ(drawnAt(1.0), drawnAt(-1.0));
  EXPECT_EQ(drawnAt(2.5), drawnAt(astro::twoPi - 2.5));
}

TEST(MoonGlyph, TheLitSideTurnsTowardTheSun) {
  const auto rotation = [](PagePoint sun) {
    const std::string document = moonDocument({{100.0, 50.0}, sun, 1.0, "white"});
    return document.substr(0, document.find(','));
  };
  EXPECT_EQ(rotation({200.0, 50.0}), "<g transform=\"rotate(0.00");
  EXPECT_EQ(rotation({100.0, 80.0}), "<g transform=\"rotate(90.00");
  EXPECT_EQ(rotation({20.0, 50.0}), "<g transform=\"rotate(180.00");
  EXPECT_EQ(rotation({100.0, 40.0}), "<g transform=\"rotate(-90.00");
  EXPECT_EQ(rotation({110.0, 60.0}), "<g transform=\"rotate(45.00");
}

TEST(MoonGlyph, AMoonExactlyOnTheSunIsNotTurned) {
  const std::string document = moonDocument({{100.0, 50.0}, {100.0, 50.0}, 0.0, "white"});
  EXPECT_EQ(document.find("<g transform=\"rotate(0.00, 100.00, 50.00)\">\n"), 0U);
}

TEST(MoonGlyph, LightAndNameHaveTheirOwnColours) {
  std::string document;
  SvgWriter svg(document);
  drawMoon(svg, {{1.0, 2.0}, {3.0, 4.0}, 1.0, "black"}, "white");
  const auto elements = tests::readXml("<svg>" + document + "</svg>");
  EXPECT_EQ(tests::select(elements, "path").at(0).attribute("fill"), "black");
  EXPECT_EQ(tests::select(elements, "text").at(0).attribute("fill"), "white");
  EXPECT_EQ(tests::select(elements, "circle").at(0).attribute("fill"), "#3a3a3a");
}

// The limb's half disc holds half the area; the half ellipse of the shadow's edge is added to it
// (drawn back through the dark side, sweep 1) or taken away (sweep 0).
RC_GTEST_PROP(MoonGlyph, TheLitAreaIsThatOfASphereSeenAtThisElongation, ()) {
  const double elongation = *rc::gen::inRange(-1'000'000, 1'000'001) / 100'000.0;
  const std::string path = litPath(drawnAt(elongation));
  const std::string limb = "M 100.00,45.00 A 5.00,5.00 0 0,1 100.00,55.00 A ";
  RC_ASSERT(path.starts_with(limb));
  const double halfWidth = tests::leadingNumber(path.substr(limb.size()));
  const bool addsToTheHalf = path.find(",5.00 0 0,1 100.00,45.00 Z") != std::string::npos;
  const double litShare = 0.5 + (addsToTheHalf ? halfWidth : -halfWidth) / 10.0;
  RC_ASSERT(std::abs(litShare - (1.0 - std::cos(elongation)) / 2.0) < 0.00051);
}

}  // namespace
}  // namespace veyruna::charts
