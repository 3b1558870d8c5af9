#pragma once

#include <string_view>

#include "charts/projection.h"

namespace veyruna::charts {

/// A part of the page: what lies within `radius` of the line between two points, in the chart's
/// units. A dot is one whose two points are one.
struct Stretch {
  PagePoint from;
  PagePoint to;
  double radius;

  /// From a point of the page to the edge; 0 inside.
  [[nodiscard]] double distanceTo(PagePoint point) const;
  [[nodiscard]] PagePoint middle() const { return {(from.x + to.x) / 2.0, (from.y + to.y) / 2.0}; }
};

/// Where letters of this size lie, about: they begin at `begin` on their base line. How wide
/// letters really are is known to who paints them.
Stretch letteringAt(PagePoint begin, std::string_view text, double size);

/// The same for letters that stand to both sides of `middle`.
Stretch letteringAbout(PagePoint middle, std::string_view text, double size);

/// The same for letters that run clockwise along a circle about the disc's centre, their base line
/// on it, from `beginning` on (radians clockwise from the top).
Stretch letteringAlong(double circleRadius, double beginning, std::string_view text, double size);

}  // namespace veyruna::charts
