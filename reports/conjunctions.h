#pragma once

#include <string>

#include "astro/planet.h"
#include "astro/planet_pair.h"
#include "reports/table_size.h"
#include "reports/text_sink.h"

namespace veyruna::reports {

/// Whether two ecliptic longitudes (radians, any finite values) stand less than 2° apart.
bool isConjunct(double a, double b);

/// One angle of moon, sun and planets, in radians.
struct BodyAngles {
  double moon = 0.0;
  double sun = 0.0;
  astro::PerPlanet<double> planets{};
};

/// All bodies at a moment, from the world's centre.
struct ConjunctionEntry {
  double baseTime = 0.0;  ///< days
  BodyAngles rightAscensions;
  BodyAngles longitudes;                        ///< ecliptic; a planet's may be negative
  astro::PerPlanetPair<bool> isConjunctPair{};  ///< in the order of astro::allPlanetPairs
};

/// What a line of the table is made of.
ConjunctionEntry conjunctionEntry(double baseTime);

/// The positions of moon, sun and planets, one line a moment, with a mark for every pair of planets
/// that stand together. The planets' columns stand crossed: their longitudes in the first block,
/// their right ascensions in the second.
/// It begins at `start`, in days of base time, and is the same everywhere on the world.
std::string conjunctionTable(double start, const TableSize& size);

/// The same table piece by piece; both header lines come in one piece.
void writeConjunctionTable(double start, const TableSize& size, const TextSink& sink);

}  // namespace veyruna::reports
