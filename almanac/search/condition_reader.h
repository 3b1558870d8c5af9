#pragma once

#include <string_view>
#include <vector>

#include "almanac/search/condition.h"
#include "almanac/search/condition_error.h"

namespace veyruna::almanac {

/// How deep conditions can stand within one another.
inline constexpr int deepestNesting = 32;

/// Reads conditions, one a line. `#` begins a comment, letter case does not matter. "any of:",
/// "all of:" and "not any of:" or the like are followed by lines that are indented further;
/// "any of (A; B; C)" says the same within a line. Nothing where there are none. Throws
/// ConditionError.
std::vector<Condition> readConditions(std::string_view text);

}  // namespace veyruna::almanac
