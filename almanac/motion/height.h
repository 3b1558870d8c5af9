#pragma once

#include "almanac/motion/motion.h"
#include "astro/angle.h"
#include "astro/observer.h"
#include "astro/sun.h"

namespace veyruna::almanac {

/// How fast the sky turns, radians a day.
inline constexpr double skyRate = astro::twoPi * astro::siderealRate;

/// How high something stands: the sine of its geometric altitude, and how it changes in a day.
struct Height {
  double sine = 0.0;
  double rate = 0.0;
};

/// The height of what takes this course, at the observer's moment.
Height heightOf(const Course& course, const astro::Observer& observer);

/// By how much the rate of a height changes in a day at most, at this latitude (radians).
double heightBend(const CourseBounds& bounds, double latitude);

}  // namespace veyruna::almanac
