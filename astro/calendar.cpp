#include "astro/calendar.h"

#include <cmath>

#include "astro/clock.h"
#include "astro/invariant.h"
#include "astro/number_text.h"

namespace veyruna::astro {

namespace {

constexpr std::int64_t secondsPerMinute = 60;
constexpr std::int64_t secondsPerHour = 3600;
constexpr std::int64_t secondsPerDay = 86400;
constexpr std::int64_t secondsPerMonth = daysPerMonth * secondsPerDay;
constexpr std::int64_t secondsPerYear = daysPerYear * secondsPerDay;

struct CalendarFields {
  std::int64_t year;
  std::int64_t monthIndex;
  std::int64_t dayIndex;
  std::int64_t hour;
  std::int64_t minute;
  std::int64_t second;
  bool isBeforeFirstMidnight;
};

/// The fields of a base time rounded to the second; nothing where its seconds overflow 64 bits.
std::optional<CalendarFields> fieldsAt(double baseTime) {
  constexpr double beyondInt64 = 9.2e18;
  const double rounded = std::round((baseTime + 0.5) * static_cast<double>(secondsPerDay));
  if (!(std::abs(rounded) < beyondInt64)) {
    return std::nullopt;
  }
  // Integer division truncates toward zero, so the fields of a moment before the first midnight are
  // negative instead of borrowing from the year.
  const auto seconds = static_cast<std::int64_t>(rounded);
  const std::int64_t year = seconds / secondsPerYear + 1;
  const std::int64_t inYear = seconds - (year - 1) * secondsPerYear;
  const std::int64_t inMonth = inYear % secondsPerMonth;
  const std::int64_t inDay = inMonth % secondsPerDay;
  return CalendarFields{year,
                        inYear / secondsPerMonth,
                        inMonth / secondsPerDay,
                        inDay / secondsPerHour,
                        (inDay % secondsPerHour) / secondsPerMinute,
                        inDay % secondsPerMinute,
                        seconds < 0};
}

}  // namespace

double standardBaseTime(const CalendarReading& reading) {
  const auto& [year, monthIndex, dayIndex, hour] = reading;
  const double wholeHours = std::trunc(hour);
  const double wholeMinutes = std::trunc((hour - std::floor(hour)) * 60.0);
  // The sum runs from left to right; in doubles, so that no stored year can overflow it.
  return (static_cast<double>(year) - 1.0) * daysPerYear +
         static_cast<double>(monthIndex) * daysPerMonth + static_cast<double>(dayIndex) +
         wholeHours / 24.0 + wholeMinutes / 1440.0 - 0.5;
}

std::optional<CalendarReading> calendarReading(double baseTime) {
  const std::optional<CalendarFields> fields = fieldsAt(baseTime);
  if (!fields || fields->isBeforeFirstMidnight) {
    return std::nullopt;
  }
  return CalendarReading{
      fields->year, fields->monthIndex, fields->dayIndex,
      hourOfClock(static_cast<double>(fields->hour), static_cast<double>(fields->minute))};
}

std::optional<CalendarMoment> calendarMoment(double baseTime) {
  const std::optional<CalendarFields> fields = fieldsAt(baseTime);
  if (!fields || fields->isBeforeFirstMidnight) {
    return std::nullopt;
  }
  return CalendarMoment{fields->year, fields->monthIndex + 1, fields->dayIndex + 1,
                        fields->hour, fields->minute,         fields->second};
}

void appendCalendarLabel(std::string& out, double baseTime) {
  const std::optional<CalendarFields> fields = fieldsAt(baseTime);
  requireInvariant(fields.has_value(), "a base time is a 64-bit number of seconds", baseTime);
  appendPaddedInteger(out, fields->year, 3);
  out += '-';
  appendPaddedInteger(out, fields->monthIndex + 1, 2);
  out += '-';
  appendPaddedInteger(out, fields->dayIndex + 1, 2);
  out += ' ';
  appendPaddedInteger(out, fields->hour, 2);
  out += ':';
  appendPaddedInteger(out, fields->minute, 2);
  out += " OST";
}

std::string calendarLabel(double baseTime) {
  std::string text;
  appendCalendarLabel(text, baseTime);
  return text;
}

}  // namespace veyruna::astro
