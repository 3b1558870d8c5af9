#include "charts/interpretation.h"

#include <array>
#include <cmath>
#include <cstdint>
#include <string>
#include <utility>

#include "astro/angle.h"
#include "charts/body_style.h"
#include "charts/chart_frame.h"
#include "charts/element.h"
#include "reports/zodiac.h"

namespace veyruna::charts {

namespace {

using astro::Planet;
using reports::signNameWithMeaning;

constexpr double unitsPerTurn = 200.0;

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
          std::string(pairStrength(nativity.planets[indexOf(element.pair.first)],
                                   nativity.planets[indexOf(element.pair.second)]))};
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
    drawText(rowX, 70, "Power: ", powerVerdict(nativity_.moonLatitude));
    drawText(headingX, 100, "Planetary Influences");
    drawPlanetRows();
    drawText(headingX, 200, "Elemental Influences");
    drawElementRows();
    drawText(headingX, natalHeadingY, "Natal Forces (Origins)");
    drawText(rowX, 300, "Dominant Sphere: ", aspectVerdict(nativity_.ascendant, nativity_));
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
      drawText(650, y, aspectVerdict(longitude, nativity_));
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
               pairStrength(nativity_.planets[indexOf(planet)], nativity_.ascendant));
      y += rowHeight;
    }
  }

  void drawKeep() {
    if (isTwistedKeep(nativity_.planets)) {
      beginText(svg_, headingX, keepY, "9").endWithText("Twisted Keep!");
      marks_.panelText(headingX, keepY, "Twisted Keep!", 9.0);
    } else {
      drawText(headingX, keepY, "Straight Keep");
    }
  }

  SvgWriter& svg_;
  const Nativity& nativity_;
  MarkRecorder& marks_;
};

}  // namespace

double separation(double a, double b) {
  constexpr double manyTurns = 1000.0 * astro::twoPi;
  const double apart = std::abs(a - b);
  const double angle = apart > manyTurns ? std::fmod(apart, astro::twoPi) : apart;
  double units = angle * unitsPerTurn / astro::twoPi;
  while (units > unitsPerTurn) {
    units -= unitsPerTurn;
  }
  return units > unitsPerTurn / 2.0 ? unitsPerTurn - units : units;
}

std::string_view aspectVerdict(double longitude, const Nativity& nativity) {
  constexpr double clearlyNearer = 20.0;
  const double fromSun = separation(longitude, nativity.sun);
  const double fromMoon = separation(longitude, nativity.moon);
  if (fromSun > fromMoon + clearlyNearer) {
    return "IVRO (Fate)";
  }
  return fromSun > fromMoon - clearlyNearer ? "BALANCED" : "THESSIL (Will)";
}

std::string_view pairStrength(double a, double b) {
  const double units = separation(a, b);
  if (units > 75.0) {
    return "Exceptional";
  }
  if (units > 50.0) {
    return "Strong";
  }
  if (units > 30.0) {
    return "Neutral";
  }
  if (units > 15.0) {
    return "Weak";
  }
  return units > 5.0 ? "Feeble" : "Impotent";
}

std::string_view powerVerdict(double moonLatitude) {
  constexpr double threeDegrees = 0.05235987755982988;
  if (moonLatitude > threeDegrees) {
    return "SUPERIOR.  The Fates hold sway over Veyruna.";
  }
  return moonLatitude > -threeDegrees ? "BALANCED.  Fate and Will are equal in Veyruna."
                                      : "INFERIOR.  Will can overcome Fate across Veyruna.";
}

bool isTwistedKeep(const astro::PerPlanet<double>& planetLongitudes) {
  static_assert(astro::planetCount == 4, "the keep is that of two groups of two planets");
  astro::PerPlanet<std::pair<double, int>> order{};
  for (std::size_t i = 0; i < order.size(); ++i) {
    order[i] = {astro::wrappedToClosedTurn(planetLongitudes[i]), static_cast<int>(i % 2)};
  }
  // A bubble sort, descending: planets at one longitude keep their places, and so their verdict.
  for (std::size_t pass = 0; pass + 1 < order.size(); ++pass) {
    for (std::size_t i = 0; i + 1 < order.size(); ++i) {
      if (order[i].first < order[i + 1].first) {
        std::swap(order[i], order[i + 1]);
      }
    }
  }
  return order[0].second == order[2].second;
}

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
