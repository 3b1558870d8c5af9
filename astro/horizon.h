#pragma once

#include "astro/observer.h"
#include "astro/rotation.h"

namespace veyruna::astro {

/// The observer's longitude + the turn of the sky since base time 0, radians; the sum is not
/// reduced. The latitude does not matter.
double localSiderealAngle(const Observer& observer);

/// The observer's horizon at one moment: what toHorizon needs, computed once for many bodies.
class HorizonFrame {
 public:
  explicit HorizonFrame(const Observer& observer);

  /// Azimuth (`phi`, from the south point toward the west, in [0, 2π)) and altitude (`theta`) of an
  /// equatorial direction.
  [[nodiscard]] Vec3D toHorizon(const Vec3D& equatorial) const;

  /// The components of the same direction, without its angles: z is the sine of the altitude.
  [[nodiscard]] std::array<double, 3> toHorizonComponents(const Vec3D& equatorial) const;

 private:
  double siderealAngle_;
  RotationMatrix toHorizon_;
};

/// Azimuth and altitude of an equatorial direction for an observer; see HorizonFrame.
Vec3D toHorizon(const Vec3D& equatorial, const Observer& observer);

}  // namespace veyruna::astro
