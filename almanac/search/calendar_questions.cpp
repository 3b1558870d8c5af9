// α right ascension of the sun, n its daily motion, ε obliquity; all rates in turns.
#include <algorithm>
#include <cmath>

#include "almanac/search/questions.h"
#include "astro/angle.h"
#include "astro/calendar.h"
#include "astro/horizon.h"
#include "astro/rotation.h"
#include "astro/sun.h"

namespace veyruna::almanac {

namespace {

// A local clock gains dα/dt less than the sky turns. α runs between n cos ε and n / cos ε a day, so
// that a local clock never gains or loses more than this a day on standard time.
constexpr double mostGain = 0.0002;
static_assert(astro::siderealRate - astro::sunMeanMotion * astro::cosObliquity - 1.0 < mostGain);
static_assert(1.0 + astro::sunMeanMotion / astro::cosObliquity - astro::siderealRate < mostGain);

/// Days and their parts since a calendar's first midnight.
struct Elapsed {
  double days;
  double unchangedFor;  ///< in days: as long as they run on without a leap
  double fastest;       ///< the most they gain in a day
};

/// A moment is a sum of days and parts of a day, and may lie a rounding before the minute it names.
constexpr double rounding = 1e-9;

Elapsed elapsedAt(const Clock& clock, double t) {
  const double standard = t - astro::firstMidnight + rounding;
  if (!clock.isLocal) {
    return {standard, std::numeric_limits<double>::infinity(), 1.0};
  }
  const double hourAngle =
      astro::localSiderealAngle({.baseTime = t, .latitude = 0.0, .longitude = clock.longitude}) -
      astro::Sun(t).eq.phi;
  // Local noon is the one within half a day of the standard one.
  const double solar = hourAngle / astro::twoPi + 0.5;
  const double ahead = std::remainder(solar - std::fmod(standard, 1.0), 1.0);
  return {standard + ahead, (0.5 - std::abs(ahead)) / mostGain, 1.0 + mostGain};
}

/// From `from` up to `to`, days.
struct DayPart {
  double from;
  double to;
};

/// Holds in that part of every `round` days, over its end where `from` is the later.
Question inEveryRound(double round, const DayPart& held, const Clock& clock) {
  return [round, from = held.from, to = held.to, clock](double t) {
    const Elapsed elapsed = elapsedAt(clock, t);
    if (elapsed.days < 0.0) {
      return State{false, std::min(elapsed.unchangedFor, -elapsed.days / elapsed.fastest)};
    }
    const double part = std::fmod(elapsed.days, round);
    const bool holds = from < to ? part >= from && part < to : part >= from || part < to;
    const auto until = [&](double edge) {
      const double way = edge - part;
      return way < 0.0 ? way + round : way;
    };
    const double next = std::min(until(from), until(to));
    return State{holds, std::min(elapsed.unchangedFor, next / elapsed.fastest)};
  };
}

}  // namespace

Question question(const HourBetween& hours, const Clock& clock) {
  constexpr double hoursPerDay = 24.0;
  return inEveryRound(1.0, {hours.from / hoursPerDay, hours.to / hoursPerDay}, clock);
}

Question question(const MonthIs& is, const Clock& clock) {
  const double from = is.monthIndex * astro::daysPerMonth;
  return inEveryRound(astro::daysPerYear, {from, from + astro::daysPerMonth}, clock);
}

Question question(const DayIs& is, const Clock& clock) {
  const double from = is.dayIndex;
  return inEveryRound(astro::daysPerMonth, {from, from + 1.0}, clock);
}

}  // namespace veyruna::almanac
