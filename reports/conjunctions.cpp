#include "reports/conjunctions.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "astro/angle.h"
#include "astro/arc.h"
#include "astro/calendar.h"
#include "astro/moon.h"
#include "astro/planet_pair.h"
#include "astro/rotation.h"
#include "astro/sun.h"
#include "reports/table_rows.h"

namespace veyruna::reports {

namespace {

constexpr std::string_view conjunctionsHeader =
    "                      EQUATORIAL COORDINATES                                  ECLIPTIC "
    "COORDINATES                                 CONJUNCTIONS\n"
    "YR MO DAY TIME        IVRO     THESSIL BRALO    DUNMOR    GALVI    PALLOX     IVRO     "
    "THESSIL "
    " BRALO    DUNMOR   GALVI    PALLOX   (+/- 1 deg)\n";

/// 2°, and its mirror across the seam at ±180°, in radians.
constexpr double closest = 0.03490658503988659;
constexpr double acrossSeam = 6.2482787221397;

/// Whether `name` stands at a place of the header, in capitals and as a whole word.
constexpr bool isInCapitals(std::string_view name, std::string_view headerFromThere) {
  for (const char letter : name) {
    const char capital = letter >= 'a' ? static_cast<char>(letter - 'a' + 'A') : letter;
    if (headerFromThere.empty() || headerFromThere.front() != capital) {
      return false;
    }
    headerFromThere.remove_prefix(1);
  }
  return headerFromThere.starts_with(' ');
}

/// Every body has a column of either block.
constexpr bool isInBothBlocks(std::string_view name) {
  int columns = 0;
  for (std::size_t place = 0; place < conjunctionsHeader.size(); ++place) {
    columns += isInCapitals(name, conjunctionsHeader.substr(place)) ? 1 : 0;
  }
  return columns == 2;
}
static_assert(std::ranges::all_of(astro::planetFacts, isInBothBlocks, &astro::PlanetFacts::name),
              "a planet has no columns in the header");
static_assert(isInBothBlocks(astro::sunName) && isInBothBlocks(astro::moonName));

void appendAngle(std::string& out, double angle) {
  astro::Arc(angle).appendDegMinText(out);
  out += "  ";
}

/// The columns of moon, sun and planets, in this order.
void appendBlock(std::string& out, const BodyAngles& angles) {
  appendAngle(out, angles.moon);
  appendAngle(out, angles.sun);
  for (const double angle : angles.planets) {
    appendAngle(out, angle);
  }
}

double rightAscensionOf(const astro::Vec3D& ecliptic) {
  return astro::longitudeOf(astro::product(astro::eclipticToEquatorial, ecliptic.v));
}

void appendRow(std::string& out, double t) {
  const ConjunctionEntry entry = conjunctionEntry(t);
  astro::appendCalendarLabel(out, t);
  out += "  ";
  // The planets' columns stand crossed; see conjunctionTable.
  BodyAngles first = entry.rightAscensions;
  BodyAngles second = entry.longitudes;
  std::swap(first.planets, second.planets);
  appendBlock(out, first);
  out += "  ";
  appendBlock(out, second);
  for (std::size_t i = 0; i < astro::planetPairCount; ++i) {
    if (entry.isConjunctPair[i]) {
      appendCode(out, astro::allPlanetPairs[i]);
      out += ' ';
    }
  }
  out += '\n';
}

}  // namespace

bool isConjunct(double a, double b) {
  const double apart = std::abs(astro::wrappedToHalfTurns(a) - astro::wrappedToHalfTurns(b));
  return apart < closest || apart > acrossSeam;
}

ConjunctionEntry conjunctionEntry(double baseTime) {
  const astro::Sun sun(baseTime);
  const astro::Vec3D moon(astro::moonLongitude(baseTime), astro::moonLatitude(baseTime));
  ConjunctionEntry entry{.baseTime = baseTime,
                         .rightAscensions = {.moon = rightAscensionOf(moon), .sun = sun.eq.phi},
                         .longitudes = {.moon = moon.phi, .sun = sun.ec.phi},
                         .isConjunctPair = {}};
  astro::PerPlanet<double>& longitudes = entry.longitudes.planets;
  for (const astro::Planet planet : astro::allPlanets) {
    const astro::Vec3D ecliptic = planetEcliptic(planet, baseTime, sun);
    longitudes[indexOf(planet)] = ecliptic.phi;
    entry.rightAscensions.planets[indexOf(planet)] = rightAscensionOf(ecliptic);
  }
  for (std::size_t i = 0; i < astro::planetPairCount; ++i) {
    const auto& [first, second] = astro::allPlanetPairs[i];
    entry.isConjunctPair[i] = isConjunct(longitudes[indexOf(first)], longitudes[indexOf(second)]);
  }
  return entry;
}

void writeConjunctionTable(double start, const TableSize& size, const TextSink& sink) {
  writeRows(conjunctionsHeader, start, size, sink, appendRow);
}

std::string conjunctionTable(double start, const TableSize& size) {
  return collected([&](const TextSink& sink) { writeConjunctionTable(start, size, sink); });
}

}  // namespace veyruna::reports
