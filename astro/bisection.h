#pragma once

#include <cmath>

namespace veyruna::astro {

/// The end of every search for a moment, in days: about 8.6 seconds.
inline constexpr double phaseToleranceDays = 0.0001;

/// The two ends of what is searched; `low` may be the later one.
struct Interval {
  double low;
  double high;
};

/// Halves the interval until it is no longer than phaseToleranceDays and
/// returns the middle of what is left. `crossingIsBefore(t)` says whether the moment sought lies in
/// the half that ends at `t`. Ends also where neighbouring doubles leave nothing to halve.
template <class CrossingIsBefore>
double bisect(const Interval& interval, CrossingIsBefore crossingIsBefore) {
  auto [low, high] = interval;
  double middle = (low + high) / 2.0;
  while (std::abs(high - low) > phaseToleranceDays) {
    if (crossingIsBefore(middle)) {
      high = middle;
    } else {
      low = middle;
    }
    const double next = (low + high) / 2.0;
    if (next == middle) {
      break;
    }
    middle = next;
  }
  return middle;
}

/// The moment of the interval at which `signAt(t)` (only its sign counts) changes.
/// `signAtLow` is its value at `low`. An exact zero moves the low end, for good.
template <class SignAt>
double bisectSignChange(const Interval& interval, double signAtLow, SignAt signAt) {
  return bisect(interval, [&](double t) {
    const double sign = signAt(t);
    const bool changesBefore = (signAtLow < 0.0 && sign > 0.0) || (signAtLow > 0.0 && sign < 0.0);
    if (!changesBefore) {
      signAtLow = sign;
    }
    return changesBefore;
  });
}

}  // namespace veyruna::astro
