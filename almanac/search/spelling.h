#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>

/// How words are spelt, and which of them was meant.
namespace veyruna::almanac {

/// A text with the Latin capitals small.
std::string lowered(std::string_view text);

/// A text as it was spelt.
struct Spelling {
  std::string_view text;

  /// How many letters must be put in, left out, changed or exchanged with their neighbour to make
  /// the other of it, whatever their case.
  [[nodiscard]] std::size_t distanceTo(std::string_view other) const;
};

/// The word that is spelt nearest to a text; empty where none is near: more than about
/// a third of the letters would have to change, one of two to four.
std::string nearestTo(std::string_view text, std::span<const std::string> words);

}  // namespace veyruna::almanac
