#pragma once

#include <QPointF>

#include "charts/projection.h"

namespace veyruna::ui {

/// A point of the chart as Qt has it, and back.
inline QPointF pointOf(charts::PagePoint point) {
  return {point.x, point.y};
}
inline charts::PagePoint pagePoint(QPointF point) {
  return {point.x(), point.y()};
}

}  // namespace veyruna::ui
