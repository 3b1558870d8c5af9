#include "tests/almanac/plain_scan.h"

#include <cmath>

#include "astro/horizon.h"
#include "astro/moon.h"
#include "astro/planet.h"
#include "astro/sun.h"

namespace veyruna::tests {

namespace {

using almanac::Body;

astro::Vec3D eclipticOf(Body body, double t) {
  switch (body) {
    case Body::thessil:
      return astro::Sun(t).ec;
    case Body::ivro:
      return astro::Moon(t).ec;
    default:
      return astro::planetEcliptic(static_cast<astro::Planet>(static_cast<int>(body) - 2), t);
  }
}

astro::Vec3D equatorialOf(Body body, double t) {
  return astro::rotated(eclipticOf(body, t), astro::eclipticToEquatorial);
}

double fromZero(double angle) {
  return std::abs(std::remainder(angle, astro::twoPi));
}

}  // namespace

double plainLongitude(Body body, double t) {
  return eclipticOf(body, t).phi;
}

double plainAltitude(Body body, const astro::Observer& observer) {
  return astro::toHorizon(equatorialOf(body, observer.baseTime), observer).theta;
}

double plainHourAngle(Body body, const astro::Observer& observer) {
  return std::remainder(
      astro::localSiderealAngle(observer) - equatorialOf(body, observer.baseTime).phi,
      astro::twoPi);
}

double plainSeparation(almanac::EventKind kind, Body body, Body other, double t) {
  const double apart = plainLongitude(body, t) - plainLongitude(other, t);
  return fromZero(kind == almanac::EventKind::opposition ? apart - astro::pi : apart);
}

std::vector<double> evenly(double from, double to, double step) {
  std::vector<double> moments(static_cast<std::size_t>(std::ceil((to - from) / step)));
  for (std::size_t i = 0; i < moments.size(); ++i) {
    moments[i] = from + static_cast<double>(i) * step;
  }
  return moments;
}

std::vector<PlainChange> plainChanges(const std::function<int(double)>& ask, double from,
                                      double to) {
  constexpr double minute = 1.0 / 1440.0;
  std::vector<PlainChange> changes;
  int before = ask(from);
  for (const double begin : evenly(from, to, minute)) {
    double low = begin;
    double high = begin + minute;
    const int after = ask(high);
    if (after != before) {
      for (int halving = 0; halving < 12; ++halving) {
        const double middle = (low + high) / 2.0;
        (ask(middle) == before ? low : high) = middle;
      }
      if (high < to) {
        changes.push_back({high, before, after});
      }
    }
    before = after;
  }
  return changes;
}

}  // namespace veyruna::tests
