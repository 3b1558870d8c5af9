#pragma once

#include <array>

#include "astro/angle.h"

namespace veyruna::astro {

/// The tilt between the world's equator and the ecliptic: 21°, in radians, with its cosine and
/// sine.
inline constexpr double obliquity = 0.3665191429188092;
inline constexpr double cosObliquity = 0.9335804264972017;
inline constexpr double sinObliquity = 0.35836794954530027;

/// Three rows of three; applied to a column vector.
using RotationMatrix = std::array<std::array<double, 3>, 3>;

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

enum class Axis { x = 0, y = 1, z = 2 };

/// Turns the frame (not the vector) about one of its axes by `angle` radians.
RotationMatrix rotationMatrix(Axis axis, double angle);

/// The matrix times the Cartesian components.
std::array<double, 3> product(const RotationMatrix& matrix, const std::array<double, 3>& v);

/// The vector in the turned frame, its spherical angles computed anew from the components.
Vec3D rotated(const Vec3D& vector, const RotationMatrix& matrix);

/// The longitude-like angle of a Cartesian direction, as in Vec3D; 0 on the z axis.
double longitudeOf(const std::array<double, 3>& v);

/// Between the ecliptic and the equatorial frame, which share their x axis.
inline constexpr RotationMatrix eclipticToEquatorial = {
    {{1.0, 0.0, 0.0}, {0.0, cosObliquity, -sinObliquity}, {0.0, sinObliquity, cosObliquity}}};
inline constexpr RotationMatrix equatorialToEcliptic = {
    {{1.0, 0.0, 0.0}, {0.0, cosObliquity, sinObliquity}, {0.0, -sinObliquity, cosObliquity}}};

}  // namespace veyruna::astro
