#pragma once

#include <cstdint>

#include "astro/vec3d.h"

/// Both charts are discs of radius 180 about (180, 180). A direction is drawn at its longitude-like
/// angle (0 at the top, growing clockwise) and at a distance from the centre that grows evenly from
/// its pole: 0 at the pole, 1 on the fundamental plane, 2 at the opposite pole.
namespace veyruna::charts {

inline constexpr double centre = 180.0;
inline constexpr double discRadius = 180.0;

/// 2/π: distances from the centre per radian from the pole.
inline constexpr double distancePerRadian = 0.6366197723675814;

/// A point of the page in user units, y downward.
struct PagePoint {
  double x;
  double y;
};

/// A direction on the disc.
struct ProjectedPoint {
  double distance;  ///< from the centre, in disc radii, 0 to 2
  double right;     ///< from the centre, in user units
  double up;        ///< from the centre, in user units

  [[nodiscard]] PagePoint exact() const { return {centre + right, centre - up}; }
  /// Rounded to whole units, halves away from zero.
  [[nodiscard]] std::int64_t roundedX() const;
  [[nodiscard]] std::int64_t roundedY() const;
  [[nodiscard]] PagePoint rounded() const {
    return {static_cast<double>(roundedX()), static_cast<double>(roundedY())};
  }
};

/// Where the direction with these angles (radians) is drawn.
ProjectedPoint projected(double phi, double theta);
inline ProjectedPoint projected(const astro::Vec3D& direction) {
  return projected(direction.phi, direction.theta);
}

}  // namespace veyruna::charts
