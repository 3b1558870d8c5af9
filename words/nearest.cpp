#include "words/nearest.h"

#include "almanac/search/spelling.h"
#include "words/quoting.h"

namespace veyruna::words {

std::string nearestOf(std::string_view word, std::span<const std::string> names) {
  return almanac::nearestTo(word, names);
}

std::string asNearest(std::string_view nearest) {
  return nearest.empty() ? "" : "; the nearest is " + inQuotes(nearest);
}

}  // namespace veyruna::words
