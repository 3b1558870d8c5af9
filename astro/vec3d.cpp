// φ longitude-like angle, θ latitude-like angle, r length.
#include "astro/vec3d.h"

#include <cmath>

namespace veyruna::astro {

Vec3D::Vec3D(double phiAngle, double thetaAngle) : phi(phiAngle), theta(thetaAngle) {
  const double cosTheta = std::cos(theta);
  v = {cosTheta * std::cos(phi), cosTheta * std::sin(phi), std::sin(theta)};
}

Vec3D::Vec3D(double x, double y, double z) : v{x, y, z} {
  const double inPlane = x * x + y * y;
  r = std::sqrt(inPlane + z * z);
  if (inPlane != 0.0) {
    phi = longitudeOf(v);
    theta = std::atan2(z, std::sqrt(inPlane));
  } else if (z != 0.0) {
    theta = std::atan2(z, 0.0);
  }
}

double longitudeOf(const std::array<double, 3>& v) {
  if (v[0] * v[0] + v[1] * v[1] == 0.0) {
    return 0.0;
  }
  const double phi = std::atan2(v[1], v[0]);
  return phi < 0.0 ? phi + twoPi : phi;
}

}  // namespace veyruna::astro
