#include "ui/charts/chart_framing.h"

#include <algorithm>
#include <cmath>

#include "drawing/picture_painter.h"

namespace veyruna::ui {

namespace {

bool hasPlace(const ChartStage& stage) {
  return !stage.box.isEmpty() && !stage.view.isEmpty();
}

double fittedScale(const ChartStage& stage) {
  return std::min(stage.view.width() / stage.box.width(), stage.view.height() / stage.box.height());
}

/// A share of the box's length that is at most so far from its middle.
double nearMiddle(double share, double furthest) {
  return 0.5 + std::clamp(share - 0.5, -furthest, furthest);
}

QPointF shareOf(QPointF point, const QRectF& box) {
  return {(point.x() - box.left()) / box.width(), (point.y() - box.top()) / box.height()};
}

}  // namespace

ChartFraming withinReach(const ChartFraming& framing, const ChartStage& stage) {
  if (!hasPlace(stage) || !std::isfinite(framing.zoom) || !std::isfinite(framing.middle.x()) ||
      !std::isfinite(framing.middle.y())) {
    return {};
  }
  const double zoom = std::clamp(framing.zoom, 1.0, mostChartZoom);
  // So far that what is fitted, zoom times as large, still fills the view.
  const QSizeF slack = stage.view * ((zoom - 1.0) / (2.0 * zoom * fittedScale(stage)));
  return {zoom,
          {nearMiddle(framing.middle.x(), slack.width() / stage.box.width()),
           nearMiddle(framing.middle.y(), slack.height() / stage.box.height())}};
}

QRectF targetOf(const ChartFraming& framing, const ChartStage& stage) {
  if (!hasPlace(stage)) {
    return {};
  }
  const double scale = fittedScale(stage) * framing.zoom;
  const QPointF off((0.5 - framing.middle.x()) * stage.box.width() * scale,
                    (0.5 - framing.middle.y()) * stage.box.height() * scale);
  const QSizeF size = stage.view * framing.zoom;
  const QPointF middle = QRectF(QPointF(), stage.view).center() + off;
  return {middle - QPointF(size.width(), size.height()) / 2.0, size};
}

QTransform toView(const ChartFraming& framing, const ChartStage& stage) {
  return hasPlace(stage) ? drawing::PicturePainter::fitted(stage.box, targetOf(framing, stage))
                         : QTransform();
}

ChartFraming zoomedAbout(const ChartFraming& framing, double factor, QPointF anchor,
                         const ChartStage& stage) {
  if (!hasPlace(stage) || !std::isfinite(factor) || factor <= 0.0) {
    return framing;
  }
  const double zoom = std::clamp(framing.zoom * factor, 1.0, mostChartZoom);
  const QPointF share = shareOf(toView(framing, stage).inverted().map(anchor), stage.box);
  // What lies at the anchor stays, and all else comes or goes from there.
  return withinReach({zoom, share + (framing.middle - share) * (framing.zoom / zoom)}, stage);
}

ChartFraming draggedBy(const ChartFraming& framing, QPointF translation, const ChartStage& stage) {
  if (!hasPlace(stage)) {
    return framing;
  }
  const double scale = fittedScale(stage) * framing.zoom;
  return withinReach(
      {framing.zoom, framing.middle - QPointF(translation.x() / (scale * stage.box.width()),
                                              translation.y() / (scale * stage.box.height()))},
      stage);
}

ChartFraming fittedTo(const QRectF& part, const ChartStage& stage) {
  if (!hasPlace(stage) || part.isEmpty()) {
    return {};
  }
  const double scale =
      std::min(stage.view.width() / part.width(), stage.view.height() / part.height());
  return withinReach({scale / fittedScale(stage), shareOf(part.center(), stage.box)}, stage);
}

ChartFraming centredOn(const ChartFraming& framing, QPointF point, const ChartStage& stage) {
  return hasPlace(stage) ? withinReach({framing.zoom, shareOf(point, stage.box)}, stage) : framing;
}

}  // namespace veyruna::ui
