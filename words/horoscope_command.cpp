#include "words/horoscope_command.h"

#include <cmath>
#include <numeric>

#include "astro/number_text.h"
#include "words/angles.h"

namespace veyruna::words {

namespace {

/// As few digits as say the second, where that still lies within.
double middleOf(const almanac::Span& span) {
  constexpr double steps = 1e5;
  const double middle = std::midpoint(span.begin, span.end);
  const double rounded = std::round(middle * steps) / steps;
  return rounded > span.begin && rounded < span.end ? rounded : middle;
}

}  // namespace

std::string placeOptions(double latitude, double longitude) {
  return " --lat " + degreesText(latitude) + " --long " + degreesText(longitude);
}

std::string horoscopeCommand(const almanac::Span& span, const std::string& options) {
  return "veyruna --base-time " + astro::shortestText(middleOf(span)) + options + " horoscope";
}

}  // namespace veyruna::words
