#pragma once

#include <string>

#include "astro/observer.h"
#include "reports/table_size.h"
#include "reports/text_sink.h"

namespace veyruna::reports {

/// The ephemeris of moon and sun: a header line, then one line a moment with right ascensions,
/// declinations, longitudes and the moon's latitude in degrees, the phase (0.00 new, 1.00 full) and
/// the risings, settings and eclipses of the 24 hours that follow.
/// It begins at the observer's moment. Rising and setting are those of the observer's latitude on
/// the meridian of longitude 0; the observer's longitude does not matter.
std::string ephemerisTable(const astro::Observer& observer, const TableSize& size);

/// The same table piece by piece.
void writeEphemerisTable(const astro::Observer& observer, const TableSize& size,
                         const TextSink& sink);

}  // namespace veyruna::reports
