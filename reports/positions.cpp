#include "reports/positions.h"

#include <algorithm>
#include <string_view>

#include "astro/arc.h"
#include "astro/horizon.h"
#include "astro/moon.h"
#include "astro/planet.h"
#include "astro/rotation.h"
#include "astro/sun.h"
#include "reports/zodiac.h"

namespace veyruna::reports {

namespace {

constexpr std::string_view positionsHeader =
    "Body           Azimuth    Altitude   Ec. Long.   Sign\n"
    "----           -------    --------   ---------   ----\n";

constexpr std::size_t nameWidth = 13;

bool beginsCharacter(char byte) {
  return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U;
}

/// A UTF-8 name cut or padded with blanks to exactly nameWidth characters.
std::string fittedName(std::string_view name) {
  std::string fitted;
  std::size_t characters = 0;
  for (const char byte : name) {
    if (beginsCharacter(byte) && characters++ == nameWidth) {
      return fitted;
    }
    fitted += byte;
  }
  return fitted.append(nameWidth - std::min(characters, nameWidth), ' ');
}

BodyPlace placeOf(std::string_view name, std::string_view bodyType, const astro::Vec3D& equatorial,
                  double ecliptic, const astro::HorizonFrame& horizon) {
  const astro::Vec3D seen = horizon.toHorizon(equatorial);
  return {.name = name,
          .bodyType = bodyType,
          .azimuth = seen.phi,
          .altitude = seen.theta,
          .ecLong = ecliptic};
}

PositionRow rowOf(const BodyPlace& place) {
  const auto& [name, bodyType, azimuth, altitude, ecLong] = place;
  return {std::string(name),
          std::string(bodyType),
          astro::Arc(azimuth).degMinText(),
          astro::Arc(altitude).degMinText(),
          astro::Arc(ecLong).degMinText(),
          std::string(signName(ecLong))};
}

}  // namespace

std::array<BodyPlace, astro::bodyCount> bodyPlaces(const astro::Observer& observer) {
  const double t = observer.baseTime;
  const astro::HorizonFrame horizon(observer);
  const astro::Sun sun(t);
  const astro::Moon moon(observer);
  std::array<BodyPlace, astro::bodyCount> places;
  auto place = places.begin();
  *place++ = placeOf(astro::sunName, "Sun", sun.eq, sun.ec.phi, horizon);
  *place++ = placeOf(astro::moonName, "Moon", moon.eq, moon.ec.phi, horizon);
  for (const astro::PlanetFacts& facts : astro::planetFacts) {
    const astro::Vec3D ecliptic = planetEcliptic(facts.planet, t, sun);
    *place++ = placeOf(facts.name, facts.kind, rotated(ecliptic, astro::eclipticToEquatorial),
                       ecliptic.phi, horizon);
  }
  return places;
}

std::array<PositionRow, astro::bodyCount> positionRows(const astro::Observer& observer) {
  std::array<PositionRow, astro::bodyCount> rows;
  std::ranges::transform(bodyPlaces(observer), rows.begin(), rowOf);
  return rows;
}

std::string positionsTableText(std::span<const PositionRow> rows) {
  std::string text(positionsHeader);
  // Every field is named, so that one more does not compile until it is thought of here.
  for (const auto& [name, bodyType, azimuth, altitude, ecLong, sign] : rows) {
    text += fittedName(name);
    text += ' ';
    text += azimuth;
    text += "    ";
    text += altitude;
    text += "    ";
    text += ecLong;
    text += "      ";
    text += sign;
    text += '\n';
  }
  return text;
}

}  // namespace veyruna::reports
