#pragma once

#include <limits>
#include <optional>
#include <string>
#include <string_view>

#include "astro/observer.h"
#include "astro/vec3d.h"

namespace veyruna::reports {

/// The interval, in days, in which one rising or setting is sought.
inline constexpr double eventIntervalDays = 0.25;

/// A body that rises and sets: its direction at a base time (days) and the codes of its events.
struct RisingBody {
  astro::Vec3D (*ecliptic)(double t);  ///< direction at base time t, from the world's centre
  std::string_view riseCode;           ///< three characters
  std::string_view setCode;            ///< three characters
};

/// A body passes the horizon.
struct RiseSet {
  double baseTime = 0.0;  ///< days
  bool isRise = true;
};

extern const RisingBody risingMoon;  ///< "MR@", "MS@"
extern const RisingBody risingSun;   ///< "SR@", "SS@"

/// Finds the risings and settings of one body at one latitude on the reference meridian.
/// Keeps the altitude it met last, for the interval that begins where the one before ended.
class RiseSetSearch {
 public:
  /// Latitude in radians, positive north.
  RiseSetSearch(const RisingBody& body, double latitude);

  /// The event in [start, start + step] (days); nothing where the body does not pass the horizon.
  std::optional<RiseSet> event(double start, double step);

  /// Appends its text, or nothing.
  void appendEvent(std::string& out, double start, double step);

 private:
  [[nodiscard]] astro::Observer at(double t) const;
  [[nodiscard]] double sineOfAltitude(double t) const;
  [[nodiscard]] double altitude(double t) const;
  [[nodiscard]] double signOfAltitude(double t) const;
  [[nodiscard]] bool isOnHorizon(double t, double sine) const;

  const RisingBody& body_;
  double latitude_;
  double cosLatitude_;
  double sinLatitude_;
  double lastEnd_ = std::numeric_limits<double>::quiet_NaN();
  double signAtLastEnd_ = 0.0;
};

/// Appends code, clock reading and one blank, such as "MR@18:47 ". The clock is that of the base
/// time's fraction, whose day begins at noon: an event at 06:00 reads 18:00.
void appendRiseSetText(std::string& out, const RisingBody& body, const RiseSet& event);

/// One event as a text of its own; see RiseSetSearch::appendEvent.
std::string moonRiseSetEvent(double start, double step, double latitude);
std::string sunRiseSetEvent(double start, double step, double latitude);

}  // namespace veyruna::reports
