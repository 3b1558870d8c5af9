#include "charts/stretch.h"

#include <algorithm>
#include <cmath>

namespace veyruna::charts {

namespace {

/// Of the size of the letters: how wide they are one with another, how high their middle stands
/// above the base line, and how far they reach up and down from there.
constexpr double letterWidth = 0.5;
constexpr double letterMiddle = 0.35;
constexpr double letterReach = 0.45;

double widthOf(std::string_view utf8, double size) {
  const auto letters = std::ranges::count_if(
      utf8, [](char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U; });
  return static_cast<double>(letters) * letterWidth * size;
}

}  // namespace

double Stretch::distanceTo(PagePoint point) const {
  const double dx = to.x - from.x;
  const double dy = to.y - from.y;
  const double squared = dx * dx + dy * dy;
  const double along =
      squared > 0.0
          ? std::clamp(((point.x - from.x) * dx + (point.y - from.y) * dy) / squared, 0.0, 1.0)
          : 0.0;
  return std::max(
      0.0, std::hypot(point.x - from.x - along * dx, point.y - from.y - along * dy) - radius);
}

Stretch letteringAt(PagePoint begin, std::string_view text, double size) {
  const double y = begin.y - letterMiddle * size;
  return {{begin.x, y}, {begin.x + widthOf(text, size), y}, letterReach * size};
}

Stretch letteringAbout(PagePoint middle, std::string_view text, double size) {
  return letteringAt({middle.x - widthOf(text, size) / 2.0, middle.y}, text, size);
}

Stretch letteringAlong(double circleRadius, double beginning, std::string_view text, double size) {
  const double radius = circleRadius + letterMiddle * size;
  const auto at = [radius](double angle) {
    return PagePoint{centre + radius * std::sin(angle), centre - radius * std::cos(angle)};
  };
  return {at(beginning), at(beginning + widthOf(text, size) / circleRadius), letterReach * size};
}

}  // namespace veyruna::charts
