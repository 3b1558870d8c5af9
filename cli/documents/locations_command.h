#pragma once

#include "cli/typed/grammar.h"

namespace veyruna::cli {

/// Writes the saved places in the form that was asked for. Throws UsageError, or std::runtime_error
/// where their file is no list.
void writeLocations(const Typed& typed);

}  // namespace veyruna::cli
