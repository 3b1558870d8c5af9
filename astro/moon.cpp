// u argument of latitude, λ ecliptic longitude, β ecliptic latitude.
#include "astro/moon.h"

#include <cmath>

#include "astro/rotation.h"

namespace veyruna::astro {

namespace {

/// From the observer to the moon, in the ecliptic frame, in radii of the world.
Vec3D fromObserver(const Observer& observer) {
  const double t = observer.baseTime;
  const Vec3D moon(moonLongitude(t), moonLatitude(t));
  const Vec3D meridian(meanAngle(t + observer.longitude / twoPi), observer.latitude);
  const Vec3D place = rotated(meridian, equatorialToEcliptic);
  return {moonDistance * moon.v[0] - place.v[0], moonDistance * moon.v[1] - place.v[1],
          moonDistance * moon.v[2] - place.v[2]};
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

Moon::Moon(const Observer& observer)
    : ec(fromObserver(observer)), eq(rotated(ec, eclipticToEquatorial)) {}

}  // namespace veyruna::astro
