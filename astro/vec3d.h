#pragma once

#include <array>

#include "astro/angle.h"

namespace veyruna::astro {

/// A direction (or position) as Cartesian components and as spherical angles.
/// x points to longitude 0 of the frame's fundamental plane, y to +90°, z to the frame's pole.
struct Vec3D {
  std::array<double, 3> v{};  ///< x, y, z
  double phi = 0.0;           ///< longitude-like angle, radians
  double theta = 0.0;         ///< latitude-like angle, radians, −π/2 to +π/2
  double r = 0.0;             ///< length of v; 0 for a vector built from angles

  /// Unit vector from two angles, both kept exactly as given; `r` stays 0.
  Vec3D(double phiAngle, double thetaAngle);

  /// Vector from components: `phi` comes out in [0, 2π) (a hair below 0 rounds to 2π itself), `r`
  /// is the length.
  Vec3D(double x, double y, double z);
};

/// The longitude-like angle of a Cartesian direction, as in Vec3D; 0 on the z axis.
double longitudeOf(const std::array<double, 3>& v);

}  // namespace veyruna::astro
