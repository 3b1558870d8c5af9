#pragma once

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>
#include <optional>

/// The one search of the almanac. Whatever is asked of the sky either holds or does not, and its
/// motions have bounds; so at any moment it is known for how long nothing can change. The search
/// steps by that, and misses nothing.
namespace veyruna::almanac {

/// Whether something holds at a moment, and for how many days it cannot become otherwise: a lower
/// bound, backwards as forwards only where the bound says so.
struct State {
  bool holds = false;
  double unchangedFor = 0.0;
};

/// Intervals shorter than this many days, a tenth of a second, may be passed over.
inline constexpr double leastStepDays = 1e-6;

/// For how many days a distance stays above 0: `distance` ≥ 0 now, growing by `rate` a day, its
/// rate changing by at most `bend` a day. Infinite where it cannot come to 0.
inline double daysUntilReached(double distance, double rate, double bend) {
  constexpr double forever = std::numeric_limits<double>::infinity();
  if (bend <= 0.0) {
    return rate < 0.0 ? distance / -rate : forever;
  }
  return (rate + std::sqrt(rate * rate + 2.0 * bend * distance)) / bend;
}

/// How near the moment of a change is found.
struct Precision {
  double days = leastStepDays;
  bool isOfTheFirst = false;  ///< whether roundings about the change are looked through, too
};

/// A change has one moment then, from wherever it was sought.
inline constexpr Precision toTheLastDouble{.days = 0.0};

/// The same where the answer flickers about a change, as that of a sign which a slow body enters.
inline constexpr Precision toTheFirstDouble{.days = 0.0, .isOfTheFirst = true};

/// Where roundings let the answer flicker from one double to the next about a change, halving ends
/// at any of them: the first of them, `after` being one, towards `from`.
template <class StateAt>
double firstChanged(StateAt& stateAt, bool held, double from, double after) {
  constexpr int longestGap = 8;  // doubles; they flicker for a few
  double before = std::nextafter(after, from);
  int gap = 0;
  while (gap < longestGap && before != from) {
    ++gap;
    if (stateAt(before).holds != held) {
      after = before;
      gap = 0;
    }
    before = std::nextafter(before, from);
  }
  return after;
}

/// The first moment after `from`, not after `to`, at which what `stateAt` tells has changed, found
/// to within the precision. Nothing where it never does.
/// `to` may be earlier than `from`: then the last such moment before it, and what `unchangedFor`
/// says must hold backwards.
template <class StateAt>
std::optional<double> nextChange(StateAt stateAt, double from, double to,
                                 Precision precision = {}) {
  const double direction = to < from ? -1.0 : 1.0;
  double before = from;
  State state = stateAt(before);
  const bool held = state.holds;
  while (before != to) {
    const double step = std::max(state.unchangedFor, leastStepDays);
    const double left = std::abs(to - before);
    double after = step < left ? before + direction * step : to;
    if (after == before) {
      after = std::nextafter(before, to);
    }
    state = stateAt(after);
    if (state.holds != held) {
      while (std::abs(after - before) > precision.days) {
        const double middle = std::midpoint(before, after);
        if (middle == before || middle == after) {
          break;
        }
        (stateAt(middle).holds == held ? before : after) = middle;
      }
      return precision.isOfTheFirst ? firstChanged(stateAt, held, from, after) : after;
    }
    before = after;
  }
  return std::nullopt;
}

}  // namespace veyruna::almanac
