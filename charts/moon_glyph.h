#pragma once

#include <string_view>

#include "charts/mark_recorder.h"
#include "charts/projection.h"
#include "charts/svg_writer.h"

namespace veyruna::charts {

/// The moon with its phase: a dark disc of radius 5 and the lit part, turned toward the sun's
/// point.
struct MoonGlyph {
  PagePoint at;
  PagePoint sun;      ///< where the sun is drawn, or would be
  double elongation;  ///< longitude of the moon less that of the sun, radians
  std::string_view litColor;
};

/// The moon's name as the charts write it.
inline constexpr std::string_view moonLabel = "IVRO";

/// Where the moon and its name are drawn.
DrawnMarker drawn(const MoonGlyph& moon);

/// Draws the moon; its name beside it is drawn in `labelColor`.
void drawMoon(SvgWriter& svg, const MoonGlyph& moon, std::string_view labelColor);

}  // namespace veyruna::charts
