// The panel beside the wheel: what stands where, and in which order it is written.
#include <gtest/gtest.h>

#include "charts/interpretation.h"
#include "tests/charts/sphere.h"
#include "tests/charts/xml_check.h"

namespace veyruna::charts {
namespace {

using tests::radians;

/// Sun in Gimbral, moon in Pemi; planets at 10°, 101°, 190° and 290°; ascendant at 10°.
const Nativity someone = {radians(20.0),
                          radians(110.0),
                          radians(4.0),
                          {radians(10.0), radians(101.0), radians(190.0), radians(290.0)},
                          radians(10.0)};

std::vector<tests::XmlElement> panelOf(const Nativity& nativity) {
  std::string document = "<svg>";
  SvgWriter svg(document);
  MarkRecorder unseen(nullptr);
  drawInterpretation(svg, nativity, unseen);
  return tests::readXml(document + "</svg>");
}

struct Row {
  double x;
  double y;
  std::string text;
  friend bool operator==(const Row&, const Row&) = default;
  friend std::ostream& operator<<(std::ostream& out, const Row& row) {
    return out << row.x << ", " << row.y << ": " << row.text;
  }
};

std::vector<Row> rowsOf(const Nativity& nativity) {
  std::vector<Row> rows;
  for (const auto& text : tests::select(panelOf(nativity), "text")) {
    rows.push_back({text.number("x"), text.number("y"), text.text});
  }
  return rows;
}

TEST(Panel, EveryRowStandsInItsPlace) {
  const std::vector<Row> expected = {
      {400, 0, "Thessil Influence (Character)"},
      {410, 10, "House: Gimbral (Renewal, Growth)"},
      {400, 50, "Ivroar Influence (Fate)"},
      {410, 60, "House: Pemi (Cleansing Destruction)"},
      {410, 70, "Power: SUPERIOR.  The Fates hold sway over Veyruna."},
      {400, 100, "Planetary Influences"},
      {410, 110, "Bralo (Inspiration)"},
      {500, 110, "Gimbral (Renewal, Growth)"},
      {650, 110, "THESSIL (Will)"},
      {410, 120, "Dunmor (Energy)"},
      {500, 120, "Pemi (Cleansing Destruction)"},
      {650, 120, "IVRO (Fate)"},
      {410, 130, "Galvi (Endurance)"},
      {500, 130, "Corra (Freedom, Sell-Will)"},
      {650, 130, "IVRO (Fate)"},
      {410, 140, "Pallox (Wisdom)"},
      {500, 140, "Ostrel (Learning, Transformation)"},
      {650, 140, "THESSIL (Will)"},
      {400, 200, "Elemental Influences"},
      {410, 210, "Marthel"},
      {500, 210, "BR-PA"},
      {540, 210, "Brain (Ethereal)"},
      {640, 210, "Neutral"},
      {410, 220, "Tobrin"},
      {500, 220, "DU-PA"},
      {540, 220, "Lungs (Plenary)"},
      {640, 220, "Exceptional"},
      {410, 230, "Quorane"},
      {500, 230, "BR-DU"},
      {540, 230, "Heart (Impulse)"},
      {640, 230, "Strong"},
      {410, 240, "Kellam"},
      {500, 240, "DU-GA"},
      {540, 240, "Bones (Material)"},
      {640, 240, "Neutral"},
      {410, 250, "Umbrik"},
      {500, 250, "BR-GA"},
      {540, 250, "Gonads (Plenary)"},
      {640, 250, "Exceptional"},
      {410, 260, "Zerathe"},
      {500, 260, "GA-PA"},
      {540, 260, "Stomach (Repose)"},
      {640, 260, "Strong"},
      {400, 290, "Natal Forces (Origins)"},
      {410, 300, "Dominant Sphere: THESSIL (Will)"},
      {410, 310, "Ascending Sign (Purpose): Gimbral (Renewal, Growth)"},
      {410, 320, "Descending Sign (Displacement): Corra (Freedom, Sell-Will)"},
      {410, 330, "BRALO (Inspiration) - Impotent"},
      {410, 340, "DUNMOR (Energy) - Strong"},
      {410, 350, "GALVI (Endurance) - Exceptional"},
      {410, 360, "PALLOX (Wisdom) - Neutral"},
      {400, 170, "Twisted Keep!"},
  };
  const std::vector<Row> rows = rowsOf(someone);
  ASSERT_EQ(rows.size(), expected.size());
  for (std::size_t i = 0; i < rows.size(); ++i) {
    EXPECT_EQ(rows[i], expected[i]);
  }
}

TEST(Panel, APlanetOppositeTheAscendantIsExceptionalAndOneOnItImpotent) {
  Nativity nativity = someone;
  for (double& longitude : nativity.planets) {
    longitude = nativity.ascendant;
  }
  nativity.planets[3] = nativity.ascendant - tests::halfTurn;
  for (const Row& row : rowsOf(nativity)) {
    if (row.y == 330 || row.y == 340 || row.y == 350) {
      EXPECT_TRUE(row.text.ends_with(" - Impotent")) << row;
    }
    if (row.y == 360) {
      EXPECT_EQ(row.text, "PALLOX (Wisdom) - Exceptional");
    }
  }
}

TEST(Panel, TheKeepIsWrittenLastThoughItStandsHigher) {
  const auto twisted = panelOf(someone).back();
  EXPECT_EQ(twisted.text, "Twisted Keep!");
  EXPECT_EQ(twisted.attribute("font-size"), "9");
  EXPECT_EQ(twisted.attribute("fill"), "#757475");

  Nativity other = someone;
  std::swap(other.planets[1], other.planets[2]);
  const auto straight = panelOf(other).back();
  EXPECT_EQ(straight.text, "Straight Keep");
  EXPECT_EQ(straight.attribute("font-size"), "6");
  EXPECT_EQ(straight.number("x"), 400.0);
  EXPECT_EQ(straight.number("y"), 170.0);
}

TEST(Panel, LegendDotsStandBesideThePlanets) {
  const auto dots = tests::select(panelOf(someone), "circle");
  ASSERT_EQ(dots.size(), 4U);
  const std::array<std::string, 4> fills = {"blue", "red", "orange", "purple"};
  for (std::size_t i = 0; i < dots.size(); ++i) {
    EXPECT_EQ(dots[i].attribute("fill"), fills[i]);
    EXPECT_EQ(dots[i].number("cx"), 405.0);
    EXPECT_EQ(dots[i].number("cy"), 107.0 + 10.0 * static_cast<double>(i));
    EXPECT_EQ(dots[i].number("r"), 3.0);
  }
}

TEST(Panel, LegendStrokesStandBesideTheElements) {
  const auto strokes = tests::select(panelOf(someone), "line");
  const std::array<std::string, 6> colors = {"purple", "pink", "orange", "yellow", "green", "blue"};
  ASSERT_EQ(strokes.size(), colors.size());
  for (std::size_t i = 0; i < strokes.size(); ++i) {
    EXPECT_EQ(strokes[i].attribute("stroke"), colors[i]);
    EXPECT_EQ(strokes[i].number("y1"), 206.0 + 10.0 * static_cast<double>(i));
    EXPECT_EQ(strokes[i].number("y2"), strokes[i].number("y1"));
    EXPECT_EQ(strokes[i].number("x1"), 402.0);
    EXPECT_EQ(strokes[i].number("x2"), 408.0);
    EXPECT_EQ(strokes[i].number("stroke-width"), 1.0);
  }
}

TEST(Panel, EveryTextIsGreyAndOfOneSizeButTheTwistedKeep) {
  const auto texts = tests::select(panelOf(someone), "text");
  for (std::size_t i = 0; i + 1 < texts.size(); ++i) {
    EXPECT_EQ(texts[i].attribute("fill"), "#757475");
    EXPECT_EQ(texts[i].attribute("font-family"), "Arial");
    EXPECT_EQ(texts[i].attribute("font-size"), "6");
  }
}

}  // namespace
}  // namespace veyruna::charts
