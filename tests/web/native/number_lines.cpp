#include "tests/web/native/number_lines.h"

#include <array>
#include <cmath>
#include <cstdint>
#include <cstring>

#include "astro/number_conversion.h"
#include "astro/number_text.h"

namespace veyruna::tests {

namespace {

/// The next of a row of numbers that is the same with every library (splitmix64).
std::uint64_t nextBits(std::uint64_t& state) {
  state += 0x9e3779b97f4a7c15U;
  std::uint64_t mixed = state;
  mixed = (mixed ^ (mixed >> 30U)) * 0xbf58476d1ce4e5b9U;
  mixed = (mixed ^ (mixed >> 27U)) * 0x94d049bb133111ebU;
  return mixed ^ (mixed >> 31U);
}

std::uint64_t bitsOf(double value) {
  std::uint64_t bits = 0;
  std::memcpy(&bits, &value, sizeof bits);
  return bits;
}

double ofBits(std::uint64_t bits) {
  double value = 0.0;
  std::memcpy(&value, &bits, sizeof value);
  return value;
}

void appendLine(std::string& lines, double value) {
  const std::string shortest = astro::shortestText(value);
  astro::appendInteger(lines, static_cast<std::int64_t>(bitsOf(value)));
  lines += ' ' + shortest + ' ';
  astro::appendInteger(
      lines, static_cast<std::int64_t>(bitsOf(astro::readDouble(shortest).value_or(std::nan("")))));
  for (const int decimals : {0, 1, 2, 3, 9}) {
    lines += ' ';
    astro::appendFixed(lines, value, decimals);
  }
  lines += '\n';
}

}  // namespace

std::string numberLines() {
  std::string lines;
  for (const double value : {0.0, -0.0, 0.5, 1.5, 2.5, -0.25, 0.125, 1e15, 1e21, 1e22, 5e-324,
                             1.7976931348623157e308, 0.1, 1.0 / 3.0, 999999999.5}) {
    appendLine(lines, value);
  }
  std::uint64_t state = 720;
  for (int i = 0; i < 5'000; ++i) {
    const double anyBits = ofBits(nextBits(state));
    if (std::isfinite(anyBits)) {
      appendLine(lines, anyBits);
    }
    const auto whole = static_cast<double>(nextBits(state) % 2'000'000'000'000U);
    appendLine(lines, whole / 1000.0 - 1e9);           // a moment
    appendLine(lines, std::floor(whole / 7.0) / 8.0);  // where halves are exact
  }
  return lines;
}

}  // namespace veyruna::tests
