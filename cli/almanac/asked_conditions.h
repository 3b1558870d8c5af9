#pragma once

#include <vector>

#include "almanac/search/condition.h"
#include "cli/typed/grammar.h"

namespace veyruna::cli {

/// The conditions that were typed, and those of -f FILE. Throws UsageError, which shows the word
/// that is not understood.
std::vector<almanac::Condition> askedConditions(const Typed& typed);

}  // namespace veyruna::cli
