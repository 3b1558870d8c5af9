#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "astro/calendar.h"

/// Moments and lengths of time in one word each, as a person types them.
namespace veyruna::words {

/// The first year, and the last that begins within the engine's range.
inline constexpr std::int64_t firstYear = 1;
inline constexpr std::int64_t lastYear = 2'777'778;

/// The base time itself, where it is within the engine's range. Throws UsageError, in which `what`
/// names the moment.
double checkedBaseTime(double baseTime, const std::string& what);

/// The day of "720-06-12" or "720-Cendo-12", its hour 0; nothing for anything else. The year is
/// within [firstYear, lastYear].
std::optional<astro::CalendarReading> dayOf(std::string_view text);

/// The base time of a day's beginning ("720-06-12"), of a clock on it ("720-06-12T22:30") or itself
/// ("@-12.5"). A clock is standard time; at a longitude (radians), that of the place. Throws
/// UsageError, in which `what` names the moment.
double readMoment(std::string_view what, std::string_view text,
                  std::optional<double> longitude = {});

/// Days of "12 days", "3 months" or "0.5 years", not below 0 and perhaps infinite. Throws
/// UsageError.
double readLength(std::string_view what, std::string_view text);

/// A stretch of time as it was typed: to a moment, or for a length.
struct TypedStretch {
  std::string from;
  std::optional<std::string> to;  ///< one of these two is there
  std::optional<std::string> length;
};

/// The base time of its end, where it begins at `from` (days); a clock is that of `longitude`, as
/// above. Throws UsageError, in which `prefix` stands before "from", "to" and "for".
double readEnd(std::string_view prefix, const TypedStretch& typed, double from,
               std::optional<double> longitude);

}  // namespace veyruna::words
