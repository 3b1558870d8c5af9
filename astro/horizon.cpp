// H hour angle, α right ascension, δ declination.
#include "astro/horizon.h"

#include "astro/sun.h"

namespace veyruna::astro {

double localSiderealAngle(double t, double longitude) {
  return longitude + meanAngle(siderealRate * t);
}

HorizonFrame::HorizonFrame(double t, double longitude, double latitude)
    : siderealAngle_(localSiderealAngle(t, longitude)),
      toHorizon_(rotationMatrix(Axis::y, halfPi - latitude)) {}

std::array<double, 3> HorizonFrame::toHorizonComponents(const Vec3D& equatorial) const {
  const double hourAngle = siderealAngle_ - equatorial.phi;
  return product(toHorizon_, Vec3D(hourAngle, equatorial.theta).v);
}

Vec3D HorizonFrame::toHorizon(const Vec3D& equatorial) const {
  const auto [x, y, z] = toHorizonComponents(equatorial);
  return {x, y, z};
}

Vec3D toHorizon(const Vec3D& equatorial, double t, double longitude, double latitude) {
  return HorizonFrame(t, longitude, latitude).toHorizon(equatorial);
}

}  // namespace veyruna::astro
