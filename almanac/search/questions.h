#pragma once

#include <functional>

#include "almanac/motion/change.h"
#include "almanac/search/condition.h"
#include "astro/observer.h"

namespace veyruna::almanac {

/// Whether something holds at a base time, and for how long from then on nothing can change.
using Question = std::function<State(double)>;

/// Of where the bodies stand on the ecliptic.
Question question(const InSign& in);
Question question(const Together& pair);
Question question(const MoonIs& moon);
Question question(const Running& running);
Question question(const EclipseLasts& eclipse);
Question question(const PowerIs& is);
Question question(const KeepIs& is);
Question question(const ElementIs& is);
Question question(const Favours& favours);

/// Of what stands where above a place's horizon; the moment of `place` does not matter.
Question question(const RisingSign& rising, const astro::Observer& place);
Question question(const NatalIs& is, const astro::Observer& place);
Question question(const DominantSphere& is, const astro::Observer& place);
Question question(const BodyAbove& is, const astro::Observer& place);
Question question(const StarAbove& is, const astro::Observer& place);
Question question(const LightIs& is, const astro::Observer& place);

/// Whose clock and calendar is read: standard time, or the local solar time of a longitude.
/// Before their first midnight neither has an hour nor a date: no such condition holds.
struct Clock {
  bool isLocal = false;
  double longitude = 0.0;  ///< radians
};
Question question(const HourBetween& hours, const Clock& clock);
Question question(const MonthIs& is, const Clock& clock);
Question question(const DayIs& is, const Clock& clock);

}  // namespace veyruna::almanac
