#pragma once

#include "astro/angle.h"

namespace veyruna::astro {

/// Elongations asked of nextPhase.
inline constexpr double fullMoonElongation = pi;
inline constexpr double newMoonElongation = 0.0;

/// Longitude of the moon less that of the sun less `target` at base time `t` (days), in [−π, π]. A
/// moment or target that is not finite is a broken invariant, here and below.
double elongation(double t, double target);

/// The first moment after base time `start` (days) at which the elongation passes `target`
/// (radians), to within phaseToleranceDays. The search never looks further than 64 days, twice
/// the 30 that bracket any phase, so that it ends for every finite start.
double nextPhase(double start, double target);

}  // namespace veyruna::astro
