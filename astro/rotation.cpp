// c and s cosine and sine of the angle turned by.
#include "astro/rotation.h"

#include <cmath>

namespace veyruna::astro {

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

}  // namespace veyruna::astro
