#include "notes/note_text.h"

#include <array>

#include "astro/number_text.h"
#include "words/utf8.h"

namespace veyruna::notes {

namespace {

bool beginsCodePoint(char byte) {
  return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U;
}

/// Whether a code point in UTF-8 cannot stand on a line: what moves the cursor, ends lines, or is
/// no character.
bool isNoPartOfALine(std::string_view codePoint) {
  constexpr std::array<std::string_view, 4> ends = {"\u2028", "\u2029", "\xEF\xBF\xBE",
                                                    "\xEF\xBF\xBF"};
  for (const std::string_view end : ends) {
    if (codePoint == end) {
      return true;
    }
  }
  const auto first = static_cast<unsigned char>(codePoint.front());
  return first < 0x20 || first == 0x7F ||
         (first == 0xC2 && static_cast<unsigned char>(codePoint[1]) < 0xA0);
}

}  // namespace

std::string oneLine(std::string_view text) {
  const std::string valid = words::validUtf8(text);
  std::string line;
  for (std::size_t begin = 0; begin < valid.size();) {
    std::size_t end = begin + 1;
    while (end < valid.size() && !beginsCodePoint(valid[end])) {
      ++end;
    }
    const std::string_view codePoint = std::string_view(valid).substr(begin, end - begin);
    line += isNoPartOfALine(codePoint) ? " " : codePoint;
    begin = end;
  }
  return line;
}

std::string yamlText(std::string_view line) {
  std::string quoted = "\"";
  for (const char byte : line) {
    if (byte == '"' || byte == '\\') {
      quoted += '\\';
    }
    quoted += byte;
  }
  return quoted + '"';
}

std::string shortened(const std::string& text, std::size_t characters) {
  std::size_t seen = 0;
  std::size_t cut = 0;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (!beginsCodePoint(text[i])) {
      continue;
    }
    ++seen;
    if (seen == characters) {
      cut = i;  // where the last character that fits begins
    } else if (seen > characters) {
      return text.substr(0, cut) + "…";
    }
  }
  return text;
}

std::string dateText(const astro::CalendarMoment& moment) {
  std::string text;
  astro::appendPaddedInteger(text, moment.year, 3);
  text += '-';
  astro::appendPaddedInteger(text, moment.month, 2);
  text += '-';
  astro::appendPaddedInteger(text, moment.day, 2);
  return text;
}

}  // namespace veyruna::notes
