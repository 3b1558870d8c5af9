#pragma once

#include <optional>
#include <string>

#include "almanac/search/search.h"
#include "cli/typed/grammar.h"
#include "cli/typed/places.h"

namespace veyruna::cli {

/// Lines for a shell that draw horoscopes at the place that was typed, or at any where none was.
class HoroscopeCommand {
 public:
  HoroscopeCommand(const Typed& typed, const std::optional<Place>& place);

  /// That of a span's middle.
  [[nodiscard]] std::string of(const almanac::Span& span) const;

 private:
  std::string placeOptions_;
};

}  // namespace veyruna::cli
