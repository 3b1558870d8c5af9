#include "ui/charts/mark_ring.h"

#include <QColor>
#include <QPen>
#include <algorithm>

#include "ui/charts/page_points.h"

namespace veyruna::ui {

namespace {

constexpr double clearance = 4.0;    ///< between a thing and its ring
constexpr double leastRadius = 8.0;  ///< of a ring
constexpr double halo = 2.5;         ///< light to both sides of the dark line

double thicknessOf(RingKind kind) {
  switch (kind) {
    case RingKind::pointed:
      return 1.0;
    case RingKind::focused:
      return 2.0;
    case RingKind::selected:
      return 3.0;
  }
  return 0.0;
}

}  // namespace

QPainterPath ringAround(const charts::ChartMark& mark, const QTransform& chartToView) {
  const charts::Stretch& thing = (mark.dots.empty() ? mark.letters : mark.dots).front();
  const QPointF from = chartToView.map(pointOf(thing.from));
  const QPointF to = chartToView.map(pointOf(thing.to));
  const double radius = std::max(thing.radius * chartToView.m11() + clearance, leastRadius);
  QPainterPath ring;
  if (from == to) {
    ring.addEllipse(from, radius, radius);
    return ring;
  }
  QPainterPath line(from);
  line.lineTo(to);
  QPainterPathStroker around;
  around.setWidth(2.0 * radius);
  around.setCapStyle(Qt::RoundCap);
  return around.createStroke(line);
}

void paintRing(QPainter& painter, const QPainterPath& ring, RingKind kind) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  const double thickness = thicknessOf(kind);
  painter.strokePath(ring, QPen(QColor(255, 255, 255, 220), thickness + halo));
  const QColor ink = kind == RingKind::selected ? QColor(0xc2, 0x18, 0x5b) : QColor(Qt::black);
  painter.strokePath(
      ring, QPen(ink, thickness, kind == RingKind::focused ? Qt::DashLine : Qt::SolidLine));
  painter.restore();
}

QRectF boundsOfRing(const QPainterPath& ring) {
  constexpr double reach = 4.0;
  return ring.boundingRect().adjusted(-reach, -reach, reach, reach);
}

}  // namespace veyruna::ui
