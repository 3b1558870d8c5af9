#include "words/values.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <optional>

#include "astro/angle.h"
#include "astro/calendar.h"
#include "astro/clock.h"
#include "astro/number_conversion.h"
#include "astro/number_text.h"
#include "words/quoting.h"
#include "words/usage_error.h"

namespace veyruna::words {

namespace {

/// All of `text` as a whole number, or nothing.
std::optional<std::int64_t> wholeNumberOf(std::string_view text) {
  const std::string plain = astro::withPlainSign(text);
  std::int64_t number = 0;
  const char* const end = plain.data() + plain.size();
  const auto read = std::from_chars(plain.data(), end, number);
  return read.ec == std::errc{} && read.ptr == end ? std::optional(number) : std::nullopt;
}

char lowered(char letter) {
  return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

/// What the letters behind an angle mean: `positive` and `negative` in lower case.
struct Hemispheres {
  char positive;
  char negative;
};

/// Degrees with a sign, or with a hemisphere's letter behind them, as radians.
std::optional<double> angleOf(std::string_view text, double most, Hemispheres letters) {
  constexpr std::string_view degreeSign = "°";
  std::string_view number = text;
  const char letter = number.empty() ? '\0' : lowered(number.back());
  const bool hasLetter = letter == letters.positive || letter == letters.negative;
  if (hasLetter) {
    number.remove_suffix(1);
    while (number.ends_with(' ')) {
      number.remove_suffix(1);
    }
  }
  if (number.ends_with(degreeSign)) {
    number.remove_suffix(degreeSign.size());
  }
  const std::optional<double> degrees = numberOf(number);
  if (!degrees || std::abs(*degrees) > most || (hasLetter && std::signbit(*degrees))) {
    return std::nullopt;
  }
  const double radians = astro::radiansOf(*degrees);
  return hasLetter && letter == letters.negative ? -radians : radians;
}

constexpr double mostLatitude = 90.0;
constexpr double mostLongitude = 180.0;
constexpr Hemispheres northAndSouth{'n', 's'};
constexpr Hemispheres eastAndWest{'e', 'w'};

}  // namespace

void refuse(std::string_view what, std::string_view text, std::string_view accepted) {
  throw UsageError(std::string(what) + ": " + inQuotes(text) + " is not accepted; give " +
                   std::string(accepted));
}

bool equalIgnoringCase(std::string_view a, std::string_view b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [](char x, char y) { return lowered(x) == lowered(y); });
}

std::optional<double> numberOf(std::string_view text) {
  return astro::readTypedNumber(text);
}

std::optional<std::int64_t> monthIndexOf(std::string_view text) {
  const auto* const named =
      std::find_if(astro::monthNames.begin(), astro::monthNames.end(),
                   [text](std::string_view name) { return equalIgnoringCase(name, text); });
  if (named != astro::monthNames.end()) {
    return named - astro::monthNames.begin();
  }
  const std::optional<std::int64_t> number = wholeNumberOf(text);
  return number && *number >= 1 && *number <= astro::monthsPerYear ? std::optional(*number - 1)
                                                                   : std::nullopt;
}

std::int64_t readWholeNumber(std::string_view what, std::string_view text, std::int64_t least,
                             std::int64_t most) {
  const std::optional<std::int64_t> number = wholeNumberOf(text);
  if (!number || *number < least || *number > most) {
    refuse(what, text,
           "a whole number from " + std::to_string(least) + " to " + std::to_string(most));
  }
  return *number;
}

double readNumber(std::string_view what, std::string_view text, double least, double most) {
  const std::optional<double> number = numberOf(text);
  if (!number || *number < least || *number > most) {
    std::string accepted = "a number from ";
    astro::appendFixed(accepted, least, 0);
    accepted += " to ";
    astro::appendFixed(accepted, most, 0);
    refuse(what, text, accepted);
  }
  return *number;
}

std::int64_t readMonthIndex(std::string_view what, std::string_view text) {
  const std::optional<std::int64_t> index = monthIndexOf(text);
  if (!index) {
    std::string accepted = "1 to 12 or one of";
    for (const std::string_view name : astro::monthNames) {
      accepted.append(" ").append(name);
    }
    refuse(what, text, accepted);
  }
  return *index;
}

double readHour(std::string_view what, std::string_view text) {
  const std::optional<double> hour = astro::hourFromText(text);
  if (!hour) {
    refuse(what, text, acceptedHour);
  }
  return *hour;
}

double readLatitude(std::string_view what, std::string_view text) {
  const std::optional<double> latitude = latitudeOf(text);
  if (!latitude) {
    refuse(what, text, "degrees from -90 to 90, or 0 to 90 with N or S such as 40.5N");
  }
  return *latitude;
}

std::optional<double> latitudeOf(std::string_view text) {
  return angleOf(text, mostLatitude, northAndSouth);
}

double readLongitude(std::string_view what, std::string_view text) {
  const std::optional<double> longitude = longitudeOf(text);
  if (!longitude) {
    refuse(what, text, "degrees from -180 to 180, or 0 to 180 with E or W such as 20.9W");
  }
  return *longitude;
}

std::optional<double> longitudeOf(std::string_view text) {
  return angleOf(text, mostLongitude, eastAndWest);
}

double readStepDays(std::string_view text) {
  const std::size_t slash = text.find('/');
  const std::optional<double> above = numberOf(text.substr(0, slash));
  const std::optional<double> below =
      slash == std::string_view::npos ? 1.0 : numberOf(text.substr(slash + 1));
  if (above && below && *below != 0.0 && std::abs(*above / *below) <= astro::baseTimeLimitDays) {
    return *above / *below;
  }
  refuse("--step", text, "days such as 0.5 or 1/24, not more than 1000000000 either way");
}

}  // namespace veyruna::words
