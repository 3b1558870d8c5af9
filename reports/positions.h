#pragma once

#include <array>
#include <span>
#include <string>

#include "astro/observer.h"
#include "astro/planet.h"

namespace veyruna::reports {

/// One moving body as an observer sees it.
struct PositionRow {
  std::string name;
  std::string bodyType;  ///< "Sun", "Moon", "Terrestrial" or "Gas Giant"
  std::string azimuth;   ///< degrees and minutes, from the south point through west, 7 characters
  std::string altitude;  ///< degrees and minutes above the horizon, 7 characters
  std::string ecLong;    ///< ecliptic longitude, degrees and minutes; a planet's may be negative
  std::string sign;      ///< zodiac sign of that longitude, 11 characters
};

/// All bodies in their fixed order: sun, moon (seen from the observer's place) and the planets.
std::array<PositionRow, astro::bodyCount> positionRows(const astro::Observer& observer);

/// The rows as a table: two header lines, then one line a body. A name fills 13 characters.
/// No rows give the header lines alone.
std::string positionsTableText(std::span<const PositionRow> rows);

}  // namespace veyruna::reports
