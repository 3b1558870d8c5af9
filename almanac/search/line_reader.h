#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

#include "almanac/search/condition.h"
#include "almanac/search/word_reader.h"

namespace veyruna::almanac {

/// Whose parts follow.
enum class Group { any, all };

/// What opens a group whose parts stand on the lines below: "any of:", "not all of:".
struct Opening {
  int negations = 0;
  Group group = Group::any;
};

/// One line of conditions. Everything throws ConditionError.
class LineReader {
 public:
  LineReader(std::string_view line, std::size_t lineNumber) : words_(line, lineNumber) {}

  /// Whether the line ends in a colon and so opens a group.
  [[nodiscard]] bool isOpening() const { return words_.endsIn(":"); }
  /// The group that the line opens.
  Opening opening();
  /// The one condition that the line is; `depth` is how many it stands in.
  Condition whole(int depth);

  /// To refuse the line by.
  [[nodiscard]] const WordReader& words() const { return words_; }

 private:
  Condition condition(int depth);
  Condition grouped(int depth);
  Condition afterBody(Body body);
  std::optional<Condition> ofThePanel();
  std::optional<Condition> ofTheClock();
  Condition together(Body body, bool isOpposite);
  double altitude();
  Group group();

  WordReader words_;
};

}  // namespace veyruna::almanac
