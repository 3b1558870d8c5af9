#include "charts/chart_frame.h"

#include <string>

#include "astro/arc.h"
#include "astro/local_time.h"
#include "charts/ink.h"

namespace veyruna::charts {

void drawLine(SvgWriter& svg, PagePoint from, PagePoint to, int decimals, const LineStyle& style) {
  svg.element("line")
      .attribute("x1", Fixed{from.x, decimals})
      .attribute("y1", Fixed{from.y, decimals})
      .attribute("x2", Fixed{to.x, decimals})
      .attribute("y2", Fixed{to.y, decimals})
      .attribute("stroke", style.color)
      .attribute("stroke-width", style.width);
  if (!style.opacity.empty()) {
    svg.attribute("opacity", style.opacity);
  }
  svg.endEmpty();
}

SvgWriter& beginText(SvgWriter& svg, std::int64_t x, std::int64_t y, std::string_view size) {
  return svg.element("text")
      .attribute("x", x)
      .attribute("y", y)
      .attribute("fill", textColor)
      .attribute("font-family", "Arial")
      .attribute("font-size", size);
}

void drawGrid(SvgWriter& svg) {
  svg.markup(
      R"(<circle cx="180" cy="180" r="135" fill="none" stroke="red" stroke-width="0.3" />
<circle cx="180" cy="180" r="90" fill="none" stroke="red" stroke-width="0.3" />
<circle cx="180" cy="180" r="45" fill="none" stroke="red" stroke-width="0.3" />
<line x1="0" y1="180" x2="360" y2="180" stroke="red" stroke-width="0.3" />
<line x1="180" y1="0" x2="180" y2="360" stroke="red" stroke-width="0.3" />
<line x1="52.7" y1="52.7" x2="116.4" y2="116.4" stroke="red" stroke-width="0.3" />
<line x1="52.7" y1="307.3" x2="116.4" y2="243.6" stroke="red" stroke-width="0.3" />
<line x1="307.3" y1="52.7" x2="243.6" y2="116.4" stroke="red" stroke-width="0.3" />
<line x1="307.3" y1="307.3" x2="243.6" y2="243.6" stroke="red" stroke-width="0.3" />
)");
}

void drawHeader(SvgWriter& svg, const astro::Observer& observer) {
  beginText(svg, 0, 8, "6").endWithText("\n" + astro::calendarLabelWithLocalClock(observer) + "\n");
  beginText(svg, 0, 18, "6")
      .endWithText("Lat: " + astro::Arc(observer.latitude).degMinSecText() +
                   "  Long: " + astro::Arc(observer.longitude).degMinSecText() + "\n");
}

}  // namespace veyruna::charts
