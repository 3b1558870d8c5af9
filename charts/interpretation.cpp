#include "charts/interpretation.h"

#include <array>
#include <cstdint>
#include <string>

#include "astro/angle.h"
#include "charts/body_style.h"
#include "charts/chart_frame.h"
#include "charts/element.h"
#include "charts/verdict.h"
#include "reports/zodiac.h"

namespace veyruna::charts {

namespace {

using astro::Planet;
using reports::signNameWithMeaning;

constexpr std::int64_t headingX = 400;
constexpr std::int64_t rowX = 410;

/// Where blocks of rows begin and what they must not reach, a row every 10 units.
constexpr std::int64_t rowHeight = 10;
constexpr std::int64_t planetRowsY = 110;
constexpr std::int64_t keepY = 170;
constexpr std::int64_t elementRowsY = 210;
constexpr std::int64_t natalHeadingY = 290;
constexpr std::int64_t natalRowsY = 330;
constexpr std::int64_t pageEndY = 370;

constexpr bool hasRoom(std::int64_t begin, std::size_t rows, std::int64_t end) {
  return begin + static_cast<std::int64_t>(rows) * rowHeight <= end;
}
static_assert(hasRoom(planetRowsY, astro::planetCount, keepY), "the planets' rows have no room");
static_assert(hasRoom(elementRowsY, astro::planetPairCount, natalHeadingY),
              "the elements' rows have no room");
static_assert(hasRoom(natalRowsY, astro::planetCount, pageEndY), "the natal rows have no room");

/// "Bralo (Inspiration)".
std::string withGift(std::string name, Planet planet) {
  return name.append(" (").append(styleOf(planet).gift).append(")");
}

std::string inCapitals(std::string_view name) {
  std::string capitals(name);
  for (char& letter : capitals) {
    letter = letter >= 'a' && letter <= 'z' ? static_cast<char>(letter - 'a' + 'A') : letter;
  }
  return capitals;
}

/// What a row of an element says, from left to right.
std::array<std::string, 4> elementTexts(const Element& element, const Nativity& nativity) {
  std::string code;
  appendCode(code, element.pair);
  return {std::string(element.name), code, std::string(element.bodyPart),
          std::string(entryOf(strengthOf(nativity.planets[indexOf(element.pair.first)],
                                         nativity.planets[indexOf(element.pair.second)]))
                          .name)};
}

/// The panel of one moment and place, drawn piece by piece.
class Panel {
 public:
  Panel(SvgWriter& svg, const Nativity& nativity, MarkRecorder& marks)
      : svg_(svg), nativity_(nativity), marks_(marks) {}

  void draw() {
    drawText(headingX, 0, "Thessil Influence (Character)");
    drawText(rowX, 10, "House: ", signNameWithMeaning(nativity_.sun));
    drawText(headingX, 50, "Ivroar Influence (Fate)");
    drawText(rowX, 60, "House: ", signNameWithMeaning(nativity_.moon));
    drawText(rowX, 70, "Power: ", entryOf(powerOf(nativity_.moonLatitude)).verdict);
    drawText(headingX, 100, "Planetary Influences");
    drawPlanetRows();
    drawText(headingX, 200, "Elemental Influences");
    drawElementRows();
    drawText(headingX, natalHeadingY, "Natal Forces (Origins)");
    drawText(rowX, 300,
             "Dominant Sphere: ", entryOf(sphereOf(nativity_.ascendant, nativity_)).verdict);
    drawText(rowX, 310, "Ascending Sign (Purpose): ", signNameWithMeaning(nativity_.ascendant));
    drawText(rowX, 320, "Descending Sign (Displacement): ",
             signNameWithMeaning(nativity_.ascendant + astro::pi));
    drawNatalRows();
    drawKeep();
  }

 private:
  void drawText(std::int64_t x, std::int64_t y, std::string_view text) {
    beginText(svg_, x, y, "6").endWithText(text);
    marks_.panelText(x, y, text, 6.0);
  }

  void drawText(std::int64_t x, std::int64_t y, std::string_view label, std::string_view verdict) {
    drawText(x, y, std::string(label).append(verdict));
  }

  void drawPlanetRows() {
    std::int64_t y = planetRowsY;
    for (const Planet planet : astro::allPlanets) {
      const double longitude = nativity_.planets[indexOf(planet)];
      drawText(rowX, y, withGift(std::string(displayName(planet)), planet));
      drawText(500, y, signNameWithMeaning(longitude));
      drawText(650, y, entryOf(sphereOf(longitude, nativity_)).verdict);
      svg_.element("circle")
          .attribute("cx", 405)
          .attribute("cy", y - 3)
          .attribute("r", 3)
          .attribute("fill", shadeOf(styleOf(planet).color).name)
          .endEmpty();
      y += rowHeight;
    }
  }

  void drawElementRows() {
    std::int64_t y = elementRowsY;
    for (const Element& element : elements) {
      const auto [name, code, bodyPart, strength] = elementTexts(element, nativity_);
      drawText(rowX, y, name);
      svg_.element("line")
          .attribute("x1", 402)
          .attribute("y1", y - 4)
          .attribute("x2", 408)
          .attribute("y2", y - 4)
          .attribute("stroke", element.color)
          .attribute("stroke-width", 1)
          .endEmpty();
      drawText(500, y, code);
      drawText(540, y, bodyPart);
      drawText(640, y, strength);
      y += rowHeight;
    }
  }

  void drawNatalRows() {
    std::int64_t y = natalRowsY;
    for (const Planet planet : astro::allPlanets) {
      drawText(rowX, y, withGift(inCapitals(displayName(planet)), planet) + " - ",
               entryOf(strengthOf(nativity_.planets[indexOf(planet)], nativity_.ascendant)).name);
      y += rowHeight;
    }
  }

  void drawKeep() {
    const KeepEntry& keep = keepEntry(isTwistedKeep(nativity_.planets));
    if (keep.isTwisted) {
      beginText(svg_, headingX, keepY, "9").endWithText(keep.verdict);
      marks_.panelText(headingX, keepY, keep.verdict, 9.0);
    } else {
      drawText(headingX, keepY, keep.verdict);
    }
  }

  SvgWriter& svg_;
  const Nativity& nativity_;
  MarkRecorder& marks_;
};

}  // namespace

std::string elementLine(const Element& element, const Nativity& nativity) {
  std::string line;
  for (const std::string& text : elementTexts(element, nativity)) {
    line.append(line.empty() ? "" : ", ").append(text);
  }
  return line;
}

void drawInterpretation(SvgWriter& svg, const Nativity& nativity, MarkRecorder& marks) {
  Panel(svg, nativity, marks).draw();
}

}  // namespace veyruna::charts
