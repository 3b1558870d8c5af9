#pragma once

#include <algorithm>

/// The hours that slider and steps lead to: the quarters from 00:00 to 23:45.
namespace veyruna::ui {

inline constexpr double quarterHour = 0.25;
inline constexpr int lastQuarter = 95;
inline constexpr double lastQuarterHour = lastQuarter * quarterHour;  // 23:45

/// The hour so many quarters on. What lies outside the quarters of a day, such as 23:59, first
/// comes to their border.
inline double hourAfter(double hour, int quarters) {
  const double border = std::clamp(hour, 0.0, lastQuarterHour);
  return border != hour ? border : std::clamp(hour + quarters * quarterHour, 0.0, lastQuarterHour);
}

}  // namespace veyruna::ui
