#include "astro/lunar_phases.h"

#include "astro/bisection.h"
#include "astro/moon.h"
#include "astro/sun.h"

namespace veyruna::astro {

double elongation(double t, double target) {
  return wrappedToHalfTurns(moonLongitude(t) - sunLongitude(t) - target);
}

double nextPhase(const PhaseSearch& search) {
  const auto [start, target] = search;
  constexpr int mostDays = 64;
  double low = start;
  double high = start + 1.0;
  double atLow = elongation(low, target);
  double atHigh = elongation(high, target);
  // The third condition tells the passage through zero from the jump between +π and −π.
  const auto brackets = [&] { return atLow <= 0.0 && atHigh >= 0.0 && atLow < atHigh; };
  for (int day = 0; !brackets() && day < mostDays; ++day) {
    low = high;
    atLow = atHigh;
    high = high + 1.0;
    atHigh = elongation(high, target);
  }
  return bisect({low, high}, [target = target](double t) { return elongation(t, target) >= 0.0; });
}

}  // namespace veyruna::astro
