#include "words/quoting.h"

#include <algorithm>

namespace veyruna::words {

namespace {

/// The length of the UTF-8 character at the beginning of a text; 0 where there is none: a byte out
/// of place, a piece of a character, a code point written longer than it is, a surrogate, or one
/// beyond U+10FFFF.
std::size_t characterLength(std::string_view text) {
  const auto byteAt = [text](std::size_t i) {
    return i < text.size() ? static_cast<unsigned char>(text[i]) : 0U;
  };
  const unsigned first = byteAt(0);
  // The second byte alone tells whether a code point is one: its least and most after each first.
  unsigned least = 0x80;
  unsigned most = 0xBF;
  std::size_t length = 0;
  if (first < 0x80) {
    return text.empty() ? 0 : 1;
  }
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
  }
  if (byteAt(1) < least || byteAt(1) > most) {
    return 0;
  }
  for (std::size_t i = 2; i < length; ++i) {
    if (byteAt(i) < 0x80 || byteAt(i) > 0xBF) {
      return 0;
    }
  }
  return length;
}

/// Whether a character moves the cursor or worse: U+0000 to U+001F and U+007F to U+009F.
bool isControl(std::string_view character) {
  const auto first = static_cast<unsigned char>(character.front());
  return first < 0x20 || first == 0x7F ||
         (first == 0xC2 && static_cast<unsigned char>(character[1]) < 0xA0);
}

void appendHexadecimal(std::string& out, std::string_view bytes) {
  constexpr std::string_view digits = "0123456789abcdef";
  for (const char byte : bytes) {
    out += "\\x";
    out += digits[static_cast<unsigned char>(byte) / 16U];
    out += digits[static_cast<unsigned char>(byte) % 16U];
  }
}

}  // namespace

bool isUtf8(std::string_view text) {
  while (!text.empty()) {
    const std::size_t length = characterLength(text);
    if (length == 0) {
      return false;
    }
    text.remove_prefix(length);
  }
  return true;
}

std::string inQuotes(std::string_view text) {
  constexpr std::size_t longest = 120;
  std::string out = "\"";
  for (std::size_t done = 0; done < text.size();) {
    const std::size_t length = characterLength(text.substr(done));
    const std::string_view piece = text.substr(done, std::max<std::size_t>(length, 1));
    done += piece.size();
    if (done > longest) {
      out += "…";
      break;
    }
    if (length == 0 || isControl(piece)) {
      appendHexadecimal(out, piece);
      continue;
    }
    if (piece == "\"" || piece == "\\") {
      out += '\\';
    }
    out += piece;
  }
  out += '"';
  return out;
}

std::string asListed(std::string_view name) {
  return charactersOnALine(name) ? std::string(name) : inQuotes(name);
}

std::optional<std::string> asShellWord(std::string_view text) {
  if (!charactersOnALine(text)) {
    return std::nullopt;
  }
  const auto isHarmless = [](char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') ||
           std::string_view("-_.,/:@%+").find(c) != std::string_view::npos;
  };
  if (!text.empty() && std::ranges::all_of(text, isHarmless)) {
    return std::string(text);
  }
  std::string word = "'";
  for (const char c : text) {
    word += c == '\'' ? std::string(R"('\'')") : std::string(1, c);
  }
  return word + "'";
}

std::optional<std::size_t> charactersOnALine(std::string_view text) {
  std::size_t characters = 0;
  for (std::size_t done = 0; done < text.size(); ++characters) {
    const std::size_t length = characterLength(text.substr(done));
    if (length == 0 || isControl(text.substr(done, length))) {
      return std::nullopt;
    }
    done += length;
  }
  return characters;
}

}  // namespace veyruna::words
