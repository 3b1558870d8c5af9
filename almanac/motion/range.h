#pragma once

namespace veyruna::almanac {

/// The moments that are sought: `from` among them, `to` no more. Base times within
/// astro::baseTimeLimitDays.
struct Range {
  double from = 0.0;
  double to = 0.0;
};

}  // namespace veyruna::almanac
