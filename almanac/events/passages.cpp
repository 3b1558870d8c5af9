// z the sine of a body's altitude.
#include <cmath>

#include "almanac/events/event_source.h"
#include "almanac/motion/change.h"
#include "almanac/motion/height.h"
#include "almanac/motion/motion.h"
#include "astro/angle.h"
#include "astro/horizon.h"
#include "astro/moon.h"
#include "astro/rotation.h"

namespace veyruna::almanac {

namespace {

/// No body comes nearer to the celestial poles than this cosine of its declination.
const double leastCosine = std::cos(astro::obliquity + astro::moonInclination);

class Passages final : public EventSource {
 public:
  Passages(EventKind kind, Body body, const astro::Observer& place, std::size_t number,
           const Range& range)
      : kind_(kind),
        body_(body),
        place_(place),
        number_(number),
        range_(range),
        bounds_(courseBoundsOf(body)),
        bend_(heightBend(bounds_, place.latitude)),
        // What happens at the very beginning is seen from just before it.
        last_(range.from - leastStepDays) {}

  std::optional<Event> next() override {
    const auto state = [this](double t) {
      return kind_ == EventKind::culmination ? westward(t) : above(t);
    };
    while (const auto moment = nextChange(state, last_, range_.to, toTheLastDouble)) {
      last_ = *moment;
      const bool isSought = state(last_).holds != (kind_ == EventKind::set);
      if (isSought && last_ >= range_.from && last_ < range_.to) {
        return Event{.kind = kind_, .baseTime = last_, .body = body_, .place = number_};
      }
    }
    return std::nullopt;
  }

 private:
  [[nodiscard]] State above(double t) const {
    const auto [u, rate] = courseAt(body_, t);
    const auto [z, zRate] = heightOf({u, rate}, place_.at(t));
    return {z > 0.0, daysUntilReached(std::abs(z), z > 0.0 ? zRate : -zRate, bend_)};
  }

  /// Whether the body has passed the upper meridian and not yet the lower.
  [[nodiscard]] State westward(double t) const {
    const auto [u, rate] = courseAt(body_, t);
    const double hourAngle =
        astro::wrappedToHalfTurns(astro::localSiderealAngle(place_.at(t)) - std::atan2(u[1], u[0]));
    const double fastest = skyRate + bounds_.speed / leastCosine;
    const double left = hourAngle < 0.0 ? -hourAngle : astro::pi - hourAngle;
    return {hourAngle >= 0.0, left / fastest};
  }

  EventKind kind_;
  Body body_;
  astro::Observer place_;
  std::size_t number_;
  Range range_;
  CourseBounds bounds_;
  double bend_;
  double last_;
};

}  // namespace

OwnedSource passages(EventKind kind, Body body, const astro::Observer& place, std::size_t number,
                     const Range& range) {
  return std::make_unique<Passages>(kind, body, place, number, range);
}

}  // namespace veyruna::almanac
