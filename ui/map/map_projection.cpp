// φ latitude, λ longitude, x and y pixels:
//   y = equatorRow − φ · pixelsPerLatitude
//   x = centralMeridianColumn + λ · pixelsPerLongitude · cos φ
#include "ui/map/map_projection.h"

#include <cmath>

namespace veyruna::ui {

namespace {

/// False also where an angle is no number.
bool isMapped(const MapPlace& place) {
  return place.latitude >= 0.0 && place.latitude <= northernmost &&
         place.longitude >= -easternmost && place.longitude <= easternmost;
}

}  // namespace

std::optional<MapPlace> placeAtPixel(QPointF pixel) {
  const double latitude = (equatorRow - pixel.y()) / pixelsPerLatitude;
  const double longitude =
      (pixel.x() - centralMeridianColumn) / (pixelsPerLongitude * std::cos(latitude));
  const MapPlace place{latitude, longitude};
  return isMapped(place) ? std::optional(place) : std::nullopt;
}

std::optional<QPointF> pixelOf(const MapPlace& place) {
  if (!isMapped(place)) {
    return std::nullopt;
  }
  const QPointF pixel(
      centralMeridianColumn + place.longitude * pixelsPerLongitude * std::cos(place.latitude),
      equatorRow - place.latitude * pixelsPerLatitude);
  return pixel.x() >= 0.0 && pixel.x() <= mapWidth ? std::optional(pixel) : std::nullopt;
}

}  // namespace veyruna::ui
