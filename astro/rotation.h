#pragma once

#include <array>

#include "astro/vec3d.h"

/// Frames turned against each other: the equator's, the ecliptic's, the horizon's.
namespace veyruna::astro {

/// The tilt between the world's equator and the ecliptic: 21°, in radians, with its cosine and
/// sine.
inline constexpr double obliquity = 0.3665191429188092;
inline constexpr double cosObliquity = 0.9335804264972017;
inline constexpr double sinObliquity = 0.35836794954530027;

/// Three rows of three; applied to a column vector.
using RotationMatrix = std::array<std::array<double, 3>, 3>;

enum class Axis { x = 0, y = 1, z = 2 };

/// Turns the frame (not the vector) about one of its axes by `angle` radians.
RotationMatrix rotationMatrix(Axis axis, double angle);

/// The matrix times the Cartesian components.
std::array<double, 3> product(const RotationMatrix& matrix, const std::array<double, 3>& v);

/// The vector in the turned frame, its spherical angles computed anew from the components.
Vec3D rotated(const Vec3D& vector, const RotationMatrix& matrix);

/// Between the ecliptic and the equatorial frame, which share their x axis.
inline constexpr RotationMatrix eclipticToEquatorial = {
    {{1.0, 0.0, 0.0}, {0.0, cosObliquity, -sinObliquity}, {0.0, sinObliquity, cosObliquity}}};
inline constexpr RotationMatrix equatorialToEcliptic = {
    {{1.0, 0.0, 0.0}, {0.0, cosObliquity, sinObliquity}, {0.0, -sinObliquity, cosObliquity}}};

}  // namespace veyruna::astro
