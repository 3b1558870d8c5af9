// λ longitude of a body, λ′ its rate; stations and signs.
#include <algorithm>

#include "almanac/events/event_source.h"
#include "almanac/motion/change.h"
#include "almanac/motion/motion.h"
#include "astro/angle.h"

namespace veyruna::almanac {

namespace {

class Stations final : public EventSource {
 public:
  Stations(Body body, const Range& range)
      : body_(body), range_(range), searchedTo_(range.from - aWhile) {}

  std::optional<Event> next() override {
    while (const std::optional<double> station = nextStation(body_, searchedTo_)) {
      if (*station >= range_.to) {
        return std::nullopt;
      }
      searchedTo_ = *station + aWhile;
      if (*station >= range_.from) {
        return Event{.kind = EventKind::station,
                     .baseTime = *station,
                     .body = body_,
                     .isForward = motionAt(body_, searchedTo_).rate > 0.0};
      }
    }
    return std::nullopt;
  }

 private:
  /// Days, beyond the rounding of a turn and far within the days until the next: which way the body
  /// goes on is seen by then.
  static constexpr double aWhile = 0.01;

  Body body_;
  Range range_;
  double searchedTo_;
};

class SignEntries final : public EventSource {
 public:
  SignEntries(Body body, const Range& range)
      : body_(body),
        bend_(bendOf(body)),
        range_(range),
        // A sign that is entered at the very beginning is seen from just before it.
        last_(range.from - leastStepDays) {}

  std::optional<Event> next() override {
    while (const std::optional<double> moment = nextEntry()) {
      last_ = *moment;
      if (last_ >= range_.from && last_ < range_.to) {
        const Motion motion = motionAt(body_, last_);
        return Event{.kind = EventKind::sign,
                     .baseTime = last_,
                     .body = body_,
                     .sign = &reports::signAt(motion.longitude),
                     .isForward = motion.rate > 0.0};
      }
    }
    return std::nullopt;
  }

 private:
  [[nodiscard]] std::optional<double> nextEntry() const {
    const reports::ZodiacSign& here = reports::signAt(motionAt(body_, last_).longitude);
    return nextChange([&](double t) { return stateIn(here, t); }, last_, range_.to,
                      toTheFirstDouble);
  }

  /// Whether the body is in a sign, and how long it stays on its side of the sign's two ends.
  [[nodiscard]] State stateIn(const reports::ZodiacSign& sign, double t) const {
    const auto [longitude, rate] = motionAt(body_, t);
    const reports::ZodiacSign& here = reports::signAt(longitude);
    const auto number = static_cast<std::size_t>(&here - reports::zodiacSigns.data());
    const double end = reports::zodiacSigns[(number + 1) % reports::zodiacSigns.size()].start;
    const double behind = astro::wrappedToTurn(longitude - here.start);
    const double ahead = astro::wrappedToTurn(end - longitude);
    return {&here == &sign,
            std::min(daysUntilReached(behind, rate, bend_), daysUntilReached(ahead, -rate, bend_))};
  }

  Body body_;
  double bend_;
  Range range_;
  double last_;
};

}  // namespace

OwnedSource stations(Body body, const Range& range) {
  return std::make_unique<Stations>(body, range);
}

OwnedSource signEntries(Body body, const Range& range) {
  return std::make_unique<SignEntries>(body, range);
}

}  // namespace veyruna::almanac
