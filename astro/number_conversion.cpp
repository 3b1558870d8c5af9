#include "astro/number_conversion.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <string>

namespace veyruna::astro {

namespace {

char* append(char* end, std::string_view text) {
  return std::copy(text.begin(), text.end(), end);
}

/// A finite value's decimal digits d.ddd… and its power of ten, with as few digits as read back.
struct Decimal {
  std::string digits;
  int exponent = 0;
};

Decimal shortestDecimal(double magnitude) {
  std::array<char, longestShortestText> text{};
  for (int decimals = 0; decimals < std::numeric_limits<double>::max_digits10; ++decimals) {
    std::snprintf(text.data(), text.size(), "%.*e", decimals, magnitude);
    if (std::strtod(text.data(), nullptr) == magnitude) {
      break;
    }
  }
  const std::string_view written = text.data();
  const std::size_t mark = written.find('e');
  Decimal decimal{.digits = std::string(written.substr(0, mark)),
                  .exponent = std::atoi(text.data() + mark + 1)};
  std::erase(decimal.digits, '.');
  return decimal;
}

std::string scientific(const Decimal& decimal) {
  std::string text = decimal.digits.substr(0, 1);
  if (decimal.digits.size() > 1) {
    text += '.' + decimal.digits.substr(1);
  }
  const int power = std::abs(decimal.exponent);
  return text + (decimal.exponent < 0 ? "e-" : "e+") + (power < 10 ? "0" : "") +
         std::to_string(power);
}

/// Without an exponent. A whole number shows all of its digits, those beyond the shortest too.
std::string plain(const Decimal& decimal, double magnitude) {
  const auto places = static_cast<int>(decimal.digits.size());
  if (decimal.exponent + 1 >= places) {
    std::array<char, longestFixedText> whole{};
    return {whole.data(), by_c_library::writeFixed(whole.data(), magnitude, 0)};
  }
  if (decimal.exponent < 0) {
    return "0." + std::string(static_cast<std::size_t>(-decimal.exponent - 1), '0') +
           decimal.digits;
  }
  std::string text = decimal.digits;
  return text.insert(static_cast<std::size_t>(decimal.exponent) + 1, ".");
}

bool isDigit(char letter) {
  return letter >= '0' && letter <= '9';
}

/// Passes over digits; returns how many there were.
std::size_t passDigits(std::string_view& text) {
  const auto end = std::find_if_not(text.begin(), text.end(), isDigit);
  const auto count = static_cast<std::size_t>(end - text.begin());
  text.remove_prefix(count);
  return count;
}

bool passOneOf(std::string_view& text, std::string_view letters) {
  const bool isThere = !text.empty() && letters.find(text.front()) != std::string_view::npos;
  text.remove_prefix(isThere ? 1 : 0);
  return isThere;
}

/// Whether it is written as a number is, and no more than one.
bool isDecimalNumber(std::string_view text) {
  passOneOf(text, "-");
  std::size_t digits = passDigits(text);
  if (passOneOf(text, ".")) {
    digits += passDigits(text);
  }
  if (digits == 0) {
    return false;
  }
  if (passOneOf(text, "eE")) {
    passOneOf(text, "+-");
    return passDigits(text) > 0 && text.empty();
  }
  return text.empty();
}

/// The words of what is no finite number, their letters in either case.
std::optional<double> readWord(std::string_view text) {
  std::string word;
  for (const char letter : text) {
    word += letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
  }
  const double sign = word.starts_with('-') ? -1.0 : 1.0;
  word.erase(0, sign < 0.0 ? 1 : 0);
  if (word == "inf" || word == "infinity") {
    return sign * std::numeric_limits<double>::infinity();
  }
  return word == "nan" ? std::optional(std::numeric_limits<double>::quiet_NaN()) : std::nullopt;
}

}  // namespace

std::string withPlainSign(std::string_view text) {
  constexpr std::string_view minusSign = "−";
  std::string plain(text);
  if (text.starts_with(minusSign)) {
    plain.replace(0, minusSign.size(), "-");
  } else if (text.size() > 1 && text.front() == '+' && text[1] != '-') {
    plain.erase(0, 1);
  }
  return plain;
}

std::optional<double> readTypedNumber(std::string_view text) {
  const std::optional<double> number = readDouble(withPlainSign(text));
  return number && std::isfinite(*number) ? number : std::nullopt;
}

namespace by_c_library {

char* writeFixed(char* begin, double value, int decimals) {
  return begin + std::snprintf(begin, longestFixedText, "%.*f", decimals, value);
}

char* writeShortest(char* begin, double value) {
  if (std::signbit(value)) {
    begin = append(begin, "-");
  }
  const double magnitude = std::abs(value);
  if (!std::isfinite(magnitude)) {
    return append(begin, std::isnan(magnitude) ? "nan" : "inf");
  }
  const Decimal decimal = shortestDecimal(magnitude);
  const std::string withExponent = scientific(decimal);
  const std::string without = plain(decimal, magnitude);
  return append(begin, without.size() <= withExponent.size() ? without : withExponent);
}

std::optional<double> readDouble(std::string_view text) {
  if (!isDecimalNumber(text)) {
    return readWord(text);
  }
  const double value = std::strtod(std::string(text).c_str(), nullptr);
  const bool isTooLarge = std::isinf(value);
  const bool isTooSmall =
      value == 0.0 && text.find_first_of("123456789") < text.find_first_of("eE");
  return isTooLarge || isTooSmall ? std::nullopt : std::optional(value);
}

}  // namespace by_c_library

#if defined(__cpp_lib_to_chars)

char* writeFixed(char* begin, double value, int decimals) {
  return std::to_chars(begin, begin + longestFixedText, value, std::chars_format::fixed, decimals)
      .ptr;
}

char* writeShortest(char* begin, double value) {
  return std::to_chars(begin, begin + longestShortestText, value).ptr;
}

std::optional<double> readDouble(std::string_view text) {
  double number = 0.0;
  const char* const end = text.data() + text.size();
  const auto read = std::from_chars(text.data(), end, number);
  return read.ec == std::errc{} && read.ptr == end ? std::optional(number) : std::nullopt;
}

#else

char* writeFixed(char* begin, double value, int decimals) {
  return by_c_library::writeFixed(begin, value, decimals);
}

char* writeShortest(char* begin, double value) {
  return by_c_library::writeShortest(begin, value);
}

std::optional<double> readDouble(std::string_view text) {
  return by_c_library::readDouble(text);
}

#endif

}  // namespace veyruna::astro
