// What moves uniformly comes round in even intervals: the moments are counted, not sought.
#include <cmath>

#include "almanac/events/event_source.h"
#include "astro/angle.h"
#include "astro/lunar_events.h"
#include "astro/moon.h"
#include "astro/sun.h"

namespace veyruna::almanac {

namespace {

/// A motion in revolutions: at base time 0, and a day.
struct UniformMotion {
  double start;
  double rate;

  [[nodiscard]] double momentOf(double revolutions) const { return (revolutions - start) / rate; }
  [[nodiscard]] double at(double t) const { return start + rate * t; }
};

/// The moments at which a uniform motion comes to the parts of a turn, from a moment on.
class Rounds {
 public:
  Rounds(const UniformMotion& motion, double partsOfATurn, const Range& range)
      : motion_(motion), parts_(partsOfATurn), range_(range) {
    number_ = std::ceil(motion_.at(range.from) * parts_) - 1.0;
    while (moment() < range.from) {
      number_ += 1.0;
    }
  }

  [[nodiscard]] double moment() const { return motion_.momentOf(number_ / parts_); }
  [[nodiscard]] bool isOver() const { return moment() >= range_.to; }
  void advance() { number_ += 1.0; }
  /// Which of the parts it is, from 0.
  [[nodiscard]] int part() const {
    return static_cast<int>(number_ - parts_ * std::floor(number_ / parts_));
  }

 private:
  UniformMotion motion_;
  double parts_;
  Range range_;
  double number_ = 0.0;
};

class Moons final : public EventSource {
 public:
  explicit Moons(const Range& range)
      : halves_({astro::moonPhaseAtEpoch - astro::sunPhaseAtEpoch,
                 astro::moonMeanMotion - astro::sunMeanMotion},
                2.0, range) {}

  std::optional<Event> next() override {
    if (halves_.isOver()) {
      return std::nullopt;
    }
    const Event event{.kind = EventKind::moon,
                      .baseTime = halves_.moment(),
                      .body = Body::ivro,
                      .isFull = halves_.part() == 1};
    halves_.advance();
    return event;
  }

 private:
  Rounds halves_;
};

class Seasons final : public EventSource {
 public:
  explicit Seasons(const Range& range)
      : quarters_({astro::sunPhaseAtEpoch, astro::sunMeanMotion}, 4.0, range) {}

  std::optional<Event> next() override {
    if (quarters_.isOver()) {
      return std::nullopt;
    }
    const Event event{.kind = EventKind::season,
                      .baseTime = quarters_.moment(),
                      .body = Body::thessil,
                      .quarter = quarters_.part()};
    quarters_.advance();
    return event;
  }

 private:
  Rounds quarters_;
};

class Eclipses final : public EventSource {
 public:
  explicit Eclipses(const Range& range)
      : nodes_({astro::moonLatitudePhase / astro::twoPi, astro::moonNodalRate}, 2.0, range) {}

  std::optional<Event> next() override {
    while (!nodes_.isOver()) {
      const double moment = nodes_.moment();
      nodes_.advance();
      const std::string_view code = astro::lunarEventCode(moment);
      if (!code.empty()) {
        const bool isSolar = code == "TS" || code == "PS";
        return Event{.kind = EventKind::eclipse,
                     .baseTime = moment,
                     .body = isSolar ? Body::thessil : Body::ivro,
                     .code = code};
      }
    }
    return std::nullopt;
  }

 private:
  Rounds nodes_;
};

}  // namespace

OwnedSource moons(const Range& range) {
  return std::make_unique<Moons>(range);
}

OwnedSource seasons(const Range& range) {
  return std::make_unique<Seasons>(range);
}

OwnedSource eclipses(const Range& range) {
  return std::make_unique<Eclipses>(range);
}

}  // namespace veyruna::almanac
