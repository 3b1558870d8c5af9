#pragma once

#include <algorithm>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "almanac/search/condition_error.h"
#include "almanac/search/spelling.h"
#include "almanac/search/vocabulary.h"

namespace veyruna::almanac {

/// The words, with a comma between two.
std::string joined(const std::vector<std::string>& words);

template <class Meaning>
void append(std::vector<std::string>& all, const Words<Meaning>& words) {
  for (const Word<Meaning>& word : words) {
    all.push_back(word.shown);
  }
}

template <class Meaning>
std::vector<std::string> shown(const Words<Meaning>& words) {
  std::vector<std::string> all;
  append(all, words);
  return all;
}

/// A line of words, passed one after the other. What is refused is thrown as ConditionError.
class WordReader {
 public:
  WordReader(std::string_view line, std::size_t lineNumber);

  /// Whether the last word is this.
  [[nodiscard]] bool endsIn(std::string_view word) const;
  [[nodiscard]] bool isAtEnd() const { return next_ == tokens_.size(); }
  /// Whether the next word is this, in small letters.
  [[nodiscard]] bool isAt(std::string_view word) const;
  /// Passes the next word if it is this.
  bool passIf(std::string_view word);
  /// Passes the next word, which must be this.
  void expect(std::string_view word);

  /// Passes the next word if it is one of these, and tells its meaning.
  template <class Meaning>
  std::optional<Meaning> passIfOneOf(const Words<Meaning>& words) {
    if (isAtEnd()) {
      return std::nullopt;
    }
    const auto found = std::ranges::find_if(
        words, [this](const Word<Meaning>& word) { return lowered(word.shown) == next(); });
    if (found == words.end()) {
      return std::nullopt;
    }
    ++next_;
    return found->meaning;
  }

  /// The same of a word that must be one of these; `kind` says in front of them what they are.
  template <class Meaning>
  Meaning oneOf(const Words<Meaning>& words, std::string_view kind) {
    if (const auto meaning = passIfOneOf(words)) {
      return *meaning;
    }
    const std::vector<std::string> all = shown(words);
    refuse(std::string(kind) + ": " + joined(all), all);
  }

  /// A number of degrees, "5" or "5°", in [least, most], or in (least, most].
  double degrees(double least, bool isLeastAllowed, double most, const std::string& accepted);
  /// An hour of the day, which may be 24.
  double hour();
  /// Passes a whole number within [1, most] and tells it less one.
  std::optional<int> passIfCount(int most);

  /// Refuses the next word, instead of which there could be what `accepted` says; the nearest of
  /// `words` is told, too. `back` words before it instead.
  [[noreturn]] void refuse(const std::string& accepted, const std::vector<std::string>& words = {},
                           std::size_t back = 0) const;
  /// Refuses the line as it ends.
  [[noreturn]] void refuseEnd(const std::string& message, const std::string& accepted) const;
  [[noreturn]] void refuseDepth() const;
  /// Refuses what stands in front of the first word.
  [[noreturn]] void refuseIndentation(const std::string& accepted) const;

 private:
  /// A word, or one of "(", ")", ";", and ":" at the end of a word.
  struct Token {
    std::string text;  ///< small letters
    std::size_t offset;
    std::size_t length;
  };

  [[nodiscard]] const std::string& next() const { return tokens_[next_].text; }
  [[nodiscard]] ConditionError errorAt(std::size_t offset, std::size_t length,
                                       const std::string& message, const std::string& accepted,
                                       const std::string& nearest) const;

  std::string line_;
  std::size_t lineNumber_;
  std::vector<Token> tokens_;
  std::size_t next_ = 0;
};

}  // namespace veyruna::almanac
