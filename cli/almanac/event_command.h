#pragma once

#include "cli/typed/grammar.h"

namespace veyruna::cli {

/// Writes the events that were typed, one by one as they are found. Throws UsageError.
void writeEvents(const Typed& typed);

}  // namespace veyruna::cli
