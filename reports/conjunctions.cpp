#include "reports/conjunctions.h"

#include <array>
#include <cmath>

#include "astro/angle.h"
#include "astro/arc.h"
#include "astro/calendar.h"
#include "astro/moon.h"
#include "astro/planet.h"
#include "astro/sun.h"
#include "reports/table_rows.h"

namespace veyruna::reports {

namespace {

constexpr std::string_view header =
    "                      EQUATORIAL COORDINATES                                  ECLIPTIC "
    "COORDINATES                                 CONJUNCTIONS\n"
    "YR MO DAY TIME        IVRO     THESSIL BRALO    DUNMOR    GALVI    PALLOX     IVRO     "
    "THESSIL "
    " BRALO    DUNMOR   GALVI    PALLOX   (+/- 1 deg)\n";

/// 2°, and its mirror across the seam at ±180°, in radians.
constexpr double closest = 0.03490658503988659;
constexpr double acrossSeam = 6.2482787221397;

struct PlanetPair {
  astro::Planet first;
  astro::Planet second;
  std::string_view mark;
};

using astro::Planet;
constexpr std::array<PlanetPair, 6> planetPairs = {{
    {Planet::bralo, Planet::dunmor, "BR-DU "},
    {Planet::bralo, Planet::galvi, "BR-GA "},
    {Planet::bralo, Planet::pallox, "BR-PA "},
    {Planet::dunmor, Planet::galvi, "DU-GA "},
    {Planet::dunmor, Planet::pallox, "DU-PA "},
    {Planet::galvi, Planet::pallox, "GA-PA "},
}};

void appendAngles(std::string& out, const std::array<double, 6>& angles) {
  for (const double angle : angles) {
    astro::Arc(angle).appendDegMinText(out);
    out += "  ";
  }
}

double rightAscensionOf(const astro::Vec3D& ecliptic) {
  return astro::longitudeOf(astro::product(astro::eclipticToEquatorial, ecliptic.v));
}

void appendRow(std::string& out, double t) {
  const astro::Sun sun(t);
  const astro::Vec3D moon(astro::moonLongitude(t), astro::moonLatitude(t));
  std::array<double, 4> longitudes{};
  std::array<double, 4> rightAscensions{};
  for (const Planet planet : astro::allPlanets) {
    const astro::Vec3D ecliptic = planetEcliptic(planet, t, sun);
    longitudes[indexOf(planet)] = ecliptic.phi;
    rightAscensions[indexOf(planet)] = rightAscensionOf(ecliptic);
  }

  astro::appendCalendarLabel(out, t);
  out += "  ";
  appendAngles(out, {rightAscensionOf(moon), sun.eq.phi, longitudes[0], longitudes[1],
                     longitudes[2], longitudes[3]});
  out += "  ";
  appendAngles(out, {moon.phi, sun.ec.phi, rightAscensions[0], rightAscensions[1],
                     rightAscensions[2], rightAscensions[3]});
  for (const PlanetPair& pair : planetPairs) {
    if (isConjunct(longitudes[indexOf(pair.first)], longitudes[indexOf(pair.second)])) {
      out += pair.mark;
    }
  }
  out += '\n';
}

}  // namespace

bool isConjunct(double a, double b) {
  const double apart = std::abs(astro::wrappedToHalfTurns(a) - astro::wrappedToHalfTurns(b));
  return apart < closest || apart > acrossSeam;
}

void writeConjunctionTable(double start, const TableSize& size, const TextSink& sink) {
  writeRows(header, start, size, sink, appendRow);
}

std::string conjunctionTable(double start, const TableSize& size) {
  return collected([&](const TextSink& sink) { writeConjunctionTable(start, size, sink); });
}

}  // namespace veyruna::reports
