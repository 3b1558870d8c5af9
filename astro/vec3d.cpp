// φ longitude-like angle, θ latitude-like angle, r length, c and s cosine and sine of a rotation.
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

RotationMatrix rotationMatrix(Axis axis, double angle) {
  const double c = std::cos(angle);
  const double s = std::sin(angle);
  switch (axis) {
    case Axis::x:
      return {{{1.0, 0.0, 0.0}, {0.0, c, s}, {0.0, -s, c}}};
    case Axis::y:
      return {{{c, 0.0, -s}, {0.0, 1.0, 0.0}, {s, 0.0, c}}};
    case Axis::z:
      break;
  }
  return {{{c, s, 0.0}, {-s, c, 0.0}, {0.0, 0.0, 1.0}}};
}

std::array<double, 3> product(const RotationMatrix& matrix, const std::array<double, 3>& v) {
  const auto times = [&v](const std::array<double, 3>& row) {
    return row[0] * v[0] + row[1] * v[1] + row[2] * v[2];
  };
  return {times(matrix[0]), times(matrix[1]), times(matrix[2])};
}

Vec3D rotated(const Vec3D& vector, const RotationMatrix& matrix) {
  const auto [x, y, z] = product(matrix, vector.v);
  return {x, y, z};
}

double longitudeOf(const std::array<double, 3>& v) {
  if (v[0] * v[0] + v[1] * v[1] == 0.0) {
    return 0.0;
  }
  const double phi = std::atan2(v[1], v[0]);
  return phi < 0.0 ? phi + twoPi : phi;
}

}  // namespace veyruna::astro
