#include "astro/calendar.h"

#include <cmath>

#include "astro/invariant.h"
#include "astro/number_text.h"

namespace veyruna::astro {

namespace {

constexpr std::int64_t secondsPerMinute = 60;
constexpr std::int64_t secondsPerHour = 3600;
constexpr std::int64_t secondsPerDay = 86400;
constexpr std::int64_t secondsPerMonth = daysPerMonth * secondsPerDay;
constexpr std::int64_t secondsPerYear = daysPerYear * secondsPerDay;

}  // namespace

double standardBaseTime(std::int64_t year, std::int64_t monthIndex, std::int64_t dayIndex,
                        double hour) {
  const double wholeHours = std::trunc(hour);
  const double wholeMinutes = std::trunc((hour - std::floor(hour)) * 60.0);
  // The sum runs from left to right; in doubles, so that no stored year can overflow it.
  return (static_cast<double>(year) - 1.0) * daysPerYear +
         static_cast<double>(monthIndex) * daysPerMonth + static_cast<double>(dayIndex) +
         wholeHours / 24.0 + wholeMinutes / 1440.0 - 0.5;
}

void appendCalendarLabel(std::string& out, double baseTime) {
  constexpr double beyondInt64 = 9.2e18;
  const double rounded = std::round((baseTime + 0.5) * static_cast<double>(secondsPerDay));
  requireInvariant(std::abs(rounded) < beyondInt64, "a base time is a 64-bit number of seconds");

  // Integer division truncates toward zero, so the fields of a moment before the first midnight are
  // negative instead of borrowing from the year.
  const auto seconds = static_cast<std::int64_t>(rounded);
  const std::int64_t year = seconds / secondsPerYear + 1;
  const std::int64_t inYear = seconds - (year - 1) * secondsPerYear;
  const std::int64_t inMonth = inYear % secondsPerMonth;
  const std::int64_t inDay = inMonth % secondsPerDay;

  appendPaddedInteger(out, year, 3);
  out += '-';
  appendPaddedInteger(out, inYear / secondsPerMonth + 1, 2);
  out += '-';
  appendPaddedInteger(out, inMonth / secondsPerDay + 1, 2);
  out += ' ';
  appendPaddedInteger(out, inDay / secondsPerHour, 2);
  out += ':';
  appendPaddedInteger(out, (inDay % secondsPerHour) / secondsPerMinute, 2);
  out += " OST";
}

std::string calendarLabel(double baseTime) {
  std::string text;
  appendCalendarLabel(text, baseTime);
  return text;
}

}  // namespace veyruna::astro
