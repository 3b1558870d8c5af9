// M heliocentric longitude of the planet, a radius of its orbit, λ longitude seen from the world.
#include "astro/planet.h"

#include <cmath>

namespace veyruna::astro {

std::string_view displayName(Planet planet) {
  static constexpr std::array<std::string_view, 4> names = {"Bralo", "Dunmor", "Galvi", "Pallox"};
  return names[indexOf(planet)];
}

Vec3D planetEcliptic(Planet planet, double t) {
  return planetEcliptic(planet, t, Sun(t));
}

Vec3D planetEcliptic(Planet planet, double t, const Sun& sun) {
  const std::size_t i = indexOf(planet);
  const double a = orbitRadius[i];
  const double heliocentric = meanAngle(orbitPhase[i] + t / orbitPeriod[i]);
  const double lambda = std::atan2(sun.ec.v[1] + a * std::sin(heliocentric),
                                   sun.ec.v[0] + a * std::cos(heliocentric));
  return {lambda, 0.0};
}

}  // namespace veyruna::astro
