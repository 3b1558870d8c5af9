#pragma once

#include "cli/typed/grammar.h"

namespace veyruna::cli {

/// Writes the schema of what a command writes for programs, or the list of all of them. Throws
/// UsageError.
void writeSchema(const Typed& typed);

}  // namespace veyruna::cli
