#pragma once

#include <optional>
#include <string>

#include "almanac/search/search.h"
#include "cli/typed/places.h"

namespace veyruna::cli {

/// What a search finds as a table that people read, a line a span.
class SpanTable {
 public:
  /// The range tells how wide its moments are; the place, whose clock is told.
  SpanTable(const almanac::Range& range, const std::optional<Place>& place);

  /// The line over the columns.
  [[nodiscard]] std::string header() const;

  /// `command` draws the horoscope of the span.
  [[nodiscard]] std::string line(const almanac::Span& span, const std::string& command) const;

 private:
  [[nodiscard]] std::string momentColumns(double t) const;

  std::optional<Place> place_;
  std::size_t momentWidth_;
  std::size_t baseTimeWidth_;
};

/// "12 d 03:05", "3:05 h", "5:07 min" or "7.3 s".
std::string lengthText(double days);

}  // namespace veyruna::cli
