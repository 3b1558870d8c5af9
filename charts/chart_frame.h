#pragma once

#include <cstdint>
#include <string_view>

#include "astro/observer.h"
#include "charts/projection.h"
#include "charts/svg_writer.h"

/// What both charts have: the grid of the disc, the header lines, plain lines and texts.
namespace veyruna::charts {

/// How a line is drawn; an empty opacity writes none.
struct LineStyle {
  std::string_view color;
  std::string_view width;
  std::string_view opacity = {};
};

/// A line between two points, its coordinates with the given number of decimals.
void drawLine(SvgWriter& svg, PagePoint from, PagePoint to, int decimals, const LineStyle& style);

/// Begins a text at whole coordinates in the given size, in the charts' grey; the caller ends it.
SvgWriter& beginText(SvgWriter& svg, std::int64_t x, std::int64_t y, std::string_view size);

/// The red circles at 30°, 60° and 90° from the rim's pole, the cross and the diagonal spokes.
void drawGrid(SvgWriter& svg);

/// The two header lines both charts share: the moment with its local time, and the place.
void drawHeader(SvgWriter& svg, const astro::Observer& observer);

}  // namespace veyruna::charts
