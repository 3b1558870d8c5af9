#include "ui/charts/hit_test.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace veyruna::ui {

namespace {

using charts::ChartMark;
using charts::PagePoint;
using charts::Stretch;

constexpr double nothing = std::numeric_limits<double>::infinity();

/// What pointing at one of the stretches costs: its distance and the magnitude.
double costOf(const std::vector<Stretch>& stretches, double magnitude, PagePoint point,
              double pointsPerUnit) {
  double least = nothing;
  for (const Stretch& stretch : stretches) {
    const double distance = stretch.distanceTo(point) * pointsPerUnit;
    if (distance <= pointingReach) {
      least = std::min(least, distance + magnitude);
    }
  }
  return least;
}

double costOf(const ChartMark& mark, PagePoint point, double pointsPerUnit) {
  // A name lies over stars, whatever it belongs to.
  const double lettersMagnitude = std::max(mark.magnitude, mark.kind == charts::MarkKind::panelLine
                                                               ? charts::panelLineMagnitude
                                                               : charts::overStarsMagnitude);
  return std::min(costOf(mark.dots, mark.magnitude, point, pointsPerUnit),
                  costOf(mark.letters, lettersMagnitude, point, pointsPerUnit));
}

/// The side on which (dx, dy) lies most; y points down. Just between two it is above or below.
Direction sideOf(double dx, double dy) {
  if (std::abs(dx) > std::abs(dy)) {
    return dx < 0.0 ? Direction::left : Direction::right;
  }
  return dy < 0.0 ? Direction::up : Direction::down;
}

}  // namespace

const ChartMark* markAt(const charts::ChartMarks& marks, PagePoint point, double pointsPerUnit) {
  const ChartMark* best = nullptr;
  double least = nothing;
  for (const ChartMark& mark : marks) {
    const double cost = costOf(mark, point, pointsPerUnit);
    if (cost < least) {
      least = cost;
      best = &mark;
    }
  }
  return best;
}

PagePoint anchorOf(const ChartMark& mark) {
  return mark.kind == charts::MarkKind::panelLine ? mark.letters.front().from : mark.middle();
}

const ChartMark* neighbourOf(const std::vector<const ChartMark*>& marks, const ChartMark& from,
                             Direction direction) {
  const PagePoint here = anchorOf(from);
  const ChartMark* best = nullptr;
  double least = nothing;
  const ChartMark* lastOnThisPoint = nullptr;
  bool isBefore = true;  // `from` in the order of the marks
  for (const ChartMark* const mark : marks) {
    if (mark->kind == from.kind && mark->ordinal == from.ordinal) {
      isBefore = false;
      continue;
    }
    const PagePoint there = anchorOf(*mark);
    const double dx = there.x - here.x;
    const double dy = there.y - here.y;
    if (dx == 0.0 && dy == 0.0) {
      if (isBefore) {
        lastOnThisPoint = mark;
      } else if (direction == Direction::right) {
        return mark;
      }
    } else if (sideOf(dx, dy) == direction && std::hypot(dx, dy) < least) {
      least = std::hypot(dx, dy);
      best = mark;
    }
  }
  return direction == Direction::left && lastOnThisPoint != nullptr ? lastOnThisPoint : best;
}

const ChartMark* nearestTo(const std::vector<const ChartMark*>& marks, PagePoint point) {
  const auto distance = [point](const ChartMark* mark) {
    const PagePoint at = anchorOf(*mark);
    return std::hypot(at.x - point.x, at.y - point.y);
  };
  const auto nearest = std::ranges::min_element(marks, {}, distance);
  return nearest == marks.end() ? nullptr : *nearest;
}

}  // namespace veyruna::ui
