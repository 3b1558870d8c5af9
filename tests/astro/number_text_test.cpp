// Every format against what the C library prints in the "C" locale: about two million numbers.
#include "astro/number_text.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstring>
#include <functional>
#include <gtest/gtest.h>
#include <limits>
#include <random>
#include <rapidcheck/gtest.h>

#include "tests/support/c_printf.h"
#include "tests/support/random_sky.h"

namespace veyruna {
namespace {

using astro::shortestText;
using tests::printedInC;

template <class Append>
std::string appended(Append append) {
  std::string text;
  append(text);
  return text;
}

/// Compares one text; says which number and format failed.
void expectSame(const std::string& ours, const std::string& printed, double value,
                const char* format, int decimals) {
  if (ours != printed) {
    ADD_FAILURE() << format << " with " << decimals << " decimals of " << printedInC("%a", value)
                  << ": " << ours << " instead of " << printed;
  }
}

void comparePlain(double value, int decimals) {
  expectSame(appended([&](std::string& out) { astro::appendFixed(out, value, decimals); }),
             printedInC("%.*f", decimals, value), value, "%.*f", decimals);
}

void compareSigned(double value, int decimals) {
  expectSame(appended([&](std::string& out) { astro::appendSignedFixed(out, value, decimals); }),
             printedInC("%+.*f", decimals, value), value, "%+.*f", decimals);
}

void comparePadded(double value, int width, int decimals) {
  expectSame(
      appended([&](std::string& out) { astro::appendPaddedFixed(out, value, width, decimals); }),
      printedInC("%0*.*f", width, decimals, value), value, "%0*.*f", decimals);
}

/// The formats of every document, and plain ones of every number of decimals.
void compareEverywhere(double value) {
  for (int decimals = 0; decimals <= 9; ++decimals) {
    comparePlain(value, decimals);
  }
  compareSigned(value, 1);
  comparePadded(value, 6, 2);
  comparePadded(value, 2, 0);
}

void compareWithNeighbours(double value) {
  constexpr double infinity = std::numeric_limits<double>::infinity();
  for (const double near :
       {value, std::nextafter(value, -infinity), std::nextafter(value, infinity)}) {
    compareEverywhere(near);
    compareEverywhere(-near);
  }
}

TEST(NumberText, HalvesGoToTheEvenDigitWhereTheyAreExact) {
  const auto fixed = [](double value, int decimals) {
    return appended([&](std::string& out) { astro::appendFixed(out, value, decimals); });
  };
  EXPECT_EQ(fixed(0.125, 2), "0.12");
  EXPECT_EQ(fixed(0.375, 2), "0.38");
  EXPECT_EQ(fixed(0.5, 0), "0");
  EXPECT_EQ(fixed(1.5, 0), "2");
  EXPECT_EQ(fixed(2.5, 0), "2");
  EXPECT_EQ(fixed(0.65, 1), "0.7");  // the double lies above 0.65
  EXPECT_EQ(fixed(0.35, 1), "0.3");  // and this one below 0.35
}

TEST(NumberText, ZeroKeepsItsSign) {
  const auto signedText = [](double value) {
    return appended([&](std::string& out) { astro::appendSignedFixed(out, value, 1); });
  };
  EXPECT_EQ(signedText(0.0), "+0.0");
  EXPECT_EQ(signedText(-0.0), "-0.0");
  EXPECT_EQ(signedText(-0.04), "-0.0");
  EXPECT_EQ(appended([](std::string& out) { astro::appendFixed(out, -0.001, 2); }), "-0.00");
  EXPECT_EQ(appended([](std::string& out) { astro::appendPaddedFixed(out, -0.0, 6, 2); }),
            "-00.00");
}

TEST(NumberText, ZerosAndTiesAndTheirNeighboursArePrintedAsCDoes) {
  for (const double value : {0.0, 0.125, 0.5, 0.65, 1.5, 2.5, 59.5, 99.995, 359.995, 999.5, 1e9}) {
    compareWithNeighbours(value);
  }
}

TEST(NumberText, ThousandthsAndHalfHundredthsArePrintedAsCDoes) {
  for (int k = 0; k <= 20000; ++k) {
    compareEverywhere(k / 1000.0);
    compareEverywhere(-k * 0.005);
  }
}

TEST(NumberText, HalvesOfTheLastDecimalArePrintedAsCDoes) {
  std::mt19937_64 bits(1);
  for (int decimals = 0; decimals <= 9; ++decimals) {
    const double scale = std::pow(10.0, decimals);
    for (int k = 0; k < 2500; ++k) {
      const double whole = k < 500 ? k : static_cast<double>(bits() % 3'000'000'000U);
      const double tie = (whole + 0.5) / scale;
      for (const double near : {tie, std::nextafter(tie, 0.0), std::nextafter(tie, 1e18)}) {
        comparePlain(near, decimals);
        compareSigned(-near, decimals);
      }
    }
  }
}

TEST(NumberText, NumbersOfEveryMagnitudeArePrintedAsCDoes) {
  std::mt19937_64 bits(2);
  for (int i = 0; i < 40000; ++i) {
    const double fraction = static_cast<double>(bits() >> 11U) * 0x1p-53;
    const double value = (fraction - 0.5) * std::pow(10.0, static_cast<double>(bits() % 30) - 11.0);
    compareEverywhere(value);
    comparePadded(value, static_cast<int>(bits() % 20), static_cast<int>(bits() % 10));
  }
}

TEST(NumberText, AnyBitsThatAreANumberArePrintedAsCDoes) {
  std::mt19937_64 bits(3);
  for (int i = 0; i < 30000; ++i) {
    const std::uint64_t pattern = bits();
    double value = 0.0;
    std::memcpy(&value, &pattern, sizeof value);
    if (std::isfinite(value)) {
      comparePlain(value, static_cast<int>(bits() % 10));
      compareSigned(value, 1);
      comparePadded(value, 6, 2);
    }
  }
  for (const double value : {std::numeric_limits<double>::max(), std::numeric_limits<double>::min(),
                             std::numeric_limits<double>::denorm_min(), 0x1p53, 0x1p63}) {
    compareWithNeighbours(value == std::numeric_limits<double>::max() ? value * 0.5 : value);
  }
  compareEverywhere(std::numeric_limits<double>::max());
  compareEverywhere(std::numeric_limits<double>::lowest());
}

void compareInteger(std::int64_t value) {
  const auto printable = static_cast<long long>(value);
  ASSERT_EQ(appended([&](std::string& out) { astro::appendInteger(out, value); }),
            printedInC("%lld", printable));
  for (int width = 0; width <= 12; ++width) {
    ASSERT_EQ(appended([&](std::string& out) { astro::appendPaddedInteger(out, value, width); }),
              printedInC("%0*lld", width, printable));
  }
}

TEST(NumberText, IntegersArePrintedAsCDoes) {
  for (std::int64_t value = -12000; value <= 12000; ++value) {
    compareInteger(value);
  }
  std::mt19937_64 bits(4);
  for (int i = 0; i < 30000; ++i) {
    const std::uint64_t magnitude = bits() >> (bits() % 64);
    compareInteger(static_cast<std::int64_t>(magnitude));
    compareInteger(static_cast<std::int64_t>(0 - magnitude));
  }
  compareInteger(std::numeric_limits<std::int64_t>::min());
  compareInteger(std::numeric_limits<std::int64_t>::max());
}

double readBack(const std::string& text) {
  double value = 0.0;
  const auto read = std::from_chars(text.data(), text.data() + text.size(), value);
  RC_ASSERT(read.ptr == text.data() + text.size());
  return value;
}

TEST(NumberText, ShortestTextsOfWholeNumbersCarryNoPoint) {
  EXPECT_EQ(shortestText(0.0), "0");
  EXPECT_EQ(shortestText(-0.0), "-0");
  EXPECT_EQ(shortestText(258840.0), "258840");
  EXPECT_EQ(shortestText(-3.0), "-3");
  EXPECT_EQ(shortestText(0.1), "0.1");
  EXPECT_EQ(shortestText(258839.75), "258839.75");
}

RC_GTEST_PROP(NumberText, ShortestTextsReadBackAsTheSameDouble, ()) {
  const double value = *rc::gen::oneOf(tests::finiteDoubles(), tests::moments());
  const double back = readBack(shortestText(value));
  RC_ASSERT(back == value);
  RC_ASSERT(std::signbit(back) == std::signbit(value));
}

RC_GTEST_PROP(NumberText, NoTextWithFewerDigitsReadsBack, ()) {
  const double value = *rc::gen::oneOf(tests::finiteDoubles(), tests::moments());
  const std::string text = shortestText(value);
  RC_PRE(text.find_first_of(".e") != std::string::npos);  // whole numbers show all their digits
  std::string digits;
  for (const char c : text.substr(0, text.find('e'))) {
    if (c >= '0' && c <= '9' && !(digits.empty() && c == '0')) {
      digits += c;
    }
  }
  digits.erase(digits.find_last_not_of('0') + 1);
  RC_PRE(digits.size() >= 2U);
  const int decimalsOfOneDigitLess = static_cast<int>(digits.size()) - 2;
  RC_ASSERT(readBack(printedInC("%.*e", decimalsOfOneDigitLess, value)) != value);
}

}  // namespace
}  // namespace veyruna
