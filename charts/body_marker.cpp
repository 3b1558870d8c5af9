#include "charts/body_marker.h"

namespace veyruna::charts {

namespace {

/// The labels' attributes stand two blanks apart.
SvgWriter& labelStyle(SvgWriter& svg, std::string_view color) {
  return svg.blank()
      .attribute("fill", color)
      .blank()
      .attribute("font-family", "Arial")
      .attribute("font-size", "5");
}

}  // namespace

PagePoint labelBegin(const BodyMarker& marker) {
  const PagePoint at = marker.at.rounded();
  return {at.x + 2.0 * marker.size, at.y - marker.size};
}

void drawDot(SvgWriter& svg, const BodyMarker& marker) {
  if (marker.size <= 0.0) {
    return;
  }
  svg.element("circle")
      .attribute("cx", marker.at.roundedX())
      .attribute("cy", marker.at.roundedY())
      .attribute("r", Fixed{marker.size, 2})
      .attribute("fill", marker.color)
      .endEmpty();
}

void drawLabel(SvgWriter& svg, const BodyMarker& marker) {
  if (marker.size != 0.0) {
    drawLabelAt(svg, labelBegin(marker), marker.color, marker.label);
    return;
  }
  svg.element("text").attribute("x", marker.at.roundedX()).attribute("y", marker.at.roundedY());
  labelStyle(svg, marker.color).attribute("text-anchor", "middle").endWithText(marker.label);
}

void drawLabelAt(SvgWriter& svg, PagePoint at, std::string_view color, std::string_view label) {
  svg.element("text").attribute("x", Fixed{at.x, 2}).attribute("y", Fixed{at.y, 2});
  labelStyle(svg, color).endWithText(label);
}

}  // namespace veyruna::charts
