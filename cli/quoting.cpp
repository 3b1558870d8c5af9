#include "cli/quoting.h"

namespace veyruna::cli {

namespace {

unsigned codeOf(char byte) {
  return static_cast<unsigned char>(byte);
}

bool continuesCharacter(char byte) {
  return (codeOf(byte) & 0xC0U) == 0x80U;
}

/// The first bytes of a UTF-8 text, never part of a character.
std::string_view beginningOf(std::string_view text, std::size_t most) {
  if (text.size() <= most) {
    return text;
  }
  while (most > 0 && continuesCharacter(text[most])) {
    --most;
  }
  return text.substr(0, most);
}

void appendHexadecimal(std::string& out, char byte) {
  constexpr std::string_view digits = "0123456789abcdef";
  out += "\\x";
  out += digits[codeOf(byte) / 16U];
  out += digits[codeOf(byte) % 16U];
}

}  // namespace

std::string inQuotes(std::string_view text) {
  constexpr std::size_t longest = 120;
  const std::string_view shown = beginningOf(text, longest);
  std::string out = "\"";
  for (std::size_t i = 0; i < shown.size(); ++i) {
    const unsigned code = codeOf(shown[i]);
    // U+0080 to U+009F are control characters too; in UTF-8 they begin with C2.
    const bool beginsControl = code == 0xC2 && i + 1 < shown.size() && codeOf(shown[i + 1]) < 0xA0;
    const bool isControl =
        code < 0x20 || code == 0x7F || (i > 0 && codeOf(shown[i - 1]) == 0xC2 && code < 0xA0);
    if (isControl || beginsControl) {
      appendHexadecimal(out, shown[i]);
    } else {
      if (shown[i] == '"' || shown[i] == '\\') {
        out += '\\';
      }
      out += shown[i];
    }
  }
  if (shown.size() < text.size()) {
    out += "…";
  }
  out += '"';
  return out;
}

}  // namespace veyruna::cli
