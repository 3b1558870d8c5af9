#pragma once

#include <QPointF>
#include <optional>

#include "astro/angle.h"

/// The map of Tamsorel as its draughtsman laid it out: a sinusoidal projection, every parallel
/// straight and true to length. Pixels count from the picture's top-left corner, x to the right and
/// y downward; they are no whole numbers.
namespace veyruna::ui {

inline constexpr double mapWidth = 4316.0;   ///< pixels
inline constexpr double mapHeight = 3266.0;  ///< pixels

inline constexpr double equatorRow = 3194.0;             ///< pixels
inline constexpr double centralMeridianColumn = 1768.0;  ///< pixels

/// Along a meridian: 52.15 pixels to the degree.
inline constexpr double pixelsPerLatitude = 52.15 * 180.0 / astro::pi;
/// Along the equator: 470 pixels to nine degrees. Along a parallel, times the latitude's cosine.
inline constexpr double pixelsPerLongitude = 470.0 / 9.0 * 180.0 / astro::pi;

/// What is mapped: from the equator to 60° north, and 45° to either side of the central meridian.
inline constexpr double northernmost = astro::pi / 3.0;
inline constexpr double easternmost = astro::pi / 4.0;

/// A place on the map: radians, north and east positive.
struct MapPlace {
  double latitude = 0.0;
  double longitude = 0.0;
};

/// The place at a pixel; nothing outside the mapped area or where a coordinate is no number.
std::optional<MapPlace> placeAtPixel(QPointF pixel);

/// The pixel of a place; nothing outside the mapped area, beyond the picture's western edge, which
/// cuts it off, or where an angle is no number.
std::optional<QPointF> pixelOf(const MapPlace& place);

}  // namespace veyruna::ui
