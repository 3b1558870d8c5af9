#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <optional>
#include <string>

#include "astro/observer.h"
#include "reports/rise_set.h"
#include "reports/table_size.h"
#include "reports/text_sink.h"

namespace veyruna::reports {

/// What happens in each quarter of the 24 hours that follow a moment, if anything.
template <class Event>
using PerQuarter = std::array<std::optional<Event>, 4>;

/// Moon and sun at a moment; angles in radians.
struct EphemerisEntry {
  double baseTime = 0.0;  ///< days
  double moonRightAscension = 0.0;
  double moonDeclination = 0.0;
  double moonLatitude = 0.0;
  double moonLongitude = 0.0;
  double sunRightAscension = 0.0;
  double sunDeclination = 0.0;
  double sunLongitude = 0.0;
  double phase = 0.0;  ///< 0 new, 1 full
  PerQuarter<RiseSet> moonEvents{};
  PerQuarter<RiseSet> sunEvents{};
  PerQuarter<double> eclipses{};  ///< their moments; see astro::nodeEclipse
};

/// Hands on what each line of the ephemeris is made of, in order.
void forEachEphemerisEntry(const astro::Observer& observer, const TableSize& size,
                           const std::function<void(const EphemerisEntry&)>& take);

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
