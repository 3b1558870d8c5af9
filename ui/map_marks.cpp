#include "ui/map_marks.h"

#include <QPainter>
#include <algorithm>
#include <cmath>

namespace veyruna::ui {

namespace {

constexpr double dotRadius = 3.0;   ///< points
constexpr double ringRadius = 8.0;  ///< points
constexpr double reach = 8.0;       ///< points from a mark at which its name shows
constexpr QRgb ink = 0xff8b1a1a;    // a red that is seen on sea, land and parchment
constexpr QRgb outline = 0xfffff8e8;

void drawDot(QPainter& painter, QPointF centre) {
  painter.setPen(QPen(QColor(outline), 1.5));
  painter.setBrush(QColor(ink));
  painter.drawEllipse(centre, dotRadius, dotRadius);
}

void drawRing(QPainter& painter, QPointF centre) {
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(QColor(outline), 4.5));
  painter.drawEllipse(centre, ringRadius, ringRadius);
  painter.setPen(QPen(QColor(ink), 2.5));
  painter.drawEllipse(centre, ringRadius, ringRadius);
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

void drawMarks(QPainter& painter, const std::vector<MapMark>& marks, const Layout& layout,
               const QRectF& view) {
  const QRectF near =
      view.adjusted(-ringRadius * 2, -ringRadius * 2, ringRadius * 2, ringRadius * 2);
  for (const MapMark& mark : marks) {
    const std::optional<QPointF> centre = pointOf(mark.place, layout);
    if (centre && near.contains(*centre)) {
      drawDot(painter, *centre);
      if (mark.isSelected) {
        drawRing(painter, *centre);
      }
    }
  }
}

NameOnMap nameAt(QPointF point, const std::vector<MapMark>& marks, const Layout& layout) {
  NameOnMap nearest;
  double least = reach;
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
