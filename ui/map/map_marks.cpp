#include "ui/map/map_marks.h"

#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <cmath>

namespace veyruna::ui {

namespace {

constexpr double dotRadius = 3.0;  ///< points
constexpr double nameReach = 8.0;  ///< points from a mark at which its name shows
constexpr QRgb ink = 0xff8b1a1a;   // a red that is seen on sea, land and parchment
constexpr QRgb outline = 0xfffff8e8;

constexpr QRgb ringInk = 0xff6a1b9a;  // violet: nothing on the map has it
constexpr double printedRim = 16.5;   ///< pixels of the picture: a printed place's radius
constexpr double leastRim = 3.2;      ///< points: room for the dot, however small the map
constexpr double mostRim = 512.0;     ///< points: more than any map at rest asks for

/// The radius in points from which on nothing is printed at a place.
double rimIn(const Layout& layout) {
  const double rim = printedRim * layout.displaySize.width() / mapWidth;
  return rim < mostRim ? std::max(leastRim, rim) : mostRim;
}

/// The line around the selected place, in points: clear of what is printed there, at every zoom.
struct Ring {
  explicit Ring(double rim)
      : width(2.0 + 0.065 * rim), halo(width + 1.8), radius(rim + 1.0 + halo * 0.5) {}

  double width;
  double halo;  ///< the width of the light line beneath it
  double radius;
};

/// An empty stamp for everything within `radius` points of its centre, which is the centre of its
/// middle pixel.
QImage stampOf(double radius, double pixelsPerPoint) {
  const int pixels = 2 * static_cast<int>(std::ceil(radius * pixelsPerPoint)) + 1;
  QImage stamp(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
  stamp.fill(Qt::transparent);
  return stamp;
}

/// A circle's line. Filled between two circles: a stroked one is a polygon that can be seen.
void fillRing(QPainter& painter, double radius, double width, QRgb color) {
  QPainterPath ring;
  ring.addEllipse(QPointF(), radius + width * 0.5, radius + width * 0.5);
  ring.addEllipse(QPointF(), radius - width * 0.5, radius - width * 0.5);
  painter.fillPath(ring, QColor(color));
}

/// Counts in points from the stamp's middle.
void prepareFor(QPainter& painter, const QImage& stamp, double pixelsPerPoint) {
  painter.setRenderHint(QPainter::Antialiasing);
  painter.translate(stamp.width() * 0.5, stamp.height() * 0.5);
  painter.scale(pixelsPerPoint, pixelsPerPoint);
}

QImage drawnDot(double pixelsPerPoint) {
  QImage stamp = stampOf(dotRadius + 1.0, pixelsPerPoint);
  QPainter painter(&stamp);
  prepareFor(painter, stamp, pixelsPerPoint);
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(ink));
  painter.drawEllipse(QPointF(), dotRadius, dotRadius);
  fillRing(painter, dotRadius, 1.5, outline);
  return stamp;
}

QImage drawnRing(const Ring& ring, double pixelsPerPoint) {
  QImage stamp = stampOf(ring.radius + ring.halo, pixelsPerPoint);
  QPainter painter(&stamp);
  prepareFor(painter, stamp, pixelsPerPoint);
  fillRing(painter, ring.radius, ring.halo, outline);
  fillRing(painter, ring.radius, ring.width, ringInk);
  return stamp;
}

/// False also where a coordinate is no number, as in a map enlarged beyond all bounds.
bool isInside(QPointF point, const QRectF& rect) {
  return point.x() >= rect.left() && point.x() <= rect.right() && point.y() >= rect.top() &&
         point.y() <= rect.bottom();
}

/// The stamp's corner where its middle pixel is the one the centre lies in.
QPoint cornerFor(const QImage& stamp, QPointF centre) {
  return QPoint(static_cast<int>(std::floor(centre.x())),
                static_cast<int>(std::floor(centre.y()))) -
         QPoint(stamp.width() / 2, stamp.height() / 2);
}

}  // namespace

std::vector<MapMark> marksOf(const model::AstronomyModel& model) {
  std::vector<MapMark> marks;
  for (const model::CityPreset& city : model.cities()) {
    const bool isSelected = city.id == model.selectedCityID();
    if (city.id != model::manualCityID()) {
      marks.push_back({{city.latitude, city.longitude}, city.name, isSelected});
    } else if (isSelected) {
      marks.push_back({{model.effectiveLatitude(), model.effectiveLongitude()}, {}, true});
    }
  }
  return marks;
}

void MarkStamps::draw(QPainter& painter, const std::vector<MapMark>& marks, const Layout& layout,
                      const QTransform& toDevice, const QRect& view) {
  prepare(toDevice.m11(), rimIn(layout));
  const int reach = ring_.width();
  const QRectF near = view.adjusted(-reach, -reach, reach, reach);
  for (const MapMark& mark : marks) {
    const std::optional<QPointF> point = pointOf(mark.place, layout);
    if (!point) {
      continue;
    }
    const QPointF centre = toDevice.map(*point);
    if (isInside(centre, near)) {
      painter.drawImage(cornerFor(dot_, centre), dot_);
      if (mark.isSelected) {
        painter.drawImage(cornerFor(ring_, centre), ring_);
      }
    }
  }
}

void MarkStamps::prepare(double pixelsPerPoint, double rim) {
  if (pixelsPerPoint != pixelsPerPoint_) {
    dot_ = drawnDot(pixelsPerPoint);
  }
  if (pixelsPerPoint != pixelsPerPoint_ || rim != rim_) {
    ring_ = drawnRing(Ring(rim), pixelsPerPoint);
  }
  pixelsPerPoint_ = pixelsPerPoint;
  rim_ = rim;
}

NameOnMap nameAt(QPointF point, const std::vector<MapMark>& marks, const Layout& layout) {
  NameOnMap nearest;
  double least = nameReach;
  for (const MapMark& mark : marks) {
    const std::optional<QPointF> centre = pointOf(mark.place, layout);
    if (!centre || mark.name.isEmpty()) {
      continue;
    }
    const double distance = std::hypot(centre->x() - point.x(), centre->y() - point.y());
    if (distance == least && !nearest.text.isEmpty()) {
      nearest.text += QLatin1Char('\n') + mark.name;
    } else if (distance <= least) {
      nearest = {mark.name, *centre};
      least = distance;
    }
  }
  return nearest;
}

}  // namespace veyruna::ui
