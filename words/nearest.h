#pragma once

#include <span>
#include <string>
#include <string_view>

/// What is said behind a refused word of the one that was meant.
namespace veyruna::words {

/// The one of `names` that is spelt most like a word; empty where none is near.
std::string nearestOf(std::string_view word, std::span<const std::string> names);

/// "; the nearest is "events"", or nothing where none is near.
std::string asNearest(std::string_view nearest);

}  // namespace veyruna::words
