// M heliocentric longitude of the planet, a radius of its orbit, λ longitude seen from the world.
#include "astro/planet.h"

#include <cmath>

namespace veyruna::astro {

Vec3D planetEcliptic(Planet planet, double t) {
  return planetEcliptic(planet, t, Sun(t));
}

Vec3D planetEcliptic(Planet planet, double t, const Sun& sun) {
  const PlanetFacts& facts = factsOf(planet);
  const double a = facts.orbitRadius;
  const double heliocentric = meanAngle(facts.orbitPhase + t / facts.orbitPeriod);
  const double lambda = std::atan2(sun.ec.v[1] + a * std::sin(heliocentric),
                                   sun.ec.v[0] + a * std::cos(heliocentric));
  return {lambda, 0.0};
}

}  // namespace veyruna::astro
