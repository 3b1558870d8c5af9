// Any bytes as conditions: refused with the place of a word in one of the lines, or read, written
// and read again as the same; then a short search of any of them ends, in order, within its range.
#include <string>

#include "almanac/search/condition_reader.h"
#include "almanac/search/search.h"
#include "fuzz/target.h"

using namespace veyruna;
using fuzz::promise;

namespace {

void tryError(const almanac::ConditionError& error, const std::string& text) {
  const almanac::ConditionError::Spot& spot = error.spot();
  promise(text.find(spot.line) != std::string::npos, "an error tells a line of the text");
  promise(spot.offset + spot.length <= spot.line.size(), "what is underlined is part of its line");
  promise(!error.accepted().empty(), "an error says what is accepted");
}

void trySearch(const almanac::Condition& condition) {
  constexpr almanac::Range range{259'000.0, 259'010.0};
  constexpr int mostSpans = 200;
  double last = range.from;
  int spans = 0;
  almanac::search({.condition = condition,
                   .range = range,
                   .place = astro::Observer{0.0, 0.7, -0.3},
                   .isLocal = true},
                  [&](const almanac::Span& span) {
                    promise(span.begin >= last && span.end > span.begin && span.end <= range.to,
                            "what is found lies in the range, in its order");
                    last = span.end;
                    return ++spans < mostSpans;
                  });
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  const std::string text(reinterpret_cast<const char*>(bytes), size);
  try {
    const std::vector<almanac::Condition> read = almanac::readConditions(text);
    if (read.empty()) {
      return 0;
    }
    const almanac::Condition all = almanac::allOf(read);
    promise(!explanationOf(all, false).empty(), "what is asked can be explained");
    promise(needsPlace(all, true) || !needsPlace(all, false), "local clocks ask for no less");
    for (const almanac::Condition& condition : read) {
      promise(almanac::readConditions(textOf(condition)) == std::vector{condition},
              "a condition's own text reads back as the same");
    }
    constexpr std::size_t mostLetters = 400;  // a tree of thousands takes its time
    if (size < mostLetters) {
      trySearch(all);
    }
  } catch (const almanac::ConditionError& error) {
    tryError(error, text);
  }
  return 0;
}
