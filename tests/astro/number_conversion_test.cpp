// What stands in where a C++ library has no conversions of doubles, against one that has them.
#include "astro/number_conversion.h"

#include <array>
#include <bit>
#include <charconv>
#include <clocale>
#include <cmath>
#include <gtest/gtest.h>
#include <random>
#include <string>

namespace veyruna {
namespace {

/// Puts the "C" locale back for as long as it lives, as the conversions of the C library want it.
class PlainLocale {
 public:
  PlainLocale() : before_(std::setlocale(LC_ALL, nullptr)) { std::setlocale(LC_ALL, "C"); }
  PlainLocale(const PlainLocale&) = delete;
  PlainLocale& operator=(const PlainLocale&) = delete;
  ~PlainLocale() { std::setlocale(LC_ALL, before_.c_str()); }

 private:
  std::string before_;
};

std::string shortest(double value) {
  std::array<char, astro::longestShortestText> text{};
  return {text.data(), astro::by_c_library::writeShortest(text.data(), value)};
}

std::string shortestOfLibrary(double value) {
  std::array<char, 64> text{};
  return {text.data(), std::to_chars(text.data(), text.data() + text.size(), value).ptr};
}

std::string fixed(double value, int decimals) {
  std::array<char, astro::longestFixedText> text{};
  return {text.data(), astro::by_c_library::writeFixed(text.data(), value, decimals)};
}

std::string fixedOfLibrary(double value, int decimals) {
  std::array<char, astro::longestFixedText> text{};
  return {text.data(), std::to_chars(text.data(), text.data() + text.size(), value,
                                     std::chars_format::fixed, decimals)
                           .ptr};
}

void compareTexts(double value) {
  ASSERT_EQ(shortest(value), shortestOfLibrary(value));
  for (const int decimals : {0, 1, 2, 3, 6, 9}) {
    ASSERT_EQ(fixed(value, decimals), fixedOfLibrary(value, decimals)) << decimals;
  }
}

/// Ours and the library's reading of a text, as bits; 1 where it is none.
std::pair<std::uint64_t, std::uint64_t> readings(const std::string& text) {
  const std::optional<double> ours = astro::by_c_library::readDouble(text);
  double number = 0.0;
  const auto read = std::from_chars(text.data(), text.data() + text.size(), number);
  const bool isNumber = read.ec == std::errc{} && read.ptr == text.data() + text.size();
  return {ours ? std::bit_cast<std::uint64_t>(*ours) : 1,
          isNumber ? std::bit_cast<std::uint64_t>(number) : 1};
}

TEST(NumberConversion, NumbersOfEveryKindAreWrittenAsTheLibraryDoes) {
  const PlainLocale plain;
  for (const double value : {0.0,
                             -0.0,
                             0.5,
                             1.0,
                             -1.5,
                             1e15,
                             1e16,
                             1e17,
                             1e21,
                             1e22,
                             1e23,
                             123456.0,
                             0.0001,
                             0.00001,
                             1e-5,
                             5e-324,
                             2.2250738585072014e-308,
                             1.7976931348623157e308,
                             9007199254740993.0,
                             123456789012345678.0,
                             0.1,
                             0.3,
                             1.0 / 3.0,
                             100000.0,
                             1200000.0}) {
    compareTexts(value);
    compareTexts(-value);
  }
  EXPECT_EQ(shortest(std::numeric_limits<double>::infinity()), "inf");
  EXPECT_EQ(shortest(-std::numeric_limits<double>::infinity()), "-inf");
  EXPECT_EQ(shortest(std::numeric_limits<double>::quiet_NaN()), "nan");
}

TEST(NumberConversion, AnyNumberIsWrittenAsTheLibraryDoes) {
  const PlainLocale plain;
  std::mt19937_64 random(720);  // NOLINT(*-msc51-cpp): the same numbers in every run
  std::uniform_real_distribution<double> moment(-1e9, 1e9);
  for (int i = 0; i < 20'000; ++i) {
    const auto anyBits = std::bit_cast<double>(random());
    if (std::isfinite(anyBits)) {
      compareTexts(anyBits);
    }
    compareTexts(moment(random));
    compareTexts(std::round(moment(random) * 100.0) / 100.0);
  }
}

TEST(NumberConversion, TextsAreReadAsTheLibraryDoes) {
  const PlainLocale plain;
  for (const char* text :
       {"0",        "-0",    "1",        "1.5",   ".5",        "5.",
        ".",        "",      "-",        "+1",    " 1",        "1 ",
        "1e5",      "1e",    "1e+",      "1e+5",  "1e-5",      "1E5",
        "0x10",     "1.5.5", "inf",      "-inf",  "INF",       "nan",
        "Nan",      "infin", "infinity", "1e400", "-1e400",    "1,5",
        "0e99",     "--1",   "1e5e5",    "1d5",   "0.1",       "123456789012345678901234567890",
        "4.9e-324", "-",     "e5",       ".e5",   "1e0000005", "00012"}) {
    const auto [ours, library] = readings(text);
    EXPECT_EQ(ours, library) << text;
  }
}

TEST(NumberConversion, WhatWasWrittenIsReadAsTheSame) {
  const PlainLocale plain;
  std::mt19937_64 random(721);  // NOLINT(*-msc51-cpp): the same numbers in every run
  for (int i = 0; i < 20'000; ++i) {
    const auto value = std::bit_cast<double>(random());
    if (!std::isfinite(value)) {
      continue;
    }
    const auto [ours, library] = readings(shortest(value));
    ASSERT_EQ(ours, library) << shortest(value);
    ASSERT_EQ(ours, std::bit_cast<std::uint64_t>(value));
  }
}

}  // namespace
}  // namespace veyruna
