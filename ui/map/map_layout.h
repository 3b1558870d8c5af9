#pragma once

#include <QPointF>
#include <QSizeF>
#include <optional>

#include "ui/map/map_projection.h"

/// Where the map lies in its view. Views are measured in points (device-independent pixels) from
/// their top-left corner; a view may be empty, and the map then has no size and no place in it.
namespace veyruna::ui {

/// Where the picture is shown: its top-left corner and its size, in the view's points. The corner
/// may lie far outside the view.
struct Layout {
  QPointF origin;
  QSizeF displaySize;
};

/// How a person has moved the map: enlarged beyond the size that fits the view, and shifted from
/// the view's centre by points.
struct Framing {
  double zoom = 1.0;
  QPointF pan;
};

/// The smallest and the largest zoom a framing may come to rest at.
struct ZoomRange {
  double least;
  double most;
};

/// The picture's size where it just fits into the view.
QSizeF fittedSize(QSizeF view);

/// The layout of a framing, pinched and dragged as it stands.
Layout layoutOf(QSizeF view, const Framing& framing);

/// The place under a point of the view; nothing outside the picture or the mapped area.
std::optional<MapPlace> placeAt(QPointF point, const Layout& layout);

/// The point of the view where a place lies, in sight or not; nothing for a place the
/// picture does not show.
std::optional<QPointF> pointOf(const MapPlace& place, const Layout& layout);

/// The framing enlarged by a factor within the range, with the point of the picture that lies at
/// `anchor` kept there; at the range's least zoom, the picture centred. Nothing where the zoom
/// stays as it is, the view is empty or the factor is no number.
std::optional<Framing> zoomedBy(double factor, const Framing& framing, QPointF anchor, QSizeF view,
                                ZoomRange range);

/// The framing a pinch of that magnification leaves behind: the zoom brought into the range, the
/// pan as it was; at the range's least zoom, the picture centred.
Framing pinchedBy(double magnification, const Framing& framing, ZoomRange range);

}  // namespace veyruna::ui
