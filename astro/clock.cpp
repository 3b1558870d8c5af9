#include "astro/clock.h"

#include <cmath>
#include <limits>

#include "astro/number_conversion.h"
#include "astro/number_text.h"

namespace veyruna::astro {

namespace {

constexpr double minutesPerHour = 60.0;
constexpr double lastHour = 24.0;  // midnight again

bool isOneOrTwoDigits(std::string_view text) {
  return !text.empty() && text.size() <= 2 &&
         text.find_first_not_of("0123456789") == std::string_view::npos;
}

/// All of the text as a number, with or without a plus in front.
std::optional<double> numberFromText(std::string_view text) {
  if (text.size() > 1 && text.front() == '+' && text[1] != '-') {
    text.remove_prefix(1);
  }
  return readDouble(text);
}

}  // namespace

std::string clockText(double hour) {
  std::string text;
  appendPaddedFixed(text, std::trunc(hour) + 0.0, 2, 0);  // + 0.0 makes a zero of −0
  text += ':';
  appendPaddedFixed(text, std::trunc((hour - std::floor(hour)) * minutesPerHour), 2, 0);
  return text;
}

double hourOfClock(double hours, double minutes) {
  double hour = hours + minutes / minutesPerHour;
  while (std::trunc((hour - std::floor(hour)) * minutesPerHour) < minutes) {
    hour = std::nextafter(hour, std::numeric_limits<double>::infinity());
  }
  return hour;
}

std::optional<double> hourFromText(std::string_view text) {
  std::optional<double> hour;
  if (const std::size_t colon = text.find(':'); colon == std::string_view::npos) {
    hour = numberFromText(text);
  } else {
    const std::string_view hours = text.substr(0, colon);
    const std::string_view minutes = text.substr(colon + 1);
    if (isOneOrTwoDigits(hours) && isOneOrTwoDigits(minutes) && minutes.size() == 2 &&
        *numberFromText(minutes) < minutesPerHour) {
      hour = hourOfClock(*numberFromText(hours), *numberFromText(minutes));
    }
  }
  return hour && *hour >= 0.0 && *hour <= lastHour ? hour : std::nullopt;
}

}  // namespace veyruna::astro
