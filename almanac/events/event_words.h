#pragma once

#include <string>

#include "almanac/events/event.h"

namespace veyruna::almanac {

/// What happens, in words a person reads, without its moment: "total eclipse of the sun", "Galvi
/// turns backward", "Bralo and Dunmor meet, 0.31° apart; within 2° from 720-01-03 11:40 to
/// 720-01-09 02:05". Both ends are standard time.
std::string wordsOf(const Event& event);

/// An altitude or azimuth (radians) in degrees to a tenth, "38.1"; what rounds to "-0.0" or "360.0"
/// is "0.0".
std::string tenthsText(double radians);

}  // namespace veyruna::almanac
