#include "astro/sun.h"

#include "astro/rotation.h"

namespace veyruna::astro {

double sunLongitude(double t) {
  return meanAngle(sunMeanMotion * t + sunPhaseAtEpoch);
}

Sun::Sun(double t) : ec(sunLongitude(t), 0.0), eq(rotated(ec, eclipticToEquatorial)) {}

}  // namespace veyruna::astro
