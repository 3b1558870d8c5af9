#pragma once

#include <vector>

#include "charts/chart_mark.h"

/// Which mark of a chart is meant, by the pointer and by the arrow keys.
namespace veyruna::ui {

/// How far from a mark one still points at it, in points of the view.
inline constexpr double pointingReach = 25.0;

/// What is pointed at from a point of the chart: of all within reach the one with the least sum of
/// distance (in points of the view) and magnitude; of equals the first drawn. Null where there is
/// nothing. `pointsPerUnit`: how large the chart is shown.
const charts::ChartMark* markAt(const charts::ChartMarks& marks, charts::PagePoint point,
                                double pointsPerUnit);

enum class Direction { left, right, up, down };

/// The point of the chart that a mark is reached at: a line's beginning, of all else the middle.
charts::PagePoint anchorOf(const charts::ChartMark& mark);

/// The nearest of the marks that lies more to that side of `from` than to any other; null where
/// there is none. Of marks on one point each is the right neighbour of the one before it.
const charts::ChartMark* neighbourOf(const std::vector<const charts::ChartMark*>& marks,
                                     const charts::ChartMark& from, Direction direction);

/// The mark whose anchor is nearest; null of none.
const charts::ChartMark* nearestTo(const std::vector<const charts::ChartMark*>& marks,
                                   charts::PagePoint point);

}  // namespace veyruna::ui
