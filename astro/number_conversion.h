#pragma once

#include <optional>
#include <string>
#include <string_view>

/// Doubles to digits and back, exactly and in no locale's way. The C++ library's own conversions do
/// it where there are any; not every library that knows C++20 has those of doubles.
namespace veyruna::astro {

/// Room for the longest fixed text of a double: 309 digits, sign, point and nine decimals.
inline constexpr int longestFixedText = 336;
/// Room for the shortest text of any double.
inline constexpr int longestShortestText = 32;

/// Writes "%.<decimals>f" of a finite value from `begin` on, where there is room for
/// longestFixedText; returns where it ends.
char* writeFixed(char* begin, double value, int decimals);

/// Writes the shortest text that reads back as the same double, where there is room for
/// longestShortestText: of the shorter of "%f" and "%e", "%f" where they are as long. Infinite
/// values and NaN are "inf" and "nan". Returns where it ends.
char* writeShortest(char* begin, double value);

/// All of `text` as a number: digits with or without a point and an exponent, a minus in front or
/// none, "inf" and "nan". Nothing where it is none, or one that no double is near to.
std::optional<double> readDouble(std::string_view text);

/// A number as a person types it, its sign as readDouble takes it: a typographic minus as "-", and
/// no plus in front. Other notations stay as they are.
std::string withPlainSign(std::string_view text);

/// All of such a text as a finite number, or nothing.
std::optional<double> readTypedNumber(std::string_view text);

/// The same by means of the C library, which must be in the "C" locale.
namespace by_c_library {

char* writeFixed(char* begin, double value, int decimals);
char* writeShortest(char* begin, double value);
std::optional<double> readDouble(std::string_view text);

}  // namespace by_c_library

}  // namespace veyruna::astro
