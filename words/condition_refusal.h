#pragma once

#include <string>

#include "almanac/search/condition_error.h"
#include "words/usage_error.h"

namespace veyruna::words {

/// What is said of a condition that cannot be read: what is wrong, where, what is accepted and what
/// is nearest, and under it the line with the word underlined. `where` is the argument or file that
/// holds it.
UsageError refusalOf(const std::string& where, const almanac::ConditionError& error);

}  // namespace veyruna::words
