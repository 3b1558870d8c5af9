#pragma once

#include "cli/typed/grammar.h"

namespace veyruna::cli {

/// Writes when the conditions that were typed hold, as it is found. Where they never do, standard
/// error says so. Throws UsageError.
void writeSearch(const Typed& typed);

}  // namespace veyruna::cli
