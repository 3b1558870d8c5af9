#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// The world's calendar: 12 months of 30 days, 360 days a year, no leap rule.
/// A moment is a base time: days, 0.0 at noon of day 1 of month 1 of year 1.
namespace veyruna::astro {

inline constexpr int monthsPerYear = 12;
inline constexpr int daysPerMonth = 30;
inline constexpr int daysPerYear = 360;

/// The beginning of day 1 of month 1 of year 1.
inline constexpr double firstMidnight = -0.5;

inline constexpr std::array<std::string_view, monthsPerYear> monthNames = {
    "Brenwic", "Tolma",  "Dovri", "Ambro", "Fiskel", "Ulvenhar",
    "Cendo",   "Virela", "Grend", "Oskam", "Rulig",  "Thaven"};

/// A clock reading of the calendar. What lies outside its ranges simply continues the sum of
/// standardBaseTime; nothing is clamped.
struct CalendarReading {
  std::int64_t year;        ///< from 1
  std::int64_t monthIndex;  ///< 0 to 11
  std::int64_t dayIndex;    ///< 0 to 29
  double hour;              ///< 0 to 24, with a fraction

  friend bool operator==(const CalendarReading&, const CalendarReading&) = default;
};

/// Base time of a clock reading in standard time. The seconds of its hour are dropped.
double standardBaseTime(const CalendarReading& reading);

/// What calendarLabel reads at a base time, its hour below 24 as hourOfClock; standardBaseTime of
/// it has the same label. Nothing before the first midnight (−0.5), whose fields no calendar has,
/// or for what calendarLabel does not take.
std::optional<CalendarReading> calendarReading(double baseTime);

/// A moment of the calendar to the second, in standard time.
struct CalendarMoment {
  std::int64_t year;   ///< from 1
  std::int64_t month;  ///< 1 to 12
  std::int64_t day;    ///< 1 to 30
  std::int64_t hour;
  std::int64_t minute;
  std::int64_t second;

  friend bool operator==(const CalendarMoment&, const CalendarMoment&) = default;
};

/// What calendarLabel reads at a base time, with the second that it leaves out. Nothing where
/// calendarReading has nothing.
std::optional<CalendarMoment> calendarMoment(double baseTime);

/// "720-01-01 12:00 OST": the standard-time reading of a base time, rounded to the second and then
/// cut to the minute. Before the first midnight (−0.5) the fields turn negative. A base time whose
/// seconds overflow 64 bits is a broken invariant.
std::string calendarLabel(double baseTime);
void appendCalendarLabel(std::string& out, double baseTime);

}  // namespace veyruna::astro
