#include "astro/number_text.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "astro/invariant.h"
#include "astro/number_conversion.h"

namespace veyruna::astro {

namespace {

constexpr std::array<std::int64_t, 10> powersOfTen = {
    1, 10, 100, 1'000, 10'000, 100'000, 1'000'000, 10'000'000, 100'000'000, 1'000'000'000};

/// Writes the decimal digits of `value` so that they end at `end`; returns where they begin.
char* writeDigitsBackwards(char* end, std::uint64_t value) {
  do {
    *--end = static_cast<char>('0' + value % 10);
    value /= 10;
  } while (value != 0);
  return end;
}

/// The value times 10^decimals as the nearest whole number, or −1 where that would take more than
/// a product and a comparison to know: for large values, and so close to a tie that the rounding
/// of the product itself could decide.
std::int64_t scaledIfCertain(double magnitude, int decimals) {
  constexpr double largestScaled = 1e9;  // its products are exact to 1.2e-7
  constexpr double tieMargin = 1e-6;
  const double scaled =
      magnitude * static_cast<double>(powersOfTen[static_cast<std::size_t>(decimals)]);
  if (!(scaled < largestScaled)) {
    return -1;
  }
  const auto whole = static_cast<std::int64_t>(scaled);
  const double rest = scaled - static_cast<double>(whole);
  if (std::abs(rest - 0.5) < tieMargin) {
    return -1;
  }
  return rest > 0.5 ? whole + 1 : whole;
}

/// The text of |value|, written to end at `end`; returns where it begins.
char* writeMagnitudeBackwards(char* end, double magnitude, int decimals) {
  const std::int64_t scaled = scaledIfCertain(magnitude, decimals);
  if (scaled < 0) {
    std::array<char, longestFixedText> forwards{};
    char* const written = writeFixed(forwards.data(), magnitude, decimals);
    return std::copy_backward(forwards.data(), written, end);
  }
  auto digits = static_cast<std::uint64_t>(scaled);
  if (decimals > 0) {
    for (int i = 0; i < decimals; ++i) {
      *--end = static_cast<char>('0' + digits % 10);
      digits /= 10;
    }
    *--end = '.';
  }
  return writeDigitsBackwards(end, digits);
}

/// Pads the text that begins at `begin` with zeros up to `width` characters, the sign included,
/// puts the sign in front ('\0' for none) and appends all of it.
void appendPadded(std::string& out, char* begin, char* end, char sign, int width) {
  const int signWidth = sign == '\0' ? 0 : 1;
  while (end - begin + signWidth < width) {
    *--begin = '0';
  }
  if (sign != '\0') {
    *--begin = sign;
  }
  out.append(begin, end);
}

void appendFixedWithSign(std::string& out, double value, char plus, int width, int decimals) {
  requireInvariant(std::isfinite(value), "a number that is printed is finite", value);
  requireInvariant(decimals >= 0 && decimals <= 9 && width <= 64, "a number format is in range",
                   width, decimals);
  std::array<char, longestFixedText + 64> buffer;  // NOLINT(*-member-init): filled from its end
  char* const end = buffer.data() + buffer.size();
  char* const begin = writeMagnitudeBackwards(end, std::abs(value), decimals);
  appendPadded(out, begin, end, std::signbit(value) ? '-' : plus, width);
}

}  // namespace

void appendFixed(std::string& out, double value, int decimals) {
  appendFixedWithSign(out, value, '\0', 0, decimals);
}

void appendSignedFixed(std::string& out, double value, int decimals) {
  appendFixedWithSign(out, value, '+', 0, decimals);
}

void appendPaddedFixed(std::string& out, double value, int width, int decimals) {
  appendFixedWithSign(out, value, '\0', width, decimals);
}

void appendInteger(std::string& out, std::int64_t value) {
  appendPaddedInteger(out, value, 0);
}

void appendPaddedInteger(std::string& out, std::int64_t value, int width) {
  requireInvariant(width <= 64, "a number format is in range", width);
  std::array<char, 96> buffer;  // NOLINT(*-member-init): filled from its end
  char* const end = buffer.data() + buffer.size();
  // The magnitude is taken unsigned, so that the most negative integer has one too.
  const auto bits = static_cast<std::uint64_t>(value);
  char* const begin = writeDigitsBackwards(end, value < 0 ? 0 - bits : bits);
  appendPadded(out, begin, end, value < 0 ? '-' : '\0', width);
}

std::string shortestText(double value) {
  std::array<char, longestShortestText> buffer{};
  return {buffer.data(), writeShortest(buffer.data(), value)};
}

}  // namespace veyruna::astro
