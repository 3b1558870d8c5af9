#include "words/utf8.h"

namespace veyruna::words {

Utf8Piece firstPiece(std::string_view text) {
  const auto byteAt = [text](std::size_t i) {
    return i < text.size() ? static_cast<unsigned char>(text[i]) : 0U;
  };
  const unsigned first = byteAt(0);
  // The second byte alone tells whether a code point is one: its least and most after each first.
  unsigned least = 0x80;
  unsigned most = 0xBF;
  std::size_t length = 1;
  if (first >= 0xC2 && first <= 0xDF) {
    length = 2;
  } else if (first >= 0xE0 && first <= 0xEF) {
    length = 3;
    least = first == 0xE0 ? 0xA0 : least;
    most = first == 0xED ? 0x9F : most;
  } else if (first >= 0xF0 && first <= 0xF4) {
    length = 4;
    least = first == 0xF0 ? 0x90 : least;
    most = first == 0xF4 ? 0x8F : most;
  } else {
    return {1, first < 0x80};
  }
  if (byteAt(1) < least || byteAt(1) > most) {
    return {1, false};
  }
  for (std::size_t i = 2; i < length; ++i) {
    if (byteAt(i) < 0x80 || byteAt(i) > 0xBF) {
      return {i, false};
    }
  }
  return {length, true};
}

bool isUtf8(std::string_view text) {
  while (!text.empty()) {
    const Utf8Piece piece = firstPiece(text);
    if (!piece.isCharacter) {
      return false;
    }
    text.remove_prefix(piece.length);
  }
  return true;
}

std::string validUtf8(std::string_view text) {
  std::string valid;
  while (!text.empty()) {
    const Utf8Piece piece = firstPiece(text);
    valid.append(piece.isCharacter ? text.substr(0, piece.length) : "\uFFFD");
    text.remove_prefix(piece.length);
  }
  return valid;
}

}  // namespace veyruna::words
