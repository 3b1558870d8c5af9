// k half width of the lit part's inner edge: positive for a crescent, negative beyond half moon.
#include "charts/moon_glyph.h"

#include <cmath>
#include <string>

#include "astro/angle.h"
#include "astro/number_text.h"
#include "charts/body_marker.h"

namespace veyruna::charts {

namespace {

constexpr double moonRadius = 5.0;

/// "x,y" with two decimals each.
void appendPoint(std::string& out, double x, double y) {
  astro::appendFixed(out, x, 2);
  out += ',';
  astro::appendFixed(out, y, 2);
}

/// The outline of the lit part: the limb's half circle down, the shadow's edge up again.
std::string litOutline(const MoonGlyph& moon) {
  const double e = astro::wrappedToTurn(moon.elongation);
  const double k = moonRadius * std::cos(e <= astro::pi ? e : astro::twoPi - e);
  std::string path = "M ";
  appendPoint(path, moon.at.x, moon.at.y - moonRadius);
  path += " A 5.00,5.00 0 0,1 ";
  appendPoint(path, moon.at.x, moon.at.y + moonRadius);
  path += " A ";
  appendPoint(path, std::abs(k), moonRadius);
  path += k <= 0.0 ? " 0 0,1 " : " 0 0,0 ";
  appendPoint(path, moon.at.x, moon.at.y - moonRadius);
  path += " Z";
  return path;
}

std::string rotationTowardSun(const MoonGlyph& moon) {
  const double angle = std::atan2(moon.sun.y - moon.at.y, moon.sun.x - moon.at.x);
  std::string transform = "rotate(";
  astro::appendFixed(transform, astro::degreesOf(angle), 2);
  transform += ", ";
  astro::appendFixed(transform, moon.at.x, 2);
  transform += ", ";
  astro::appendFixed(transform, moon.at.y, 2);
  transform += ')';
  return transform;
}

PagePoint moonLabelBegin(const MoonGlyph& moon) {
  return {moon.at.x + 2.0 * moonRadius, moon.at.y - moonRadius};
}

}  // namespace

DrawnMarker drawn(const MoonGlyph& moon) {
  return {Stretch{moon.at, moon.at, moonRadius},
          letteringAt(moonLabelBegin(moon), moonLabel, labelSize)};
}

void drawMoon(SvgWriter& svg, const MoonGlyph& moon, std::string_view labelColor) {
  svg.element("g").attribute("transform", rotationTowardSun(moon)).endStartTag();
  svg.element("circle")
      .attribute("cx", Fixed{moon.at.x, 2})
      .attribute("cy", Fixed{moon.at.y, 2})
      .attribute("r", Fixed{moonRadius, 2})
      .attribute("fill", "#3a3a3a")
      .endEmpty();
  svg.element("path").attribute("d", litOutline(moon)).attribute("fill", moon.litColor).endEmpty();
  svg.markup("</g>\n");
  drawLabelAt(svg, moonLabelBegin(moon), labelColor, moonLabel);
}

}  // namespace veyruna::charts
