// u direction of what stands there, θ local sidereal angle, φ latitude; W turn of the sky a day.
#include "almanac/motion/height.h"

#include <cmath>

#include "astro/horizon.h"

namespace veyruna::almanac {

Height heightOf(const Course& course, const astro::Observer& observer) {
  const auto& [u, rate] = course;
  const double theta = astro::localSiderealAngle(observer);
  const double cosT = std::cos(theta);
  const double sinT = std::sin(theta);
  const double sinP = std::sin(observer.latitude);
  const double cosP = std::cos(observer.latitude);
  return {sinP * u[2] + cosP * (u[0] * cosT + u[1] * sinT),
          sinP * rate[2] +
              cosP * (rate[0] * cosT + rate[1] * sinT + skyRate * (u[1] * cosT - u[0] * sinT))};
}

// The second derivative is n · u″ + cos φ (2 W e′ · u′ − W² e · u), n being the zenith and e, e′
// unit vectors of the equator: nearer to a pole the sky's turn counts for less.
double heightBend(const CourseBounds& bounds, double latitude) {
  return bounds.bend + std::abs(std::cos(latitude)) * skyRate * (skyRate + 2.0 * bounds.speed);
}

}  // namespace veyruna::almanac
