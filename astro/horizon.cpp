// H hour angle, α right ascension, δ declination.
#include "astro/horizon.h"

#include "astro/rotation.h"
#include "astro/sun.h"

namespace veyruna::astro {

double localSiderealAngle(const Observer& observer) {
  return observer.longitude + meanAngle(siderealRate * observer.baseTime);
}

HorizonFrame::HorizonFrame(const Observer& observer)
    : siderealAngle_(localSiderealAngle(observer)),
      toHorizon_(rotationMatrix(Axis::y, halfPi - observer.latitude)) {}

std::array<double, 3> HorizonFrame::toHorizonComponents(const Vec3D& equatorial) const {
  const double hourAngle = siderealAngle_ - equatorial.phi;
  return product(toHorizon_, Vec3D(hourAngle, equatorial.theta).v);
}

Vec3D HorizonFrame::toHorizon(const Vec3D& equatorial) const {
  const auto [x, y, z] = toHorizonComponents(equatorial);
  return {x, y, z};
}

Vec3D toHorizon(const Vec3D& equatorial, const Observer& observer) {
  return HorizonFrame(observer).toHorizon(equatorial);
}

}  // namespace veyruna::astro
