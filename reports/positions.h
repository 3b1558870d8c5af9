#pragma once

#include <array>
#include <span>
#include <string>
#include <string_view>

#include "astro/observer.h"
#include "astro/planet.h"

namespace veyruna::reports {

/// Where one moving body stands for an observer; angles in radians.
struct BodyPlace {
  std::string_view name;
  std::string_view bodyType;  ///< "Sun", "Moon", "Terrestrial" or "Gas Giant"
  double azimuth = 0.0;       ///< from the south point through west, from 0 to 2π
  double altitude = 0.0;      ///< above the horizon
  double ecLong = 0.0;        ///< ecliptic longitude; a planet's may be negative
};

/// All bodies in their fixed order: sun, moon (seen from the observer's place) and the planets.
std::array<BodyPlace, astro::bodyCount> bodyPlaces(const astro::Observer& observer);

/// The same as texts.
struct PositionRow {
  std::string name;
  std::string bodyType;  ///< "Sun", "Moon", "Terrestrial" or "Gas Giant"
  std::string azimuth;   ///< degrees and minutes, from the south point through west, 7 characters
  std::string altitude;  ///< degrees and minutes above the horizon, 7 characters
  std::string ecLong;    ///< ecliptic longitude, degrees and minutes; a planet's may be negative
  std::string sign;      ///< zodiac sign of that longitude, 11 characters
};

/// Those of all bodies, in the same order.
std::array<PositionRow, astro::bodyCount> positionRows(const astro::Observer& observer);

/// The rows as a table: two header lines, then one line a body. A name fills 13 characters.
/// No rows give the header lines alone.
std::string positionsTableText(std::span<const PositionRow> rows);

}  // namespace veyruna::reports
