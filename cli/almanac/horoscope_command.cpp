#include "cli/almanac/horoscope_command.h"

#include <cmath>
#include <numeric>

#include "astro/angle.h"
#include "astro/number_text.h"
#include "words/quoting.h"
#include "words/values.h"

namespace veyruna::cli {

namespace {

/// As few digits as say the second, where that still lies within.
double middleOf(const almanac::Span& span) {
  constexpr double steps = 1e5;
  const double middle = std::midpoint(span.begin, span.end);
  const double rounded = std::round(middle * steps) / steps;
  return rounded > span.begin && rounded < span.end ? rounded : middle;
}

/// Degrees with as few digits as read back as this very angle.
std::string degreesText(double radians) {
  const double degrees = astro::typedDegreesOf(radians);
  for (int decimals = 0; decimals < 10; ++decimals) {
    std::string text;
    astro::appendFixed(text, degrees, decimals);
    if (astro::radiansOf(words::numberOf(text).value_or(degrees)) == radians) {
      return text;
    }
  }
  return astro::shortestText(degrees);
}

}  // namespace

HoroscopeCommand::HoroscopeCommand(const Typed& typed, const std::optional<Place>& place) {
  if (!place) {
    return;
  }
  const std::optional<std::string> name = words::asShellWord(typed.location);
  if (!typed.location.empty() && name) {
    placeOptions_ = (typed.location.starts_with('-') ? " --location=" : " --location ") + *name;
  } else {
    placeOptions_ =
        " --lat " + degreesText(place->latitude) + " --long " + degreesText(place->longitude);
  }
}

std::string HoroscopeCommand::of(const almanac::Span& span) const {
  return "veyruna --base-time " + astro::shortestText(middleOf(span)) + placeOptions_ +
         " horoscope";
}

}  // namespace veyruna::cli
