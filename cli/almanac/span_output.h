#pragma once

#include <memory>
#include <optional>
#include <string>

#include "almanac/search/search.h"
#include "cli/typed/grammar.h"
#include "cli/typed/places.h"
#include "documents/forms.h"

namespace veyruna::cli {

/// Where the spans of a search go, one by one as they are found.
class SpanOutput {
 public:
  SpanOutput() = default;
  SpanOutput(const SpanOutput&) = delete;
  SpanOutput& operator=(const SpanOutput&) = delete;
  virtual ~SpanOutput() = default;

  virtual void take(const almanac::Span& span) = 0;

  /// Without it nothing is whole.
  virtual void finish() = 0;
};

/// The file that was typed, in text, after what `explanation` says, or for programs. The place is
/// the one that was typed, if any was.
std::unique_ptr<SpanOutput> spanOutput(const Typed& typed, documents::Form form,
                                       const almanac::Query& query,
                                       const std::optional<Place>& place,
                                       const std::string& explanation);

}  // namespace veyruna::cli
