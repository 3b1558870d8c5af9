#include "charts/interpretation.h"

#include <cmath>
#include <cstdint>
#include <string>
#include <utility>

#include "astro/angle.h"
#include "astro/planet.h"
#include "charts/chart_frame.h"
#include "reports/zodiac.h"

namespace veyruna::charts {

namespace {

using astro::Planet;
using reports::signNameWithMeaning;

constexpr double unitsPerTurn = 200.0;

constexpr std::int64_t headingX = 400;
constexpr std::int64_t rowX = 410;

struct PlanetRow {
  std::string_view label;
  std::string_view dotColor;
  std::string_view natalLabel;
};

constexpr std::array<PlanetRow, 4> planetRows = {{
    {"Bralo (Inspiration)", "blue", "BRALO (Inspiration) - "},
    {"Dunmor (Energy)", "red", "DUNMOR (Energy) - "},
    {"Galvi (Endurance)", "orange", "GALVI (Endurance) - "},
    {"Pallox (Wisdom)", "purple", "PALLOX (Wisdom) - "},
}};

struct ElementRow {
  std::string_view element;
  std::string_view lineColor;  ///< that of the pair's chord on the wheel
  std::string_view pairCode;
  Planet first;
  Planet second;
  std::string_view bodyPart;
};

constexpr std::array<ElementRow, 6> elementRows = {{
    {"Marthel", "purple", "BR-PA", Planet::bralo, Planet::pallox, "Brain (Ethereal)"},
    {"Tobrin", "pink", "DU-PA", Planet::dunmor, Planet::pallox, "Lungs (Plenary)"},
    {"Quorane", "orange", "BR-DU", Planet::bralo, Planet::dunmor, "Heart (Impulse)"},
    {"Kellam", "yellow", "DU-GA", Planet::dunmor, Planet::galvi, "Bones (Material)"},
    {"Umbrik", "green", "BR-GA", Planet::bralo, Planet::galvi, "Gonads (Plenary)"},
    {"Zerathe", "blue", "GA-PA", Planet::galvi, Planet::pallox, "Stomach (Repose)"},
}};

void drawText(SvgWriter& svg, std::int64_t x, std::int64_t y, std::string_view text) {
  beginText(svg, x, y, "6").endWithText(text);
}

void drawText(SvgWriter& svg, std::int64_t x, std::int64_t y, std::string_view label,
              std::string_view verdict) {
  drawText(svg, x, y, std::string(label).append(verdict));
}

void drawPlanetRows(SvgWriter& svg, const Nativity& nativity) {
  std::int64_t y = 110;
  for (const Planet planet : astro::allPlanets) {
    const PlanetRow& row = planetRows[indexOf(planet)];
    const double longitude = nativity.planets[indexOf(planet)];
    drawText(svg, rowX, y, row.label);
    drawText(svg, 500, y, signNameWithMeaning(longitude));
    drawText(svg, 650, y, aspectVerdict(longitude, nativity));
    svg.element("circle")
        .attribute("cx", 405)
        .attribute("cy", y - 3)
        .attribute("r", 3)
        .attribute("fill", row.dotColor)
        .endEmpty();
    y += 10;
  }
}

void drawElementRows(SvgWriter& svg, const Nativity& nativity) {
  std::int64_t y = 210;
  for (const ElementRow& row : elementRows) {
    drawText(svg, rowX, y, row.element);
    svg.element("line")
        .attribute("x1", 402)
        .attribute("y1", y - 4)
        .attribute("x2", 408)
        .attribute("y2", y - 4)
        .attribute("stroke", row.lineColor)
        .attribute("stroke-width", 1)
        .endEmpty();
    drawText(svg, 500, y, row.pairCode);
    drawText(svg, 540, y, row.bodyPart);
    drawText(
        svg, 640, y,
        pairStrength(nativity.planets[indexOf(row.first)], nativity.planets[indexOf(row.second)]));
    y += 10;
  }
}

void drawNatalRows(SvgWriter& svg, const Nativity& nativity) {
  std::int64_t y = 330;
  for (const Planet planet : astro::allPlanets) {
    drawText(svg, rowX, y, planetRows[indexOf(planet)].natalLabel,
             pairStrength(nativity.planets[indexOf(planet)], nativity.ascendant));
    y += 10;
  }
}

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

bool isTwistedKeep(const std::array<double, 4>& planetLongitudes) {
  std::array<std::pair<double, int>, 4> order{};
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

void drawInterpretation(SvgWriter& svg, const Nativity& nativity) {
  drawText(svg, headingX, 0, "Thessil Influence (Character)");
  drawText(svg, rowX, 10, "House: ", signNameWithMeaning(nativity.sun));
  drawText(svg, headingX, 50, "Ivroar Influence (Fate)");
  drawText(svg, rowX, 60, "House: ", signNameWithMeaning(nativity.moon));
  drawText(svg, rowX, 70, "Power: ", powerVerdict(nativity.moonLatitude));
  drawText(svg, headingX, 100, "Planetary Influences");
  drawPlanetRows(svg, nativity);
  drawText(svg, headingX, 200, "Elemental Influences");
  drawElementRows(svg, nativity);
  drawText(svg, headingX, 290, "Natal Forces (Origins)");
  drawText(svg, rowX, 300, "Dominant Sphere: ", aspectVerdict(nativity.ascendant, nativity));
  drawText(svg, rowX, 310, "Ascending Sign (Purpose): ", signNameWithMeaning(nativity.ascendant));
  drawText(svg, rowX, 320,
           "Descending Sign (Displacement): ", signNameWithMeaning(nativity.ascendant + astro::pi));
  drawNatalRows(svg, nativity);
  if (isTwistedKeep(nativity.planets)) {
    beginText(svg, headingX, 170, "9").endWithText("Twisted Keep!");
  } else {
    beginText(svg, headingX, 170, "6").endWithText("Straight Keep");
  }
}

}  // namespace veyruna::charts
