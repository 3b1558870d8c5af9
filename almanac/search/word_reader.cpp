#include "almanac/search/word_reader.h"

#include <charconv>

#include "almanac/search/condition_reader.h"
#include "astro/clock.h"
#include "astro/number_conversion.h"

namespace veyruna::almanac {

namespace {

constexpr std::string_view blanks = " \t\r\v\f";
constexpr std::string_view signsOfTheirOwn = "();";
constexpr std::string_view endsOfAWord = " \t\r\v\f();";

}  // namespace

std::string joined(const std::vector<std::string>& words) {
  std::string text;
  for (const std::string& word : words) {
    text.append(text.empty() ? "" : ", ").append(word);
  }
  return text;
}

WordReader::WordReader(std::string_view line, std::size_t lineNumber)
    : line_(line), lineNumber_(lineNumber) {
  const std::string_view meant = std::string_view(line_).substr(0, line_.find('#'));
  for (std::size_t at = 0; at < meant.size();) {
    if (blanks.find(meant[at]) != std::string_view::npos) {
      ++at;
      continue;
    }
    std::size_t length = 1;
    if (signsOfTheirOwn.find(meant[at]) == std::string_view::npos) {
      length = std::min(meant.find_first_of(endsOfAWord, at), meant.size()) - at;
    }
    const bool endsInColon = length > 1 && meant[at + length - 1] == ':';
    length -= endsInColon ? 1 : 0;
    tokens_.push_back({lowered(meant.substr(at, length)), at, length});
    at += length;
    if (endsInColon) {
      tokens_.push_back({":", at++, 1});
    }
  }
}

bool WordReader::endsIn(std::string_view word) const {
  return !tokens_.empty() && tokens_.back().text == word;
}

bool WordReader::isAt(std::string_view word) const {
  return !isAtEnd() && next() == word;
}

bool WordReader::passIf(std::string_view word) {
  const bool is = isAt(word);
  next_ += is ? 1U : 0U;
  return is;
}

void WordReader::expect(std::string_view word) {
  if (!passIf(word)) {
    refuse(std::string(word), {std::string(word)});
  }
}

double WordReader::degrees(double least, bool isLeastAllowed, double most,
                           const std::string& accepted) {
  constexpr std::string_view degreeSign = "°";
  std::string text = isAtEnd() ? std::string() : next();
  if (text.ends_with(degreeSign)) {
    text.resize(text.size() - degreeSign.size());
  }
  const std::optional<double> number = astro::readTypedNumber(text);
  if (!number || *number < least || *number > most || (*number == least && !isLeastAllowed)) {
    refuse(accepted, {"horizon"});
  }
  ++next_;
  return *number;
}

double WordReader::hour() {
  const std::optional<double> read = isAtEnd() ? std::nullopt : astro::hourFromText(next());
  if (!read) {
    refuse("an hour from 0 to 24, 22:00 or 18.25");
  }
  ++next_;
  return *read;
}

std::optional<int> WordReader::passIfCount(int most) {
  if (isAtEnd()) {
    return std::nullopt;
  }
  int number = 0;
  const char* const end = next().data() + next().size();
  const auto [last, error] = std::from_chars(next().data(), end, number);
  if (error != std::errc{} || last != end || number < 1 || number > most) {
    return std::nullopt;
  }
  ++next_;
  return number - 1;
}

void WordReader::refuse(const std::string& accepted, const std::vector<std::string>& words,
                        std::size_t back) const {
  if (next_ - back >= tokens_.size()) {
    refuseEnd("the condition is not complete", accepted);
  }
  const Token& token = tokens_[next_ - back];
  throw errorAt(token.offset, token.length, "the condition is not understood", accepted,
                nearestTo(token.text, words));
}

void WordReader::refuseEnd(const std::string& message, const std::string& accepted) const {
  const std::size_t end = tokens_.empty() ? 0 : tokens_.back().offset + tokens_.back().length;
  throw errorAt(end, 0, message, accepted, {});
}

void WordReader::refuseDepth() const {
  refuseEnd("conditions stand too deep within one another",
            "at most " + std::to_string(deepestNesting) + " within one another");
}

void WordReader::refuseIndentation(const std::string& accepted) const {
  const std::size_t begin = tokens_.empty() ? 0 : tokens_.front().offset;
  throw errorAt(0, begin, "this indentation is not understood", accepted, {});
}

ConditionError WordReader::errorAt(std::size_t offset, std::size_t length,
                                   const std::string& message, const std::string& accepted,
                                   const std::string& nearest) const {
  return {message,
          {.line = line_, .lineNumber = lineNumber_, .offset = offset, .length = length},
          accepted,
          nearest};
}

}  // namespace veyruna::almanac
