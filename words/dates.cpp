#include "words/dates.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <string>

#include "astro/angle.h"
#include "astro/clock.h"
#include "astro/local_time.h"
#include "words/quoting.h"
#include "words/usage_error.h"
#include "words/values.h"

namespace veyruna::words {

namespace {

constexpr std::string_view acceptedMoments =
    "a date such as 720-06-12 or 720-Cendo-12, a clock behind it such as 720-06-12T22:30, or days "
    "since noon of the first day behind an @, such as @258900.5";

/// Digits alone, as a number within [least, most].
std::optional<std::int64_t> countOf(std::string_view digits, std::int64_t least,
                                    std::int64_t most) {
  std::int64_t number = 0;
  const char* const end = digits.data() + digits.size();
  const auto read = std::from_chars(digits.data(), end, number);
  const bool isNumber = read.ec == std::errc{} && read.ptr == end && digits.front() != '-';
  return isNumber && number >= least && number <= most ? std::optional(number) : std::nullopt;
}

/// What stands in front of the first `mark` and what stands behind it.
struct Halves {
  std::string_view front;
  std::optional<std::string_view> back;  ///< nothing where there is no mark
};
Halves cutAt(char mark, std::string_view text) {
  const std::size_t at = text.find(mark);
  return at == std::string_view::npos ? Halves{text, {}}
                                      : Halves{text.substr(0, at), text.substr(at + 1)};
}

struct Unit {
  std::string_view one;
  double days;
};
constexpr std::array units = {Unit{"day", 1.0}, Unit{"month", astro::daysPerMonth},
                              Unit{"year", astro::daysPerYear}};

/// Its days; nothing for what is no unit.
std::optional<double> daysOf(std::string_view word) {
  if (word.ends_with('s')) {
    word.remove_suffix(1);
  }
  const auto* const unit = std::ranges::find(units, word, &Unit::one);
  return unit == units.end() ? std::nullopt : std::optional(unit->days);
}

}  // namespace

double checkedBaseTime(double baseTime, const std::string& what) {
  if (!(std::abs(baseTime) <= astro::baseTimeLimitDays)) {
    throw UsageError(what +
                     " is too far away; moments within 1000000000 days of the epoch are accepted");
  }
  return baseTime;
}

std::optional<astro::CalendarReading> dayOf(std::string_view text) {
  const auto [year, rest] = cutAt('-', text);
  const auto [month, day] = cutAt('-', rest.value_or(""));
  const auto yearNumber = countOf(year, firstYear, lastYear);
  const auto monthIndex = monthIndexOf(month);
  const auto dayNumber = countOf(day.value_or(""), 1, astro::daysPerMonth);
  if (!yearNumber || !monthIndex || !dayNumber) {
    return std::nullopt;
  }
  return astro::CalendarReading{
      .year = *yearNumber, .monthIndex = *monthIndex, .dayIndex = *dayNumber - 1, .hour = 0.0};
}

double readMoment(std::string_view what, std::string_view text, std::optional<double> longitude) {
  const std::string named = std::string(what) + ": " + inQuotes(text);
  if (text.starts_with('@')) {
    const std::optional<double> baseTime = numberOf(text.substr(1));
    if (!baseTime) {
      refuse(what, text, acceptedMoments);
    }
    return checkedBaseTime(*baseTime, named);
  }
  const auto [day, clock] = cutAt('T', text);
  std::optional<astro::CalendarReading> reading = dayOf(day);
  const std::optional<double> hour = clock ? astro::hourFromText(*clock) : 0.0;
  if (!reading || !hour) {
    refuse(what, text, acceptedMoments);
  }
  reading->hour = *hour;
  return checkedBaseTime(
      longitude ? astro::localBaseTime(*reading, *longitude) : astro::standardBaseTime(*reading),
      named);
}

double readLength(std::string_view what, std::string_view text) {
  const std::size_t letters = std::min(text.find_first_of("dmy"), text.size());
  std::string_view number = text.substr(0, letters);
  while (number.ends_with(' ')) {
    number.remove_suffix(1);
  }
  const std::optional<double> unit = daysOf(text.substr(letters));
  const std::optional<double> count = numberOf(number);
  if (!unit || !count || *count < 0.0) {
    refuse(what, text, "a number with its unit, such as \"12 days\", \"3 months\" or \"10 years\"");
  }
  return *count * *unit;
}

double readEnd(std::string_view prefix, const TypedStretch& typed, double from,
               std::optional<double> longitude) {
  const std::string before(prefix);
  if (typed.length) {
    return checkedBaseTime(from + readLength(before + "for", *typed.length),
                           before + "for: " + inQuotes(*typed.length));
  }
  const double to = readMoment(before + "to", *typed.to, longitude);
  if (to < from) {
    throw UsageError(before + "to: " + inQuotes(*typed.to) + " is before " + before + "from " +
                     inQuotes(typed.from));
  }
  return to;
}

}  // namespace veyruna::words
