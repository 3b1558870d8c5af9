#pragma once

#include <string_view>

#include "charts/projection.h"
#include "charts/svg_writer.h"

namespace veyruna::charts {

/// A star, sun or planet on a chart: a dot and a name.
struct BodyMarker {
  ProjectedPoint at;
  std::string_view label;  ///< none is written when empty or beginning with "_"
  std::string_view color;
  double size;  ///< radius of the dot, 0 for none

  [[nodiscard]] bool hasLabel() const { return !label.empty() && !label.starts_with('_'); }
};

/// The size of the letters of all names.
inline constexpr double labelSize = 5.0;

/// Where the name beside a dot begins, on its base line.
PagePoint labelBegin(const BodyMarker& marker);

/// The dot at the point rounded to whole units; nothing for size 0.
void drawDot(SvgWriter& svg, const BodyMarker& marker);

/// The name to the upper right of the dot, or centred on the point where there is no dot.
void drawLabel(SvgWriter& svg, const BodyMarker& marker);

/// A name of size 5 that begins at `at`.
void drawLabelAt(SvgWriter& svg, PagePoint at, std::string_view color, std::string_view label);

}  // namespace veyruna::charts
