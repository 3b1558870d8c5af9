#pragma once

#include <functional>
#include <vector>

#include "almanac/events/event.h"
#include "astro/observer.h"

/// Events as a patient person would find them: looked for every minute, then halved. Nothing of it
/// is the almanac's but the names: bodies, longitudes and horizons are asked of the sky itself.
namespace veyruna::tests {

/// Longitude (radians, in any turn) of a body from the world's centre.
double plainLongitude(almanac::Body body, double t);
/// Altitude, radians.
double plainAltitude(almanac::Body body, const astro::Observer& observer);
/// Hour angle in [−π, π], radians.
double plainHourAngle(almanac::Body body, const astro::Observer& observer);
/// |λ − λ′| from 0 or from π, radians.
double plainSeparation(almanac::EventKind kind, almanac::Body body, almanac::Body other, double t);

/// from, from + step, … below `to`.
std::vector<double> evenly(double from, double to, double step);

/// The moments in [from, to) at which what is asked, from one minute to the next, becomes another.
struct PlainChange {
  double moment;
  int before;
  int after;
};
std::vector<PlainChange> plainChanges(const std::function<int(double)>& ask, double from,
                                      double to);

}  // namespace veyruna::tests
