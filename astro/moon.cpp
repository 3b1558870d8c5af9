// u argument of latitude, λ ecliptic longitude, β ecliptic latitude.
#include "astro/moon.h"

#include <cmath>

namespace veyruna::astro {

namespace {

/// From the observer to the moon, in the ecliptic frame, in radii of the world.
Vec3D fromObserver(double t, double longitude, double latitude) {
  const Vec3D moon(moonLongitude(t), moonLatitude(t));
  const Vec3D meridian(meanAngle(t + longitude / twoPi), latitude);
  const Vec3D observer = rotated(meridian, equatorialToEcliptic);
  return {moonDistance * moon.v[0] - observer.v[0], moonDistance * moon.v[1] - observer.v[1],
          moonDistance * moon.v[2] - observer.v[2]};
}

}  // namespace

double moonLongitude(double t) {
  return meanAngle(t * moonMeanMotion + moonPhaseAtEpoch);
}

double moonLatitude(double t) {
  const double revolutions = t * moonNodalRate;
  const double u = (revolutions + revolutions) * pi + moonLatitudePhase;
  return std::sin(u) * moonInclination;
}

Moon::Moon(double t)
    : ec(moonLongitude(t), moonLatitude(t)), eq(rotated(ec, eclipticToEquatorial)) {}

Moon::Moon(double t, double longitude, double latitude)
    : ec(fromObserver(t, longitude, latitude)), eq(rotated(ec, eclipticToEquatorial)) {}

}  // namespace veyruna::astro
