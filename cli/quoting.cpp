#include "cli/quoting.h"

namespace veyruna::cli {

std::string inQuotes(std::string_view text) {
  constexpr std::size_t longest = 120;
  constexpr std::string_view digits = "0123456789abcdef";
  std::string out = "\"";
  for (const char byte : text.substr(0, longest)) {
    const auto code = static_cast<unsigned char>(byte);
    if (code < 0x20 || code == 0x7F) {
      out += "\\x";
      out += digits[code / 16U];
      out += digits[code % 16U];
    } else {
      out += byte;
    }
  }
  if (text.size() > longest) {
    out += "…";
  }
  out += '"';
  return out;
}

}  // namespace veyruna::cli
