#pragma once

#include <cstdint>
#include <string>

#include "reports/text_sink.h"

namespace veyruna::reports {

/// The ephemeris of moon and sun: a header line, then one line a moment with right ascensions,
/// declinations, longitudes and the moon's latitude in degrees, the phase (0.00 new, 1.00 full) and
/// the risings, settings and eclipses of the 24 hours that follow.
/// `rows` ≥ 0 (a negative count is a broken invariant), `start` and `step` in days of base time,
/// `latitude` in radians. Rising and setting are those of the meridian of longitude 0.
std::string ephemerisTable(std::int64_t rows, double start, double step, double latitude);

/// The same table piece by piece.
void writeEphemerisTable(std::int64_t rows, double start, double step, double latitude,
                         const TextSink& sink);

}  // namespace veyruna::reports
