#include "words/condition_refusal.h"

#include <algorithm>

#include "words/nearest.h"
#include "words/quoting.h"

namespace veyruna::words {

namespace {

using almanac::ConditionError;

/// The line with the word underlined; nothing where that would break the terminal's lines or be
/// longer than they are.
std::string underlined(const ConditionError::Spot& spot) {
  constexpr std::size_t longest = 100;
  std::string line = spot.line;
  std::ranges::replace(line, '\t', ' ');
  const auto before = charactersOnALine(std::string_view(line).substr(0, spot.offset));
  const auto within = charactersOnALine(std::string_view(line).substr(spot.offset, spot.length));
  const auto inAll = charactersOnALine(line);
  if (!before || !within || !inAll || *inAll > longest) {
    return {};
  }
  return "\n  " + line + "\n  " + std::string(*before, ' ') +
         std::string(std::max<std::size_t>(*within, 1), '^');
}

}  // namespace

UsageError refusalOf(const std::string& where, const ConditionError& error) {
  const ConditionError::Spot& spot = error.spot();
  std::string message = where + ": " + error.what();
  if (spot.length > 0) {
    message += " at " + inQuotes(std::string_view(spot.line).substr(spot.offset, spot.length));
  }
  message += "; give " + error.accepted() + asNearest(error.nearest());
  return UsageError(message + underlined(spot));
}

}  // namespace veyruna::words
