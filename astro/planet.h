#pragma once

#include <array>
#include <cstddef>
#include <string_view>

#include "astro/sun.h"
#include "astro/vec3d.h"

namespace veyruna::astro {

/// The four planets, in the order of every table and chart.
enum class Planet { bralo, dunmor, galvi, pallox };

inline constexpr std::array<Planet, 4> allPlanets = {Planet::bralo, Planet::dunmor, Planet::galvi,
                                                     Planet::pallox};

inline constexpr std::size_t indexOf(Planet planet) {
  return static_cast<std::size_t>(planet);
}

/// Radii of the planets' orbits, in distances of the world from its sun: (|period| / 360)^(2/3).
inline constexpr std::array<double, 4> orbitRadius = {0.6712873444586567, 1.5874010519681996,
                                                      4.641588833612779, 19.332111165970602};

/// Periods of the orbits in days. Bralo runs against the others.
inline constexpr std::array<double, 4> orbitPeriod = {-198.00000000000003, 720.0, 3600.0, 30600.0};

/// Added to the heliocentric motion, in revolutions; only the fractions take effect.
inline constexpr std::array<double, 4> orbitPhase = {5.026548245743669, 1.2566370614359172,
                                                     2.5132741228718345, 3.7699111843077517};

/// "Bralo", "Dunmor", "Galvi", "Pallox".
std::string_view displayName(Planet planet);

/// Direction of the planet from the world at base time `t` (days), in the ecliptic frame: `phi` is
/// the longitude in (−π, π], as atan2 gives it, `theta` is 0.
Vec3D planetEcliptic(Planet planet, double t);

/// The same where the sun of that moment is at hand.
Vec3D planetEcliptic(Planet planet, double t, const Sun& sun);

}  // namespace veyruna::astro
