#pragma once

namespace veyruna::astro {

/// Whose sky it is: a moment and a place on the globe, which go together everywhere.
struct Observer {
  double baseTime = 0.0;   ///< days since noon of the first day, within baseTimeLimitDays
  double latitude = 0.0;   ///< radians, north positive
  double longitude = 0.0;  ///< radians, east positive

  /// The same place at another moment.
  [[nodiscard]] Observer at(double otherBaseTime) const {
    return {.baseTime = otherBaseTime, .latitude = latitude, .longitude = longitude};
  }

  friend bool operator==(const Observer&, const Observer&) = default;
};

}  // namespace veyruna::astro
