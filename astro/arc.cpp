#include "astro/arc.h"

#include <cmath>

#include "astro/angle.h"
#include "astro/invariant.h"
#include "astro/number_text.h"

namespace veyruna::astro {

namespace {

/// Degrees (then minutes) this close below a whole number count as the whole number.
constexpr double wholeTolerance = 1e-7;

/// The floor of an amount that is never negative, so that the conversion's truncation is the floor.
std::int64_t wholePart(double amount) {
  constexpr double beyondInt64 = 9.2e18;
  requireInvariant(amount < beyondInt64, "the degrees of an angle are a finite 64-bit number",
                   amount);
  return static_cast<std::int64_t>(amount + wholeTolerance);
}

double restInSixtieths(double amount, std::int64_t whole) {
  const double rest = (amount - static_cast<double>(whole)) * 60.0;
  return rest < 0.0 ? 0.0 : rest;
}

}  // namespace

Arc::Arc(double radians) : negative(radians < 0.0) {
  const double degrees = degreesOf(std::abs(radians));
  d = wholePart(degrees);
  const double minutes = restInSixtieths(degrees, d);
  m = wholePart(minutes);
  s = restInSixtieths(minutes, m);
}

void Arc::appendDegMinText(std::string& out) const {
  const char sign = negative ? '-' : ' ';
  const std::int64_t roundedMinutes = s > 30.0 ? m + 1 : m;
  if (d != 0) {
    out += sign;
    appendPaddedInteger(out, d, 3);
  } else {
    out += "   ";
    out += sign;
  }
  out += ':';
  appendPaddedInteger(out, roundedMinutes, 2);
}

void Arc::appendDegMinSecText(std::string& out) const {
  const char sign = negative ? '-' : ' ';
  if (d != 0) {
    out += sign;
    appendPaddedInteger(out, d, 3);
    out += ':';
    appendPaddedInteger(out, m, 2);
    out += ':';
  } else if (m != 0) {
    out += "    ";
    out += sign;
    appendPaddedInteger(out, m, 2);
    out += ':';
  } else {
    out += "       ";
    out += sign;
  }
  appendPaddedFixed(out, s, 2, 0);
}

std::string Arc::degMinText() const {
  std::string text;
  appendDegMinText(text);
  return text;
}

std::string Arc::degMinSecText() const {
  std::string text;
  appendDegMinSecText(text);
  return text;
}

}  // namespace veyruna::astro
