#pragma once

#include <QImage>
#include <QPointF>
#include <QRect>
#include <QString>
#include <QTransform>
#include <vector>

#include "model/astronomy_model.h"
#include "ui/map/map_layout.h"

class QPainter;

namespace veyruna::ui {

/// A place marked on the map.
struct MapMark {
  MapPlace place;
  QString name;             ///< shown while the pointer is over the mark; empty: nothing is
  bool isSelected = false;  ///< the place the sky is asked for
};

/// The saved places, and the manual one while it is selected, in the mapped area or not. A
/// selection whose place is gone marks nothing.
std::vector<MapMark> marksOf(const model::AstronomyModel& model);

/// What a mark looks like, drawn once for a screen's scale factor and a size of the map, and
/// stamped from then on: frames must not cost more for being marked.
class MarkStamps {
 public:
  /// Draws those marks that touch the view: a dot for each, around the selected one a ring that
  /// stands outside what is printed there, their centres on the nearest device pixel. The painter
  /// counts in device pixels; `toDevice` leads there from the layout's points.
  void draw(QPainter& painter, const std::vector<MapMark>& marks, const Layout& layout,
            const QTransform& toDevice, const QRect& view);

 private:
  void prepare(double pixelsPerPoint, double rim);

  double pixelsPerPoint_ = 0.0;
  double rim_ = 0.0;
  QImage dot_;
  QImage ring_;
};

/// A name and where its mark lies; the text is empty where there is none.
struct NameOnMap {
  QString text;
  QPointF mark;
};

/// The name of the mark nearest to a point, within eight points; those of several marks at one
/// spot, each on a line.
NameOnMap nameAt(QPointF point, const std::vector<MapMark>& marks, const Layout& layout);

}  // namespace veyruna::ui
