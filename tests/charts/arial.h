#pragma once

#include <array>
#include <stdexcept>
#include <string>
#include <string_view>

/// How much room the charts' names take: the metrics of Arial, which Liberation Sans shares.
namespace veyruna::tests {

/// Units of the font's design grid to the type size.
inline constexpr double gridPerEm = 2048.0;

/// The type size of every name on the charts, in user units.
inline constexpr double typeSize = 5.0;

/// How far letters reach above and below their line: the tallest is the "f", the deepest the "g".
inline constexpr double ascent = 1484.0 / gridPerEm * typeSize;
inline constexpr double descent = 425.0 / gridPerEm * typeSize;

/// From one letter to the next, on the design grid.
inline int advanceOf(char letter) {
  constexpr std::array<int, 26> small = {1139, 1139, 1024, 1139, 1139, 569,  1139, 1139, 455,
                                         455,  1024, 455,  1706, 1139, 1139, 1139, 1139, 682,
                                         1024, 569,  1139, 1024, 1479, 1024, 1024, 1024};
  constexpr std::array<int, 26> capital = {1366, 1366, 1479, 1479, 1366, 1251, 1593, 1479, 569,
                                           1024, 1366, 1139, 1706, 1479, 1593, 1366, 1593, 1479,
                                           1366, 1251, 1479, 1366, 1933, 1366, 1366, 1251};
  if (letter >= 'a' && letter <= 'z') {
    return small[static_cast<std::size_t>(letter - 'a')];
  }
  if (letter >= 'A' && letter <= 'Z') {
    return capital[static_cast<std::size_t>(letter - 'A')];
  }
  if (letter == ' ') {
    return 569;
  }
  throw std::invalid_argument(std::string("no width is known for ") + letter);
}

/// The width of a name on the charts, in user units, without kerning.
inline double widthOf(std::string_view name) {
  int onGrid = 0;
  for (const char letter : name) {
    onGrid += advanceOf(letter);
  }
  return onGrid / gridPerEm * typeSize;
}

}  // namespace veyruna::tests
