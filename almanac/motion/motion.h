#pragma once

#include <array>
#include <optional>

#include "almanac/motion/body.h"

namespace veyruna::almanac {

/// Where a body stands on the ecliptic as seen from the world's centre, and how it moves.
struct Motion {
  double longitude = 0.0;  ///< radians, in any turn
  double rate = 0.0;       ///< radians a day, negative where it runs backward
};

Motion motionAt(Body body, double t);

/// By how much the rate of its longitude changes in a day at most, in radians a day; 0 for the sun
/// and the moon, which move uniformly. The circles that a planet's motion is made of tell it.
double bendOf(Body body);

/// The most that its longitude moves in a day, either way, in radians.
double speedOf(Body body);

/// The first moment after `t` at which a planet's longitude turns, the same double from every `t`
/// before it; nothing for what never turns.
std::optional<double> nextStation(Body body, double t);

/// A direction on the unit sphere of the equatorial frame, and how it moves in a day.
struct Course {
  std::array<double, 3> direction{};
  std::array<double, 3> rate{};
};

Course courseAt(Body body, double t);

/// That of a point on the ecliptic.
Course courseOnEcliptic(const Motion& motion);

/// The most that the direction moves in a day, and the most that its rate changes.
struct CourseBounds {
  double speed = 0.0;
  double bend = 0.0;
};
CourseBounds courseBoundsOf(Body body);

}  // namespace veyruna::almanac
