#pragma once

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace veyruna::tests {

/// The lines of a text without their line feeds; a text that does not end with one is none.
inline std::vector<std::string> linesOf(const std::string& text) {
  std::vector<std::string> lines;
  std::size_t begin = 0;
  for (std::size_t end = text.find('\n'); end != std::string::npos; end = text.find('\n', begin)) {
    lines.push_back(text.substr(begin, end - begin));
    begin = end + 1;
  }
  return begin == text.size() ? lines : std::vector<std::string>();
}

/// How many characters the calendar label at the beginning of a line takes.
inline std::size_t labelWidth(const std::string& line) {
  return line.find(" OST") + 4;
}

/// Whether a text has the shape of a pattern, character by character: '9' stands for any digit,
/// '-' for a minus sign or a blank, '*' for anything; all else stands for itself.
inline bool hasShape(std::string_view text, std::string_view pattern) {
  const auto fits = [](char c, char p) {
    switch (p) {
      case '9':
        return c >= '0' && c <= '9';
      case '-':
        return c == '-' || c == ' ';
      default:
        return p == '*' || c == p;
    }
  };
  return std::equal(text.begin(), text.end(), pattern.begin(), pattern.end(), fits);
}

}  // namespace veyruna::tests
