#include "drawing/picture.h"

#include <cmath>

#include "astro/angle.h"

namespace veyruna::drawing {

QPainterPath circlePath(QPointF centre, double radius) {
  constexpr int arcs = 8;
  const double step = astro::twoPi / arcs;
  const double reach = 4.0 / 3.0 * std::tan(step / 4.0) * radius;
  const auto at = [&](int arc) {
    const double angle = arc * step;
    return QPointF(std::cos(angle), std::sin(angle));
  };
  QPainterPath path(centre + radius * at(0));
  for (int arc = 0; arc < arcs; ++arc) {
    const QPointF from = at(arc);
    const QPointF to = at(arc + 1);
    path.cubicTo(centre + radius * from + reach * QPointF(-from.y(), from.x()),
                 centre + radius * to - reach * QPointF(-to.y(), to.x()), centre + radius * to);
  }
  path.closeSubpath();
  return path;
}

}  // namespace veyruna::drawing
