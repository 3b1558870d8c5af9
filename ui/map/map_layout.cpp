#include "ui/map/map_layout.h"

#include <algorithm>
#include <cmath>

namespace veyruna::ui {

namespace {

constexpr double aspectRatio = mapWidth / mapHeight;

QPointF cornerOf(QSizeF size) {
  return {size.width(), size.height()};
}

bool isEmpty(QSizeF view) {
  return view.width() == 0.0 || view.height() == 0.0;
}

}  // namespace

QSizeF fittedSize(QSizeF view) {
  if (view.width() / view.height() < aspectRatio) {
    return {view.width(), view.width() / aspectRatio};
  }
  return {view.height() * aspectRatio, view.height()};
}

Layout layoutOf(QSizeF view, const Framing& framing) {
  const QSizeF displaySize = fittedSize(view) * framing.zoom;
  return {cornerOf(view - displaySize) * 0.5 + framing.pan, displaySize};
}

std::optional<MapPlace> placeAt(QPointF point, const Layout& layout) {
  const QPointF inside = point - layout.origin;
  const QSizeF size = layout.displaySize;
  if (inside.x() < 0.0 || inside.x() > size.width() || inside.y() < 0.0 ||
      inside.y() > size.height()) {
    return std::nullopt;
  }
  // Where the picture has no size these are no numbers, and no place is there.
  return placeAtPixel(
      {inside.x() * mapWidth / size.width(), inside.y() * mapHeight / size.height()});
}

std::optional<QPointF> pointOf(const MapPlace& place, const Layout& layout) {
  const std::optional<QPointF> pixel = pixelOf(place);
  if (!pixel) {
    return std::nullopt;
  }
  return layout.origin + QPointF(pixel->x() * layout.displaySize.width() / mapWidth,
                                 pixel->y() * layout.displaySize.height() / mapHeight);
}

std::optional<Framing> zoomedBy(double factor, const Framing& framing, QPointF anchor, QSizeF view,
                                ZoomRange range) {
  const double zoom = std::clamp(framing.zoom * factor, range.least, range.most);
  if (std::isnan(zoom) || zoom == framing.zoom || isEmpty(view)) {
    return std::nullopt;
  }
  if (zoom == range.least) {
    return Framing{zoom, {}};
  }
  const QPointF reach = anchor - layoutOf(view, framing).origin;
  const QPointF origin = anchor - reach * (zoom / framing.zoom);
  return Framing{zoom, origin - cornerOf(view - fittedSize(view) * zoom) * 0.5};
}

Framing pinchedBy(double magnification, const Framing& framing, ZoomRange range) {
  const double zoom = std::clamp(framing.zoom * magnification, range.least, range.most);
  return {zoom, zoom == range.least ? QPointF() : framing.pan};
}

}  // namespace veyruna::ui
