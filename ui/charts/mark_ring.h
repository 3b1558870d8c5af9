#pragma once

#include <QPainter>
#include <QPainterPath>
#include <QTransform>

#include "charts/chart_mark.h"

namespace veyruna::ui {

/// Why a mark has a ring around it.
enum class RingKind {
  pointed,   ///< thin: the read-out speaks of it
  focused,   ///< dashed: the arrow keys have come to it
  selected,  ///< thick and coloured
};

/// The outline around a mark, in points of the view.
QPainterPath ringAround(const charts::ChartMark& mark, const QTransform& chartToView);

/// Draws it so that it is seen on any ground.
void paintRing(QPainter& painter, const QPainterPath& ring, RingKind kind);

/// What is painted of it at most.
QRectF boundsOfRing(const QPainterPath& ring);

}  // namespace veyruna::ui
