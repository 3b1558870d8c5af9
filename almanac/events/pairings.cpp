// δ how far two bodies stand from one longitude (or from opposite ones), in [−π, π]; δ′ its rate.
#include <algorithm>
#include <cmath>

#include "almanac/events/event_source.h"
#include "almanac/motion/change.h"
#include "almanac/motion/motion.h"
#include "astro/angle.h"

namespace veyruna::almanac {

namespace {

/// Two bodies nearer than this are together, as in the tables: 2°.
constexpr double orb = astro::radiansOf(2.0);

class Pairings final : public EventSource {
 public:
  Pairings(EventKind kind, Body body, Body other, const Range& range)
      : kind_(kind),
        body_(body),
        other_(other),
        bend_(bendOf(body) + bendOf(other)),
        range_(range),
        last_(range.from) {
    if (within(last_).holds) {
      last_ = nextChange([this](double t) { return within(t); }, last_, -astro::baseTimeLimitDays,
                         toTheLastDouble)
                  .value_or(-astro::baseTimeLimitDays);
    }
  }

  std::optional<Event> next() override {
    if (last_ >= range_.to) {
      return std::nullopt;
    }
    const auto state = [this](double t) { return within(t); };
    const std::optional<double> begin = nextChange(state, last_, range_.to, toTheLastDouble);
    if (!begin || *begin >= range_.to) {
      return std::nullopt;
    }
    const double end = nextChange(state, *begin, astro::baseTimeLimitDays, toTheLastDouble)
                           .value_or(astro::baseTimeLimitDays);
    last_ = end;
    const Closest closest = closestIn(*begin, end);
    return Event{.kind = kind_,
                 .baseTime = closest.moment,
                 .body = body_,
                 .other = other_,
                 .begin = *begin,
                 .end = end,
                 .separation = closest.separation};
  }

 private:
  /// δ and δ′.
  [[nodiscard]] Motion partingAt(double t) const {
    const Motion first = motionAt(body_, t);
    const Motion second = motionAt(other_, t);
    const double target = kind_ == EventKind::opposition ? astro::pi : 0.0;
    return {astro::wrappedToHalfTurns(first.longitude - second.longitude - target),
            first.rate - second.rate};
  }

  /// Whether |δ| is below the orb; unchanged until an end of the orb is reached, from within or
  /// from either side without.
  [[nodiscard]] State within(double t) const {
    const auto [parting, rate] = partingAt(t);
    if (std::abs(parting) < orb) {
      return {true,
              std::min(daysUntilEnd(orb - parting, -rate), daysUntilEnd(orb + parting, rate))};
    }
    const double side = parting < 0.0 ? -1.0 : 1.0;
    const double near = side * parting - orb;
    const double far = astro::twoPi - orb - side * parting;
    return {false, std::min(daysUntilEnd(near, side * rate), daysUntilEnd(far, -side * rate))};
  }

  /// Forwards and backwards.
  [[nodiscard]] double daysUntilEnd(double distance, double rate) const {
    return std::min(daysUntilReached(distance, rate, bend_),
                    daysUntilReached(distance, -rate, bend_));
  }

  struct Closest {
    double moment;
    double separation;
  };

  /// The first moment of the least |δ|: the first passage, or else where δ turns.
  [[nodiscard]] Closest closestIn(double begin, double end) const {
    const auto side = [this](double t) {
      const auto [parting, rate] = partingAt(t);
      const double away = parting > 0.0 ? rate : -rate;
      return State{parting > 0.0, daysUntilReached(std::abs(parting), away, bend_)};
    };
    if (const auto passage = nextChange(side, begin, end, toTheLastDouble)) {
      return {*passage, 0.0};
    }
    const auto way = [this](double t) {
      const double rate = partingAt(t).rate;
      return State{rate > 0.0, bend_ > 0.0 ? std::abs(rate) / bend_ : astro::twoPi};
    };
    Closest best{begin, std::abs(partingAt(begin).longitude)};
    double from = begin;
    while (const auto turn = nextChange(way, from, end, toTheLastDouble)) {
      const double there = std::abs(partingAt(*turn).longitude);
      if (there < best.separation) {
        best = {*turn, there};
      }
      from = *turn;
    }
    return best;
  }

  EventKind kind_;
  Body body_;
  Body other_;
  double bend_;
  Range range_;
  double last_;
};

}  // namespace

OwnedSource pairings(EventKind kind, Body body, Body other, const Range& range) {
  return std::make_unique<Pairings>(kind, body, other, range);
}

}  // namespace veyruna::almanac
