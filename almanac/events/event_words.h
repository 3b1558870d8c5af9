#pragma once

#include <string>

#include "almanac/events/event.h"

namespace veyruna::almanac {

/// What happens, in words a person reads, without its moment: "total eclipse of the sun", "Galvi
/// turns backward", "Bralo and Dunmor meet, 0.31° apart; within 2° from 720-01-03 11:40 to
/// 720-01-09 02:05". Both ends are standard time.
std::string wordsOf(const Event& event);

}  // namespace veyruna::almanac
