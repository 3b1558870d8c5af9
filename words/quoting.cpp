#include "words/quoting.h"

#include <algorithm>

#include "words/utf8.h"

namespace veyruna::words {

namespace {

/// The length of the character at the beginning; 0 where there is none.
std::size_t characterLength(std::string_view text) {
  const Utf8Piece piece = text.empty() ? Utf8Piece{0, false} : firstPiece(text);
  return piece.isCharacter ? piece.length : 0;
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
