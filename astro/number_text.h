#pragma once

#include <cstdint>
#include <string>
#include <string_view>

/// Numbers as text, the same in every locale. Each function appends to `out` what the C library's
/// printf writes for the format named with it in the "C" locale, to the character.
namespace veyruna::astro {

/// "%.<decimals>f": a finite value with 0 to 9 decimals, halves judged on the exact binary value.
void appendFixed(std::string& out, double value, int decimals);

/// "%+.<decimals>f": as appendFixed, with a leading "+" for values that carry no minus sign.
void appendSignedFixed(std::string& out, double value, int decimals);

/// "%0<width>.<decimals>f": as appendFixed, zero-padded to at least `width` characters.
void appendPaddedFixed(std::string& out, double value, int width, int decimals);

/// "%lld".
void appendInteger(std::string& out, std::int64_t value);

/// "%0<width>lld": zero-padded to at least `width` characters, the minus sign counted.
void appendPaddedInteger(std::string& out, std::int64_t value, int width);

/// The shortest text that reads back as the same double; whole numbers carry no point.
std::string shortestText(double value);

}  // namespace veyruna::astro
