// φ longitude-like angle, θ latitude-like angle.
#include "charts/projection.h"

#include <cmath>

namespace veyruna::charts {

std::int64_t ProjectedPoint::roundedX() const {
  return static_cast<std::int64_t>(centre) + static_cast<std::int64_t>(std::round(right));
}

std::int64_t ProjectedPoint::roundedY() const {
  return static_cast<std::int64_t>(centre) - static_cast<std::int64_t>(std::round(up));
}

ProjectedPoint projected(double phi, double theta) {
  const double distance = (astro::halfPi - theta) * distancePerRadian;
  return {distance, distance * std::sin(phi) * discRadius, distance * std::cos(phi) * discRadius};
}

}  // namespace veyruna::charts
