#pragma once

#include "astro/angle.h"

namespace veyruna::astro {

/// Elongations asked of nextPhase.
inline constexpr double fullMoonElongation = pi;
inline constexpr double newMoonElongation = 0.0;

/// Longitude of the moon less that of the sun less `target` at base time `t` (days), in [−π, π]. A
/// moment or target that is not finite is a broken invariant, here and below.
double elongation(double t, double target);

/// What is sought by nextPhase.
struct PhaseSearch {
  double start;       ///< base time, days
  double elongation;  ///< radians
};

/// The first moment after the search's start at which its elongation passes, to within
/// phaseToleranceDays. The search never looks further than 64 days, twice the 30 that bracket any
/// phase, so that it ends for every finite start.
double nextPhase(const PhaseSearch& search);

}  // namespace veyruna::astro
