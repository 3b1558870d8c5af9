#pragma once

#include <cstddef>
#include <string>
#include <string_view>

/// UTF-8, and what is none: a byte out of place, a piece of a character, a code point written
/// longer than it is, a surrogate, or one beyond U+10FFFF.
namespace veyruna::words {

/// What stands at the beginning of a text that is not empty.
struct Utf8Piece {
  std::size_t length;  ///< bytes, at least 1; of what is no character, as much as could begin one
  bool isCharacter;
};
Utf8Piece firstPiece(std::string_view text);

/// Whether all of `text` is UTF-8.
bool isUtf8(std::string_view text);

/// The text itself, each piece that is no character replaced by U+FFFD.
std::string validUtf8(std::string_view text);

}  // namespace veyruna::words
